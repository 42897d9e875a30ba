#pragma once

#include "archive/numberwriter.h"
#include "archive/seriespath.h"
#include "archive/storedobject.h"
#include "records/date.h"
#include "records/image.h"
#include "records/series.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tavrel {

/// Writes a typed stream: little-endian, every value in its shortest form, each item in a group of its own.
///
/// Objects that never change are written once and then referred to: numbers equal in type and bits, equal texts, equal
/// dates. Arrays and images, which their readers may change, are written out each time.
class TypedStreamWriter {
public:
    struct Class {
        std::string_view name;
        std::int64_t version;
        const Class* superclass;
    };
    // Classes of the platform that the parts of the writer share.
    static const Class rootClass;  ///< NSObject
    static const Class mutableArrayClass;
    static const Class numberClass;

    /// Sets memory aside for so many numbers in series beside the first bytes; what is not needed takes none.
    explicit TypedStreamWriter(SeriesNumbers numbers = SeriesNumbers::shared, std::size_t expectedNumbers = 0,
                               SeriesPath path = SeriesPath::fast);

    /// The root array; its elements follow, then endObject().
    void beginRoot(std::size_t count);
    /// An element of the root array; its items follow, then endObject(). False when the record of that address was
    /// written before: the element is then complete.
    bool beginRecord(const Class& recordClass, const void* record);
    void endObject();

    void writeInteger(qint32 value);
    void writeFloat(float value);
    /// The 32 bits of the float as an integer.
    void writeFloatBits(float value);
    void writeText(const QString& text);
    void writeDate(const Date& date);
    void writeSeries(const Series& series);
    void writeImage(const Image& image);
    /// An object as it was read.
    void writeStored(const StoredObject& object);
    /// A colour as the root object: red, green, blue and alpha, or white and alpha; each 0 to 1, calibrated.
    void writeRootColor(std::span<const float> components);

    /// The whole stream.
    QByteArray take();

private:
    friend class FastNumberWriter;
    friend class PlainNumberWriter;

    struct KnownClass {
        std::string name;
        std::int64_t version;
        std::size_t number;
    };
    struct Reference {
        std::array<char, 8> bytes;
        int size;
    };

    // Room for so many bytes at position_.
    char* room(std::size_t count) {
        if (static_cast<std::size_t>(end_ - position_) < count) {
            grow(count);
        }
        return position_;
    }
    void put(unsigned char byte) {
        *room(1) = static_cast<char>(byte);
        ++position_;
    }
    void grow(std::size_t count);
    void put(std::string_view bytes);
    void putSigned(std::int64_t value);
    void putUnsigned(std::uint64_t value);
    void putWord(unsigned char tag, std::uint64_t word, int bytes);
    void putFloat(float value);
    void putDouble(double value);
    void putReference(std::size_t number);
    void putSharedString(std::string_view text);
    void putCString(std::string_view text);
    void putClass(const Class& description);
    void putNode(const StoredObject& object, std::int64_t place, std::vector<std::size_t>& numbers);
    void putChain(const StoredObject::Chain& chain);
    void putValue(const StoredObject::Value& value);
    void putByteGroup(unsigned char value);
    void beginGroup(std::string_view types) { putSharedString(types); }
    void beginLiteral(const Class& description);

    std::unique_ptr<NumberWriter> numbers_;
    QByteArray buffer_;
    char* position_;
    char* end_;
    std::size_t nextObject_ = 0;
    std::map<std::string, std::size_t, std::less<>> strings_;
    std::array<Reference, 128> codeReferences_{};  // of the strings of a single code, size 0 while not written
    std::map<std::string, std::size_t, std::less<>> cStrings_;
    std::vector<KnownClass> classes_;  // a few
    QHash<QString, std::size_t> texts_;
    QHash<quint64, std::size_t> dates_;
    QHash<const void*, std::size_t> records_;
    QHash<const void*, std::size_t> series_;  // those whose numbers others may share
};

}  // namespace tavrel
