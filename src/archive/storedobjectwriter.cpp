#include "archive/imagearchive.h"
#include "archive/typedstreamtags.h"
#include "archive/typedstreamwriter.h"

namespace tavrel {

namespace {

constexpr std::size_t notWritten = 0;

}  // namespace

void TypedStreamWriter::writeStored(const StoredObject& object) {
    beginGroup("@");
    std::vector<std::size_t> numbers(object.nodes.size(), notWritten);  // object numbers and one
    putNode(object, 0, numbers);
}

void TypedStreamWriter::writeImage(const Image& image) {
    if (image.isNull()) {
        beginGroup("@");
        put(streamtags::nil);
        return;
    }
    const StoredPointer kept = image.stored.isEmpty() ? nullptr : storedObjectOf(image.stored);
    writeStored(kept ? *kept : imageObject(image));
}

void TypedStreamWriter::putNode(const StoredObject& object, std::int64_t place, std::vector<std::size_t>& numbers) {
    if (place < 0) {
        put(streamtags::nil);
        return;
    }
    const auto& node = object.nodes[static_cast<std::size_t>(place)];
    std::size_t& number = numbers[static_cast<std::size_t>(place)];
    if (number != notWritten) {
        putReference(number - 1);
        return;
    }
    number = nextObject_ + 1;
    put(streamtags::literal);
    ++nextObject_;
    putChain(node.chain);
    for (const auto& group : node.groups) {
        beginGroup({group.types.constData(), static_cast<std::size_t>(group.types.size())});
        for (const auto& value : group.values) {
            value.code == '@' ? putNode(object, value.integer, numbers) : putValue(value);
        }
    }
    endObject();
}

void TypedStreamWriter::putChain(const StoredObject::Chain& chain) {
    if (chain.empty()) {
        put(streamtags::nil);
        return;
    }
    std::vector<Class> classes(chain.size());
    for (std::size_t index = chain.size(); index-- > 0;) {
        const QByteArray& name = chain[index].name;
        classes[index] = {{name.constData(), static_cast<std::size_t>(name.size())},
                          chain[index].version,
                          index + 1 < chain.size() ? &classes[index + 1] : nullptr};
    }
    putClass(classes.front());
}

void TypedStreamWriter::putValue(const StoredObject::Value& value) {
    const std::string_view bytes(value.bytes.constData(), static_cast<std::size_t>(value.bytes.size()));
    switch (value.code) {
        case 'c':
        case 'C':
        case 'B':
            put(static_cast<unsigned char>(value.integer));
            return;
        case 'S':
        case 'I':
        case 'L':
        case 'Q':
            putUnsigned(static_cast<std::uint64_t>(value.integer));
            return;
        case 'f':
            putFloat(static_cast<float>(value.real));
            return;
        case 'd':
            putDouble(value.real);
            return;
        case '#':
            putChain(value.chain);
            return;
        case StoredObject::rawBytes:
            put(bytes);
            return;
        case '+':
        case '*':
        case ':':
        case '%':
            if (value.bytes.isNull()) {
                put(streamtags::nil);
            } else if (value.code == '+') {
                putSigned(static_cast<std::int64_t>(bytes.size()));
                put(bytes);
            } else if (value.code == '*') {
                putCString(bytes);
            } else {
                putSharedString(bytes);
            }
            return;
        default:
            putSigned(value.integer);
    }
}

}  // namespace tavrel
