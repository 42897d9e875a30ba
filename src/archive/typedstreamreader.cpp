#include "archive/typedstreamreader.h"

#include "archive/imagearchive.h"
#include "archive/numberrun.h"
#include "archive/typedstreamencoding.h"
#include "records/floatbits.h"

#include <QStringDecoder>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace tavrel {

namespace {

bool isRealCode(char code) {
    return code == 'f' || code == 'd';
}

QString textOf(std::string_view bytes) {
    if (!bytes.data()) {
        return {};
    }
    const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (std::all_of(bytes.begin(), bytes.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; })) {
        return QString::fromLatin1(view);
    }
    // Stateless: a text cut within a character is an error; a byte order mark is a character like any other.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(view);
    return decoder.hasError() ? QString::fromLatin1(view) : text;
}

QString quoted(std::string_view name) {
    return u'"' + textOf(name) + u'"';
}

}  // namespace

// Walks over the values of a group; objects among them are decoded, since later references may name them.
struct TypedStreamReader::SkipHandler {
    TypedStreamReader& reader;

    void integer(char, std::int64_t) const {}
    void real(char, double) const {}
    void text(char, std::string_view) const {}
    void classValue(std::int32_t) const {}
    void object() const { reader.readObject(); }
    void bytes(std::string_view) const {}
    void beginList() const {}
    void endList() const {}
};

TypedStreamReader::TypedStreamReader(QByteArrayView bytes, std::string_view recordClass, RecordSink* sink,
                                     SeriesPath path)
    : scanner_(bytes, recordClass),
      numbers_(path == SeriesPath::fast ? std::make_unique<NumberRun>(scanner_) : nullptr),
      sink_(sink),
      storedObjects_(scanner_, [this](std::size_t number) {
          const ObjectEntry& entry = scanner_.objects()[number];
          return entry.kind() == Holds::text ? std::optional(texts_[entry.payload()].toUtf8()) : std::nullopt;
      }) {}

TypedStreamReader::~TypedStreamReader() = default;

std::size_t TypedStreamReader::openRoot() {
    scanner_.readHeader();
    requireObjectGroup(StreamFault::rootNotArray);
    const std::size_t start = scanner_.offset();
    const ObjectHead head = scanner_.readObjectHead();
    if (scanner_.ok() &&
        (head.form != ObjectHead::literal || scanner_.classAt(head.classIndex).kind != ValueClass::array)) {
        scanner_.fail(StreamFault::rootNotArray, start);
    }
    return scanner_.ok() ? readCount() : 0;
}

std::size_t TypedStreamReader::readElement() {
    const std::size_t start = scanner_.offset();
    requireObjectGroup(StreamFault::wrongClass);
    const ObjectHead head = scanner_.readObjectHead();
    if (!scanner_.ok()) {
        return 0;
    }
    ObjectEntry entry;
    switch (head.form) {
        case ObjectHead::nil:
            scanner_.fail(StreamFault::wrongClass, start, QStringLiteral("nil"));
            return 0;
        case ObjectHead::reference:
            entry = scanner_.objects()[head.number];
            break;
        case ObjectHead::literal:
            if (const StreamClass& klass = scanner_.classAt(head.classIndex); klass.kind != ValueClass::record) {
                scanner_.fail(StreamFault::wrongClass, start, quoted(klass.name));
                return 0;
            }
            entry = decode(head);
    }
    if (scanner_.ok() && entry.kind() != Holds::record) {
        scanner_.fail(StreamFault::wrongClass, start);
    }
    return entry.payload();
}

TypedStreamReader::ElementClass TypedStreamReader::nextElementClass() {
    const std::size_t start = scanner_.offset();
    requireObjectGroup(StreamFault::wrongClass);
    const ObjectHead head = scanner_.readObjectHead();
    if (scanner_.ok() && head.form != ObjectHead::literal) {
        scanner_.fail(StreamFault::wrongClass, start);
    }
    if (!scanner_.ok()) {
        return {};
    }
    const StreamClass& found = scanner_.classAt(head.classIndex);
    return {textOf(found.name), found.version};
}

QColor TypedStreamReader::readRootColor() {
    scanner_.readHeader();
    requireObjectGroup(StreamFault::noColor);
    const ObjectEntry entry = readObject();
    if (scanner_.ok() && entry.kind() != Holds::color) {
        scanner_.fail(StreamFault::noColor);
    }
    return scanner_.ok() ? colors_[entry.payload()] : QColor();
}

// At a group of a record; false when the record ends instead.
bool TypedStreamReader::startItem() {
    if (scanner_.hasGroup()) {
        return true;
    }
    scanner_.fail(StreamFault::missingItem);
    return false;
}

qint32 TypedStreamReader::readAnyInteger() {
    if (!startItem()) {
        return 0;
    }
    const std::size_t start = scanner_.offset();
    const char code = scanner_.readTypeCode();
    if (!isIntegerCode(code)) {
        scanner_.fail(StreamFault::wrongItemType, start);
        return 0;
    }
    const std::int64_t value = scanner_.readInteger(code);
    if (value < std::numeric_limits<qint32>::min() || value > std::numeric_limits<qint32>::max()) {
        scanner_.fail(StreamFault::valueOutOfRange, start);
        return 0;
    }
    return static_cast<qint32>(value);
}

float TypedStreamReader::readFloat() {
    if (!startItem()) {
        return 0;
    }
    const std::size_t start = scanner_.offset();
    switch (scanner_.readTypeCode()) {
        case 'f':
            return scanner_.readFloat();
        case 'd':
            return narrowed(scanner_.readDouble());
        default:
            scanner_.fail(StreamFault::wrongItemType, start);
            return 0;
    }
}

float TypedStreamReader::readFloatBits() {
    return std::bit_cast<float>(readInteger());
}

QString TypedStreamReader::readAnyText() {
    const ObjectEntry entry = readItemObject();
    if (entry.kind() == Holds::text) {
        const QString& text = texts_[entry.payload()];
        scanner_.spend(static_cast<std::size_t>(text.size()));
        return text;
    }
    requireOpaque(entry);
    return {};
}

Date TypedStreamReader::readDate() {
    const ObjectEntry entry = readItemObject();
    if (entry.kind() == Holds::date) {
        return dates_[entry.payload()];
    }
    requireOpaque(entry);
    return {};
}

Series TypedStreamReader::readSeries() {
    const ObjectEntry entry = readItemObject();
    if (entry.kind() == Holds::series) {
        // A number written out takes some characters.
        const Series& series = series_[entry.payload()];
        scanner_.spend(4 * series.size());
        return series;
    }
    if (entry.kind() == Holds::otherArray) {
        scanner_.fail(StreamFault::notNumber, entry.payload());
    } else {
        requireOpaque(entry);
    }
    return {};
}

Image TypedStreamReader::readImage() {
    if (!startItem()) {
        return {};
    }
    itemStart_ = scanner_.offset();
    requireObjectGroup(StreamFault::wrongItemType);
    if (!scanner_.nextIsLiteral()) {
        return readKnownImage();
    }
    // Walked twice: once whatever it is, so that it can be written again as it was, and once for the picture in it.
    const auto start = scanner_.mark();
    const StoredPointer object = storedObjects_.read();
    scanner_.rewind(start);
    const ObjectEntry entry = scanner_.ok() ? readObject() : ObjectEntry();
    Image image;
    if (entry.kind() == Holds::image) {
        image = images_[entry.payload()];
    } else if (entry.kind() == Holds::bitmap) {
        image.tiff = bitmaps_[entry.payload()];
    } else {
        requireOpaque(entry);
    }
    if (!scanner_.ok()) {
        return {};
    }
    image.stored = layoutToKeep(*object, image);
    pictures_[start.objects] = image;
    return image;
}

// Nil, or one that stood before.
Image TypedStreamReader::readKnownImage() {
    const ObjectHead head = scanner_.ok() ? scanner_.readObjectHead() : ObjectHead();
    if (!scanner_.ok() || head.form == ObjectHead::nil) {
        return {};
    }
    if (const auto known = pictures_.find(head.number); known != pictures_.end()) {
        return known->second;
    }
    const ObjectEntry& entry = scanner_.objects()[head.number];
    if (entry.kind() == Holds::image) {
        const Image& image = images_[entry.payload()];
        scanner_.spend(static_cast<std::size_t>(image.tiff.size()));
        return image;
    }
    requireOpaque(entry);
    return {};
}

// Nil and objects of unknown classes stand for no value; what the reader knows must be of the item's kind.
void TypedStreamReader::requireOpaque(const ObjectEntry& entry) {
    if (entry.kind() != Holds::opaque) {
        scanner_.fail(StreamFault::wrongItemObject, itemStart_);
    }
}

ObjectEntry TypedStreamReader::readItemObject() {
    if (!startItem()) {
        return {};
    }
    itemStart_ = scanner_.offset();
    requireObjectGroup(StreamFault::wrongItemType);
    return scanner_.ok() ? readObject() : ObjectEntry();
}

void TypedStreamReader::requireObjectGroup(StreamFault fault) {
    const std::size_t start = scanner_.offset();
    if (scanner_.readTypeCode() != '@') {
        scanner_.fail(fault, start);
    }
}

// Nil reads as an opaque entry.
ObjectEntry TypedStreamReader::readObject() {
    const ObjectHead head = scanner_.readObjectHead();
    switch (head.form) {
        case ObjectHead::nil:
            return {};
        case ObjectHead::reference:
            return scanner_.objects()[head.number];
        case ObjectHead::literal:
            break;
    }
    return decode(head);
}

ObjectEntry TypedStreamReader::decode(const ObjectHead& head) {
    if (depth_ == TypedStreamScanner::maximumDepth) {
        scanner_.fail(StreamFault::tooDeep);
        return {};
    }
    ++depth_;
    ObjectEntry entry;
    switch (scanner_.classAt(head.classIndex).kind) {
        case ValueClass::array:
            entry = decodeSeries();
            break;
        case ValueClass::text:
            entry = decodeText();
            break;
        case ValueClass::date:
            entry = decodeDate();
            break;
        case ValueClass::number:
            entry = decodeNumber();
            break;
        case ValueClass::color:
            entry = decodeColor();
            break;
        case ValueClass::bitmap:
            entry = decodeBitmap();
            break;
        case ValueClass::image:
            entry = decodeImage();
            break;
        case ValueClass::record:
            entry = decodeRecord(head.classIndex);
            break;
        case ValueClass::other:
            break;
    }
    skipGroups();
    scanner_.readObjectEnd();
    --depth_;
    scanner_.objects()[head.number] = entry;
    return entry;
}

void TypedStreamReader::skipGroup(std::string_view types) {
    SkipHandler handler{*this};
    EncodingWalk(scanner_, handler).group(types);
}

void TypedStreamReader::skipGroups() {
    while (scanner_.ok() && scanner_.hasGroup()) {
        const std::string_view types = scanner_.readType();
        if (scanner_.ok()) {
            skipGroup(types);
        }
    }
}

// A value object is known by the first group of the type that it must hold; others before it, which a subclass may have
// written, are skipped. One without such a group stays opaque.

ObjectEntry TypedStreamReader::decodeText() {
    while (scanner_.ok() && scanner_.hasGroup()) {
        const std::string_view types = scanner_.readType();
        if (types == "+") {
            const std::string_view bytes = scanner_.readUnsharedString();
            return keep(texts_, Holds::text, textOf(bytes));
        }
        skipGroup(types);
    }
    return {};
}

ObjectEntry TypedStreamReader::decodeDate() {
    while (scanner_.ok() && scanner_.hasGroup()) {
        const std::string_view types = scanner_.readType();
        if (types == "d") {
            return keep(dates_, Holds::date, Date(scanner_.readDouble()));
        }
        skipGroup(types);
    }
    return {};
}

// The type code of the number, then the number in a group of that type.
ObjectEntry TypedStreamReader::decodeNumber() {
    while (scanner_.ok() && scanner_.hasGroup()) {
        const std::string_view types = scanner_.readType();
        if (types != "*") {
            skipGroup(types);
            continue;
        }
        const std::string_view announced = scanner_.readCString();
        if (!scanner_.ok() || !scanner_.hasGroup()) {
            return {};
        }
        const std::string_view type = scanner_.readType();
        const char code = type.size() == 1 ? type[0] : '\0';
        const std::size_t start = scanner_.offset();
        if (type != announced || (!isIntegerCode(code) && !isRealCode(code))) {
            skipGroup(type);
            return {};
        }
        skipGroup(type);
        return ObjectEntry(Holds::number, start, code);
    }
    return {};
}

std::size_t TypedStreamReader::readCount() {
    const std::size_t typeStart = scanner_.offset();
    const char code = scanner_.hasGroup() ? scanner_.readTypeCode() : '\0';
    if (!isIntegerCode(code)) {
        scanner_.fail(StreamFault::wrongItemType, typeStart);
        return 0;
    }
    const std::size_t start = scanner_.offset();
    const std::int64_t count = scanner_.readInteger(code);
    // Every element takes a type and a value, so two bytes at least.
    if (count < 0 || static_cast<std::uint64_t>(count) > scanner_.bytesLeft() / 2) {
        scanner_.fail(StreamFault::countTooLarge, start);
        return 0;
    }
    return static_cast<std::size_t>(count);
}

ObjectEntry TypedStreamReader::decodeSeries() {
    const std::size_t count = readCount();
    Series series = Series::empty();
    std::size_t foreign = 0;  // offset of the first element that is no number
    for (std::size_t index = 0; index < count && scanner_.ok(); ++index) {
        if (numbers_ && foreign == 0) {
            index += numbers_->read(count - index, series);
            if (index == count) {
                break;
            }
        }
        const std::size_t start = scanner_.offset();
        const std::size_t known = scanner_.definitions();
        requireObjectGroup(StreamFault::wrongItemType);
        const ObjectEntry entry = scanner_.ok() ? readObject() : ObjectEntry();
        if (numbers_ && entry.kind() == Holds::number && scanner_.definitions() == known + 1) {
            numbers_->learn(start, entry);
        }
        if (entry.kind() != Holds::number) {
            foreign = foreign ? foreign : start;
        } else if (!foreign) {
            series.append(numberOf(entry));
        }
    }
    return foreign ? ObjectEntry(Holds::otherArray, foreign) : keep(series_, Holds::series, std::move(series));
}

Number TypedStreamReader::numberOf(const ObjectEntry& entry) {
    const std::size_t here = scanner_.offset();
    scanner_.seek(entry.payload());
    const char code = entry.code();
    Number number{code, 0, 0.0};
    if (code == 'd') {
        number.real = scanner_.readDouble();
    } else if (code == 'f') {
        number.real = widened(scanner_.readFloat());
    } else {
        number.integer = scanner_.readInteger(code);
    }
    scanner_.seek(here);
    return number;
}

ObjectEntry TypedStreamReader::decodeColor() {
    while (scanner_.ok() && scanner_.hasGroup()) {
        const std::string_view types = scanner_.readType();
        if (types == "c") {
            const QColor color = readColorOfKind(scanner_.readInteger('c'));
            return color.isValid() ? keep(colors_, Holds::color, color) : ObjectEntry();
        }
        skipGroup(types);
    }
    return {};
}

// The components in 0 to 1, or the colour itself for a named one; invalid when they do not follow.
QColor TypedStreamReader::readColorOfKind(std::int64_t kind) {
    if (!scanner_.ok() || !scanner_.hasGroup()) {
        return {};
    }
    const std::string_view types = scanner_.readType();
    if (kind == 6 && types == "@@@") {
        readObject();
        readObject();
        const ObjectEntry entry = readObject();
        return entry.kind() == Holds::color ? colors_[entry.payload()] : QColor();
    }
    const std::size_t count = kind == 1 || kind == 2 ? 4 : kind == 3 || kind == 4 ? 2 : kind == 5 ? 5 : 0;
    if (count == 0 || types != std::string_view("fffff").substr(0, count)) {
        skipGroup(types);
        return {};
    }
    float components[5] = {};
    for (std::size_t index = 0; index < count; ++index) {
        const float value = scanner_.readFloat();
        components[index] = std::isnan(value) ? 0.0F : std::clamp(value, 0.0F, 1.0F);
    }
    const auto& [first, second, third, fourth, fifth] = components;
    switch (count) {
        case 2:
            return QColor::fromRgbF(first, first, first, second);
        case 4:
            return QColor::fromRgbF(first, second, third, fourth);
        default:
            return QColor::fromCmykF(first, second, third, fourth, fifth).toRgb();
    }
}

ObjectEntry TypedStreamReader::decodeBitmap() {
    // A length, then that many bytes.
    while (scanner_.ok() && scanner_.hasGroup()) {
        const std::string_view types = scanner_.readType();
        if (types.size() > 3 && types.front() == '[' && (types.ends_with("c]") || types.ends_with("C]"))) {
            const std::size_t start = scanner_.offset();
            skipGroup(types);
            if (!scanner_.ok()) {
                return {};
            }
            const std::size_t length = scanner_.offset() - start;
            scanner_.seek(start);
            const std::string_view tiff = scanner_.readRaw(length);
            return keep(bitmaps_, Holds::bitmap, QByteArray(tiff.data(), static_cast<qsizetype>(tiff.size())));
        }
        skipGroup(types);
    }
    return {};
}

ObjectEntry TypedStreamReader::decodeImage() {
    Image image;
    bool hasSize = false;
    while (scanner_.ok() && scanner_.hasGroup()) {
        const std::string_view types = scanner_.readType();
        if (types == "ff" && !hasSize) {
            image.width = scanner_.readFloat();
            image.height = scanner_.readFloat();
            hasSize = true;
        } else if (types == "@") {
            const ObjectEntry entry = readObject();
            if (entry.kind() == Holds::bitmap && image.tiff.isEmpty()) {
                image.tiff = bitmaps_[entry.payload()];
            }
        } else {
            skipGroup(types);
        }
    }
    return image.tiff.isEmpty() ? ObjectEntry() : keep(images_, Holds::image, std::move(image));
}

// The class of a record may be a subclass; the version that counts is that of the record class itself.
ObjectEntry TypedStreamReader::decodeRecord(std::int32_t classIndex) {
    const StreamClass* klass = &scanner_.classAt(classIndex);
    while (klass->name != scanner_.recordClass()) {
        klass = &scanner_.classAt(klass->superclass);
    }
    const auto version =
        std::clamp<std::int64_t>(klass->version, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    return ObjectEntry(Holds::record, sink_->readRecord(*this, static_cast<int>(version)));
}

}  // namespace tavrel
