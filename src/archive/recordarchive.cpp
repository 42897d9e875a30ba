#include "archive/recordarchive.h"

#include "archive/typedstreamreader.h"
#include "archive/typedstreamwriter.h"

namespace tavrel {

namespace {

constexpr std::size_t recordsPerProgress = 128;

void readItem(TypedStreamReader& reader, Travel, qint32& field) {
    field = reader.readInteger();
}
void readItem(TypedStreamReader& reader, Travel travel, float& field) {
    field = travel == Travel::bitsAsInt ? reader.readFloatBits()
            : travel == Travel::integer ? static_cast<float>(reader.readInteger())
                                        : reader.readFloat();
}
void readItem(TypedStreamReader& reader, Travel travel, QString& field) {
    field = travel == Travel::integer ? QString::number(reader.readInteger()) : reader.readText();
}
void readItem(TypedStreamReader& reader, Travel, Date& field) {
    field = reader.readDate();
}
void readItem(TypedStreamReader& reader, Travel, Series& field) {
    field = reader.readSeries();
}
void readItem(TypedStreamReader& reader, Travel, Image& field) {
    field = reader.readImage();
}

class Sink final : public RecordSink {
public:
    explicit Sink(const RecordLayout& layout) : layout_(layout) {}

    std::size_t readRecord(TypedStreamReader& reader, int version) override {
        const std::shared_ptr<Record> record = layout_.make();
        for (const auto& item : layout_.items) {
            if (item.travels(version)) {
                item.field().visit(*record, [&](auto& field) { readItem(reader, item.travel(), field); });
                if (!reader.ok()) {
                    break;
                }
            }
        }
        if (layout_.afterReading && reader.ok()) {
            layout_.afterReading(*record, version);
        }
        firstVersion_ = records_.empty() ? version : firstVersion_;
        records_.push_back(record);
        return records_.size() - 1;
    }

    const RecordPointer& record(std::size_t index) const { return records_[index]; }
    int version() const { return records_.empty() ? layout_.version : firstVersion_; }

private:
    const RecordLayout& layout_;
    RecordList records_;
    int firstVersion_ = 0;
};

void writeItem(TypedStreamWriter& writer, Travel, qint32 value) {
    writer.writeInteger(value);
}
void writeItem(TypedStreamWriter& writer, Travel travel, float value) {
    if (travel == Travel::bitsAsInt) {
        writer.writeFloatBits(value);
    } else if (travel == Travel::integer) {
        writer.writeInteger(Number::ofReal(static_cast<double>(value)).toInt());
    } else {
        writer.writeFloat(value);
    }
}
void writeItem(TypedStreamWriter& writer, Travel travel, const QString& value) {
    travel == Travel::integer ? writer.writeInteger(value.toInt()) : writer.writeText(value);
}
void writeItem(TypedStreamWriter& writer, Travel, const Date& value) {
    writer.writeDate(value);
}
void writeItem(TypedStreamWriter& writer, Travel, const Series& value) {
    writer.writeSeries(value);
}
void writeItem(TypedStreamWriter& writer, Travel, const Image& value) {
    writer.writeImage(value);
}

/// How many numbers the series of the records hold.
std::size_t numbersIn(const RecordList& records, const RecordLayout& layout) {
    std::vector<Field> series;
    for (const auto& item : layout.items) {
        if (item.field().kind() == FieldKind::series) {
            series.push_back(item.field());
        }
    }
    std::size_t count = 0;
    for (const auto& record : records) {
        for (const auto& field : series) {
            count += field.get<Series>(*record)->size();
        }
    }
    return count;
}

}  // namespace

/// Writes the items of a record; it alone sees which field fills a slot.
class RecordWriter {
public:
    static void write(TypedStreamWriter& writer, const RecordLayout& layout, const Record& record) {
        for (const auto& item : layout.items) {
            if (item.travels(layout.version)) {
                item.source_.visit(record, [&](const auto& value) { writeItem(writer, item.travel(), value); });
            }
        }
    }
};

Expected<QString> recordClassOf(QByteArrayView bytes) {
    TypedStreamReader reader(bytes);
    const std::size_t count = reader.openRoot();
    const QString name = count > 0 ? reader.nextElementClass().name : QString();
    if (!reader.ok()) {
        return tl::unexpected(reader.failure());
    }
    return name;
}

std::int64_t recordVersionOf(QByteArrayView bytes) {
    TypedStreamReader reader(bytes);
    return reader.openRoot() > 0 ? reader.nextElementClass().version : 0;
}

Expected<RecordFile> readRecords(QByteArrayView bytes, const RecordLayout& layout, const Progress& progress,
                                 SeriesPath path) {
    Sink sink(layout);
    TypedStreamReader reader(bytes, layout.className, &sink, path);
    const std::size_t count = reader.openRoot();
    RecordFile file;
    for (std::size_t index = 0; index < count && reader.ok(); ++index) {
        const std::size_t known = reader.readElement();
        if (reader.ok()) {
            file.records.push_back(sink.record(known));
        }
        if (progress && index % recordsPerProgress == 0 && !progress(index, count)) {
            reader.fail(StreamFault::cancelled);
        }
    }
    reader.closeRoot();
    if (!reader.ok()) {
        return tl::unexpected(reader.failure());
    }
    file.version = sink.version();
    return file;
}

QByteArray writeRecords(const RecordList& records, const RecordLayout& layout, SeriesNumbers numbers, SeriesPath path) {
    TypedStreamWriter writer(numbers, numbersIn(records, layout), path);
    const TypedStreamWriter::Class recordClass{layout.className, layout.version, &TypedStreamWriter::rootClass};
    writer.beginRoot(records.size());
    for (const auto& record : records) {
        if (writer.beginRecord(recordClass, record.get())) {
            RecordWriter::write(writer, layout, *record);
            writer.endObject();
        }
    }
    writer.endObject();
    return writer.take();
}

}  // namespace tavrel
