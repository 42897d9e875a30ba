#include "archive/recordarchive.h"
#include "dives/plongee.h"

#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Reads arbitrary bytes as documents. Records that can be read are written, read again and written again: the two files
// are the same, whether or not numbers are shared, and hold as many records.

namespace {

using namespace tavrel;

// A record of every kind of field in few items, so that more of the inputs get through it.
struct Card : Record {
    Series numbers;
    Image picture;
    QString text;
    Date date;
    qint32 number = 0;
    float depth = 0;
};

constexpr Item cardItems[] = {
    {"numbers", member<&Card::numbers>}, {"picture", member<&Card::picture>},
    {"text", member<&Card::text>},       {"date", member<&Card::date>},
    {"number", member<&Card::number>},   {"depth", member<&Card::depth>, Travel::bitsAsInt},
};
constexpr RecordLayout cardLayout = recordLayout<Card>("Card", 1, cardItems);

void require(QByteArrayView bytes, const RecordLayout& layout) {
    const auto file = readRecords(bytes, layout);
    if (!file) {
        return;
    }
    for (const auto numbers : {SeriesNumbers::shared, SeriesNumbers::literal}) {
        const QByteArray written = writeRecords(file->records, layout, numbers);
        const auto again = readRecords(written, layout);
        if (!again || again->records.size() != file->records.size() ||
            writeRecords(again->records, layout, numbers) != written) {
            std::abort();
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    require(bytes, Plongee::layout());
    require(bytes, cardLayout);
    return 0;
}
