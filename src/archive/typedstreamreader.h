#pragma once

#include "archive/seriespath.h"
#include "archive/storedobject.h"
#include "archive/typedstreamscanner.h"
#include "records/date.h"
#include "records/image.h"
#include "records/series.h"

#include <QColor>
#include <QString>

#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

namespace tavrel {

class NumberRun;
class TypedStreamReader;

/// Takes the records of a stream: reads the items of one whose class has that version and keeps it; returns the index
/// under which it is known from then on.
class RecordSink {
public:
    RecordSink() = default;
    RecordSink(const RecordSink&) = delete;
    RecordSink& operator=(const RecordSink&) = delete;
    virtual ~RecordSink() = default;
    virtual std::size_t readRecord(TypedStreamReader& reader, int version) = 0;
};

/// Reads the objects of a typed stream into the program's values in one pass. Objects of classes that it does not know
/// are skipped, group by group. As with the scanner the first fault sticks; what is read after it is empty.
///
/// Texts are UTF-8; one that is not is taken as Latin-1, so that each of its bytes survives as a character.
class TypedStreamReader {
public:
    /// Without a record class every record is an object that is skipped.
    explicit TypedStreamReader(QByteArrayView bytes, std::string_view recordClass = {}, RecordSink* sink = nullptr,
                               SeriesPath path = SeriesPath::fast);
    ~TypedStreamReader();

    TypedStreamReader(const TypedStreamReader&) = delete;
    TypedStreamReader& operator=(const TypedStreamReader&) = delete;

    bool ok() const { return scanner_.ok(); }
    Failure failure() const { return scanner_.failure(); }
    void fail(StreamFault fault) { scanner_.fail(fault); }

    /// Reads up to the first element of the root array; the number of elements.
    std::size_t openRoot();
    /// Reads the next element of the root array; the index that the sink gave to it.
    std::size_t readElement();
    /// Reads the end of the root array. What follows in the data is of no concern.
    void closeRoot() { scanner_.readObjectEnd(); }
    struct ElementClass {
        QString name;
        std::int64_t version = 0;
    };
    /// The class of the root array's next element, which is a literal.
    ElementClass nextElementClass();
    /// Reads the root object of an archived colour.
    QColor readRootColor();

    // The items of a record, each a group of its own. An integer may travel under any integer code that holds it, a
    // float under f or d. Objects of unknown classes read as nil.
    qint32 readInteger() {
        const auto small = scanner_.takeSmallInteger();
        return small ? *small : readAnyInteger();
    }
    float readFloat();
    float readFloatBits();
    QString readText() { return scanner_.takeNil() ? QString() : readAnyText(); }
    Date readDate();
    Series readSeries();
    Image readImage();

private:
    struct SkipHandler;

    qint32 readAnyInteger();
    QString readAnyText();
    ObjectEntry readObject();
    ObjectEntry decode(const ObjectHead& head);
    ObjectEntry readItemObject();
    void skipGroup(std::string_view types);
    void skipGroups();
    void requireObjectGroup(StreamFault fault);
    bool startItem();
    Image readKnownImage();
    void requireOpaque(const ObjectEntry& entry);

    ObjectEntry decodeText();
    ObjectEntry decodeDate();
    ObjectEntry decodeNumber();
    ObjectEntry decodeSeries();
    ObjectEntry decodeColor();
    ObjectEntry decodeBitmap();
    ObjectEntry decodeImage();
    ObjectEntry decodeRecord(std::int32_t classIndex);
    QColor readColorOfKind(std::int64_t kind);

    std::size_t readCount();
    Number numberOf(const ObjectEntry& entry);

    template <class Value>
    static ObjectEntry keep(std::vector<Value>& list, Holds kind, Value value) {
        list.push_back(std::move(value));
        return ObjectEntry(kind, list.size() - 1);
    }

    TypedStreamScanner scanner_;
    std::unique_ptr<NumberRun> numbers_;  // null on the plain path
    RecordSink* sink_;
    int depth_ = 0;
    std::size_t itemStart_ = 0;
    std::vector<QString> texts_;
    std::vector<Date> dates_;
    std::vector<Series> series_;
    std::vector<QColor> colors_;
    std::vector<QByteArray> bitmaps_;
    std::vector<Image> images_;
    StoredObjectReader storedObjects_;
    std::map<std::size_t, Image> pictures_;  // what items of pictures held, by the object's number
};

}  // namespace tavrel
