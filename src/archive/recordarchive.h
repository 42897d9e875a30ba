#pragma once

#include "archive/typedstreamreader.h"
#include "archive/typedstreamwriter.h"
#include "base/failure.h"
#include "base/progress.h"
#include "records/recordlayout.h"

#include <QByteArray>
#include <QByteArrayView>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace tavrel {

/// The records of a document file, and the class version that the first of them was archived with (the version that
/// would be written, when there is none). An archive may hold the same record twice; it is then one shared record here
/// too.
template <class Record>
struct RecordFile {
    int version = 0;
    std::vector<std::shared_ptr<const Record>> records;
};

/// The class of the first record of a document file, which tells the type of document; null when it holds none.
Expected<QString> recordClassOf(QByteArrayView bytes);

namespace recordarchive {

template <class Record>
class Sink final : public RecordSink {
public:
    explicit Sink(const RecordLayout<Record>& layout) : layout_(layout) {}

    std::size_t readRecord(TypedStreamReader& reader, int version) override {
        auto record = std::make_shared<Record>();
        for (const auto& item : layout_.items) {
            if (item.travels(version)) {
                std::visit([&](auto member) { readItem(reader, item.travel, (*record).*member); }, item.field());
                if (!reader.ok()) {
                    break;
                }
            }
        }
        if (layout_.afterReading && reader.ok()) {
            layout_.afterReading(*record, version);
        }
        firstVersion_ = records_.empty() ? version : firstVersion_;
        records_.push_back(std::move(record));
        return records_.size() - 1;
    }

    const std::shared_ptr<const Record>& record(std::size_t index) const { return records_[index]; }
    int version() const { return records_.empty() ? layout_.version : firstVersion_; }

private:
    static void readItem(TypedStreamReader& reader, Travel, qint32& field) { field = reader.readInteger(); }
    static void readItem(TypedStreamReader& reader, Travel travel, float& field) {
        field = travel == Travel::bitsAsInt ? reader.readFloatBits()
                : travel == Travel::integer ? static_cast<float>(reader.readInteger())
                                            : reader.readFloat();
    }
    static void readItem(TypedStreamReader& reader, Travel travel, QString& field) {
        field = travel == Travel::integer ? QString::number(reader.readInteger()) : reader.readText();
    }
    static void readItem(TypedStreamReader& reader, Travel, Date& field) { field = reader.readDate(); }
    static void readItem(TypedStreamReader& reader, Travel, Series& field) { field = reader.readSeries(); }
    static void readItem(TypedStreamReader& reader, Travel, Image& field) { field = reader.readImage(); }

    const RecordLayout<Record>& layout_;
    std::vector<std::shared_ptr<const Record>> records_;
    int firstVersion_ = 0;
};

inline void writeItem(TypedStreamWriter& writer, Travel, qint32 value) {
    writer.writeInteger(value);
}
inline void writeItem(TypedStreamWriter& writer, Travel travel, float value) {
    if (travel == Travel::bitsAsInt) {
        writer.writeFloatBits(value);
    } else if (travel == Travel::integer) {
        writer.writeInteger(Number::ofReal(static_cast<double>(value)).toInt());
    } else {
        writer.writeFloat(value);
    }
}
inline void writeItem(TypedStreamWriter& writer, Travel travel, const QString& value) {
    travel == Travel::integer ? writer.writeInteger(value.toInt()) : writer.writeText(value);
}
inline void writeItem(TypedStreamWriter& writer, Travel, const Date& value) {
    writer.writeDate(value);
}
inline void writeItem(TypedStreamWriter& writer, Travel, const Series& value) {
    writer.writeSeries(value);
}
inline void writeItem(TypedStreamWriter& writer, Travel, const Image& value) {
    writer.writeImage(value);
}

/// How many numbers the series of a record hold.
template <class Record>
std::size_t numbersIn(const Record& record, const RecordLayout<Record>& layout) {
    std::size_t count = 0;
    for (const auto& item : layout.items) {
        if (const auto* series = std::get_if<Series Record::*>(&item.member)) {
            count += (record.*(*series)).size();
        }
    }
    return count;
}

constexpr std::size_t recordsPerProgress = 128;

}  // namespace recordarchive

/// Reads a document file in one pass. Every item that the layout names for the record's class version must stand there
/// in order and with its type; groups beyond them, which a later version may have added, are skipped. Fails as a whole,
/// with the offset of what cannot be read.
template <class Record>
Expected<RecordFile<Record>> readRecords(QByteArrayView bytes, const RecordLayout<Record>& layout,
                                         const Progress& progress = {}) {
    recordarchive::Sink<Record> sink(layout);
    TypedStreamReader reader(bytes, layout.className, &sink);
    const std::size_t count = reader.openRoot();
    RecordFile<Record> file;
    for (std::size_t index = 0; index < count && reader.ok(); ++index) {
        const std::size_t known = reader.readElement();
        if (reader.ok()) {
            file.records.push_back(sink.record(known));
        }
        if (progress && index % recordarchive::recordsPerProgress == 0 && !progress(index, count)) {
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

/// The document file of the records, all items of the layout's version. A record that stands twice in the list is
/// written once.
template <class Record>
QByteArray writeRecords(const std::vector<std::shared_ptr<const Record>>& records, const RecordLayout<Record>& layout,
                        TypedStreamWriter::Numbers numbers = TypedStreamWriter::Numbers::shared) {
    std::size_t samples = 0;
    for (const auto& record : records) {
        samples += recordarchive::numbersIn(*record, layout);
    }
    TypedStreamWriter writer(numbers, samples);
    const TypedStreamWriter::Class recordClass{layout.className, layout.version, &TypedStreamWriter::rootClass};
    writer.beginRoot(records.size());
    for (const auto& record : records) {
        if (writer.beginRecord(recordClass, record.get())) {
            for (const auto& item : layout.items) {
                if (item.travels(layout.version)) {
                    std::visit([&](auto member) { recordarchive::writeItem(writer, item.travel, (*record).*member); },
                               item.member);
                }
            }
            writer.endObject();
        }
    }
    writer.endObject();
    return writer.take();
}

}  // namespace tavrel
