#include "archive/typedstreamtree.h"

#include "archive/typedstreamencoding.h"
#include "archive/typedstreamscanner.h"

#include <QStringDecoder>

namespace tavrel {

namespace {

QString shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Walks every value of a stream; Derived hears of them as EncodingWalk's handler, and of objects and groups besides.
template <class Derived>
class TreeWalk {
public:
    explicit TreeWalk(QByteArrayView bytes) : scanner_(bytes) {}

    Expected<void> run() {
        scanner_.readHeader();
        if (scanner_.ok()) {
            derived().begin();
            while (scanner_.ok() && !scanner_.atEnd()) {
                group();
            }
            derived().finish();
        }
        if (!scanner_.ok()) {
            return tl::unexpected(scanner_.failure());
        }
        return {};
    }

    void object() {
        const ObjectHead head = scanner_.readObjectHead();
        if (!scanner_.ok()) {
            return;
        }
        if (head.form != ObjectHead::literal) {
            derived().known(head);
            return;
        }
        if (depth_ == TypedStreamScanner::maximumDepth) {
            scanner_.fail(StreamFault::tooDeep);
            return;
        }
        ++depth_;
        derived().beginObject(head);
        while (scanner_.ok() && scanner_.hasGroup()) {
            group();
        }
        derived().endObject();
        scanner_.readObjectEnd();
        --depth_;
    }

protected:
    void group() {
        const std::string_view types = scanner_.readType();
        if (scanner_.ok()) {
            derived().beginGroup(types);
            EncodingWalk<Derived>(scanner_, derived()).group(types);
            derived().endGroup();
        }
    }

    TypedStreamScanner scanner_;
    int depth_ = 0;

private:
    Derived& derived() { return static_cast<Derived&>(*this); }
};

class Counting : public TreeWalk<Counting> {
public:
    using TreeWalk::TreeWalk;

    void begin() {
        summary.littleEndian = scanner_.isLittleEndian();
        summary.systemVersion = scanner_.systemVersion();
    }
    void finish() {
        for (std::size_t index = 0; index < scanner_.classes().size(); ++index) {
            const StreamClass& klass = scanner_.classes()[index];
            summary.classes.push_back({shown(klass.name), klass.version, index < counts_.size() ? counts_[index] : 0});
        }
    }
    void beginGroup(std::string_view types) {
        summary.groups += depth_ == 0 ? 1U : 0U;
        scanner_.spend(types.size());
    }
    void endGroup() {}
    void known(const ObjectHead& head) { summary.references += head.form == ObjectHead::reference ? 1U : 0U; }
    void beginObject(const ObjectHead& head) {
        const auto index = static_cast<std::size_t>(head.classIndex);
        if (counts_.size() <= index) {
            counts_.resize(index + 1);
        }
        ++counts_[index];
        ++summary.objects;
        classValue(head.classIndex);
    }
    void endObject() {}
    void integer(char, std::int64_t) {}
    void real(char, double) {}
    // What the other walk will write of them, each time they are named.
    void text(char, std::string_view text) { scanner_.spend(text.size()); }
    void classValue(std::int32_t index) {
        for (; index >= 0; index = scanner_.classAt(index).superclass) {
            scanner_.spend(1 + scanner_.classAt(index).name.size());
        }
    }
    void bytes(std::string_view) {}
    void beginList() {}
    void endList() {}

    StreamSummary summary;

private:
    std::vector<std::size_t> counts_;
};

class Writing : public TreeWalk<Writing> {
public:
    Writing(QByteArrayView bytes, JsonWriter& json) : TreeWalk(bytes), json_(json) {}

    void begin() {
        json_.beginObject();
        json_.member(u"byteOrder", scanner_.isLittleEndian() ? QStringLiteral("little") : QStringLiteral("big"));
        json_.member(u"system", static_cast<qint64>(scanner_.systemVersion()));
        json_.key(u"groups");
        json_.beginArray();
    }
    void finish() {
        json_.endArray();
        json_.endObject();
        json_.flush();
    }

    void beginGroup(std::string_view types) {
        json_.beginArray();
        json_.beginArray();
        for (std::size_t at = 0; at < types.size();) {
            const std::size_t end = encodingEnd(types, at);
            text(types.substr(at, end - at));
            at = end;
        }
        json_.endArray();
        json_.beginArray();
    }
    void endGroup() {
        json_.endArray();
        json_.endArray();
    }

    void known(const ObjectHead& head) {
        if (head.form == ObjectHead::nil) {
            json_.null();
            return;
        }
        json_.beginObject();
        json_.member(u"ref", static_cast<quint64>(head.number));
        json_.endObject();
    }
    void beginObject(const ObjectHead& head) {
        json_.beginObject();
        json_.member(u"id", static_cast<quint64>(head.number));
        json_.key(u"classes");
        classValue(head.classIndex);
        json_.key(u"groups");
        json_.beginArray();
    }
    void endObject() {
        json_.endArray();
        json_.endObject();
    }

    void integer(char code, std::int64_t value) {
        if (code == 'Q' || code == 'L') {
            json_.value(static_cast<quint64>(value));
        } else {
            json_.value(static_cast<qint64>(value));
        }
    }
    void real(char code, double value) {
        if (code == 'f') {
            json_.value(static_cast<float>(value));
        } else {
            json_.value(value);
        }
    }
    void text(char, std::string_view words) { text(words); }
    void text(std::string_view text) {
        if (!text.data()) {
            json_.null();
            return;
        }
        QStringDecoder decoder(QStringDecoder::Utf8,
                               QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
        const QString decoded = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
        if (decoder.hasError()) {
            bytes(text);
        } else {
            json_.value(decoded);
        }
    }
    void bytes(std::string_view raw) {
        json_.beginObject();
        json_.member(u"hex", QString::fromLatin1(
                                 QByteArray::fromRawData(raw.data(), static_cast<qsizetype>(raw.size())).toHex()));
        json_.endObject();
    }
    void classValue(std::int32_t index) {
        if (index < 0) {
            json_.null();
            return;
        }
        json_.beginArray();
        for (; index >= 0; index = scanner_.classAt(index).superclass) {
            const StreamClass& klass = scanner_.classAt(index);
            json_.beginArray();
            text(klass.name);
            json_.value(static_cast<qint64>(klass.version));
            json_.endArray();
        }
        json_.endArray();
    }
    void beginList() { json_.beginArray(); }
    void endList() { json_.endArray(); }

private:
    JsonWriter& json_;
};

}  // namespace

Expected<StreamSummary> inspectStream(QByteArrayView bytes) {
    Counting counting(bytes);
    return counting.run().map([&] { return std::move(counting.summary); });
}

Expected<void> writeStreamJson(JsonWriter& json, QByteArrayView bytes) {
    if (const auto readable = inspectStream(bytes); !readable) {
        return tl::unexpected(readable.error());
    }
    return Writing(bytes, json).run();
}

}  // namespace tavrel
