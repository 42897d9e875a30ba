#include "archive/storedobject.h"

#include "archive/typedstreamencoding.h"
#include "archive/typedstreamwriter.h"

namespace tavrel {

namespace {

using Node = StoredObject::Node;
using Value = StoredObject::Value;

/// Objects that stand in several images are copied into each. A stream cannot be made to take up more than so many
/// times its size by that.
constexpr std::size_t copiesPerByte = 16;
/// What a value takes besides its bytes.
constexpr std::size_t valueSize = 64;

QByteArray copyOf(std::string_view bytes) {
    return bytes.data() ? QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())) : QByteArray();
}

std::size_t sizeOf(const Node& node) {
    std::size_t size = valueSize;
    for (const auto& group : node.groups) {
        for (const auto& value : group.values) {
            size += valueSize + static_cast<std::size_t>(value.bytes.size());
        }
    }
    return size;
}

}  // namespace

/// Takes the values of one group.
struct StoredObjectReader::Handler {
    StoredObjectReader& reader;
    std::vector<Value>& values;

    void integer(char code, std::int64_t value) const { values.push_back({code, value}); }
    void real(char code, double value) const { values.push_back({code, 0, value}); }
    void text(char code, std::string_view text) const { values.push_back({code, 0, 0, copyOf(text)}); }
    void classValue(std::int32_t index) const { values.push_back({'#', 0, 0, {}, reader.chainOf(index)}); }
    void object() const { values.push_back({'@', reader.readNode()}); }
    void bytes(std::string_view raw) const { values.push_back({StoredObject::rawBytes, 0, 0, copyOf(raw)}); }
    void beginList() const {}
    void endList() const {}
};

StoredObjectReader::StoredObjectReader(TypedStreamScanner& scanner, TextOf textOf)
    : scanner_(scanner),
      textOf_(std::move(textOf)),
      bytesToCopy_(copiesPerByte * (scanner.offset() + scanner.bytesLeft())) {}

StoredPointer StoredObjectReader::read() {
    current_ = std::make_shared<StoredObject>();
    places_.clear();
    copies_.clear();
    depth_ = 0;
    readNode();
    if (!scanner_.ok()) {
        return nullptr;
    }
    for (const auto& [number, place] : places_) {
        known_[number] = {current_, static_cast<std::size_t>(place)};
    }
    return current_;
}

std::int64_t StoredObjectReader::newNode(StoredObject::Chain chain) {
    current_->nodes.push_back({std::move(chain)});
    return static_cast<std::int64_t>(current_->nodes.size() - 1);
}

/// The place of the object that follows; -1 for nil.
std::int64_t StoredObjectReader::readNode() {
    const ObjectHead head = scanner_.readObjectHead();
    if (!scanner_.ok() || head.form == ObjectHead::nil) {
        return -1;
    }
    if (head.form == ObjectHead::reference) {
        return placeOf(head.number);
    }
    if (depth_ == TypedStreamScanner::maximumDepth) {
        scanner_.fail(StreamFault::tooDeep);
        return -1;
    }
    ++depth_;
    const std::int64_t place = newNode(chainOf(head.classIndex));
    places_[head.number] = place;
    std::vector<StoredObject::Group> groups;
    while (scanner_.ok() && scanner_.hasGroup()) {
        const std::string_view types = scanner_.readType();
        if (scanner_.ok()) {
            groups.push_back({copyOf(types), {}});
            Handler handler{*this, groups.back().values};
            EncodingWalk(scanner_, handler).group(types);
        }
    }
    scanner_.readObjectEnd();
    current_->nodes[static_cast<std::size_t>(place)].groups = std::move(groups);
    --depth_;
    return place;
}

std::int64_t StoredObjectReader::placeOf(std::size_t number) {
    if (const auto place = places_.find(number); place != places_.end()) {
        return place->second;
    }
    if (const auto known = known_.find(number); known != known_.end()) {
        return copied(known->second);
    }
    const auto text = textOf_ ? textOf_(number) : std::nullopt;
    if (!text) {
        return -1;
    }
    const std::int64_t place = newNode({{"NSString", 1}, {"NSObject", 0}});
    current_->nodes.back().groups = {{"+", {{'+', 0, 0, *text}}}};
    places_[number] = place;
    return place;
}

std::int64_t StoredObjectReader::copied(const Place& known) {
    const auto [place, isNew] = copies_.try_emplace({known.object.get(), known.node}, -1);
    if (!isNew) {
        return place->second;
    }
    const Node& source = known.object->nodes[known.node];
    const std::size_t size = sizeOf(source);
    if (size > bytesToCopy_) {
        return -1;
    }
    bytesToCopy_ -= size;
    const std::int64_t copy = newNode(source.chain);
    place->second = copy;
    std::vector<StoredObject::Group> groups = source.groups;
    for (auto& group : groups) {
        for (auto& value : group.values) {
            if (value.code == '@' && value.integer >= 0) {
                value.integer = copied({known.object, static_cast<std::size_t>(value.integer)});
            }
        }
    }
    current_->nodes[static_cast<std::size_t>(copy)].groups = std::move(groups);
    return copy;
}

StoredObject::Chain StoredObjectReader::chainOf(std::int32_t classIndex) const {
    StoredObject::Chain chain;
    for (; classIndex >= 0; classIndex = scanner_.classAt(classIndex).superclass) {
        const StreamClass& klass = scanner_.classAt(classIndex);
        chain.push_back({copyOf(klass.name), klass.version});
    }
    return chain;
}

QByteArray streamOf(const StoredObject& object) {
    TypedStreamWriter writer;
    writer.writeStored(object);
    return writer.take();
}

StoredPointer storedObjectOf(QByteArrayView stream) {
    TypedStreamScanner scanner(stream);
    scanner.readHeader();
    if (!scanner.ok() || scanner.readType() != "@" || !scanner.nextIsLiteral()) {
        return nullptr;
    }
    return StoredObjectReader(scanner).read();
}

}  // namespace tavrel
