#include "archive/recordarchive.h"
#include "dives/plongee.h"
#include "records/floatbits.h"

#include <QByteArrayView>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

// Reads and writes every input on the fast path of series and on the plain one, and compares. The input is taken as a
// document as it is, and as a description of a series, of which a document is made.

namespace {

using namespace tavrel;

struct Card : Record {
    Series numbers, more;
};

constexpr Item cardItems[] = {{"numbers", member<&Card::numbers>}, {"more", member<&Card::more>}};
constexpr RecordLayout cardLayout = recordLayout<Card>("Card", 1, cardItems);

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

QByteArray writtenBothWays(const RecordList& records, const RecordLayout& layout, SeriesNumbers numbers) {
    QByteArray bytes = writeRecords(records, layout, numbers, SeriesPath::fast);
    require(bytes == writeRecords(records, layout, numbers, SeriesPath::plain));
    return bytes;
}

void compareReading(QByteArrayView bytes, const RecordLayout& layout) {
    const auto fast = readRecords(bytes, layout, {}, SeriesPath::fast);
    const auto plain = readRecords(bytes, layout, {}, SeriesPath::plain);
    require(fast.has_value() == plain.has_value());
    if (!fast) {
        require(fast.error().message() == plain.error().message());
        return;
    }
    for (const auto numbers : {SeriesNumbers::shared, SeriesNumbers::literal}) {
        require(writtenBothWays(fast->records, layout, numbers) == writtenBothWays(plain->records, layout, numbers));
    }
}

std::int64_t asType(char code, std::uint64_t bits) {
    switch (code) {
        case 'c':
            return static_cast<std::int8_t>(bits);
        case 'C':
        case 'B':
            return static_cast<std::uint8_t>(bits);
        case 's':
            return static_cast<std::int16_t>(bits);
        case 'S':
            return static_cast<std::uint16_t>(bits);
        case 'i':
            return static_cast<std::int32_t>(bits);
        case 'I':
            return static_cast<std::uint32_t>(bits);
        default:
            return std::bit_cast<std::int64_t>(bits);
    }
}

/// A byte that says the type, whether the number before comes again, and how many bytes of the value follow.
Series described(const std::uint8_t* data, std::size_t size) {
    constexpr std::string_view codes = "dfiqcsCSIQlLBddi";
    Series series = Series::empty();
    Number last;
    for (std::size_t at = 0; at < size;) {
        const std::uint8_t head = data[at++];
        const std::size_t wanted = (std::size_t{1} << (head >> 4 & 3)) % 8;
        const std::size_t taken = std::min(wanted, size - at);
        std::uint64_t bits = 0;
        std::memcpy(&bits, data + at, taken);
        at += taken;
        if (head < 0xc0) {
            const char code = codes[head & 0x0f];
            last = code == 'd'   ? Number::ofReal(std::bit_cast<double>(head & 0x40 ? bits << 48 : bits))
                   : code == 'f' ? Number::ofReal(widened(std::bit_cast<float>(static_cast<std::uint32_t>(bits))), 'f')
                                 : Number::ofInteger(asType(code, bits), code);
        }
        for (int times = head >= 0xf0 ? 300 : 1; times > 0; --times) {
            series.append(last);
        }
    }
    return series;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    compareReading(bytes, Plongee::layout());
    compareReading(bytes, cardLayout);

    const auto card = std::make_shared<Card>();
    card->numbers = described(data, size);
    card->more = described(data + size / 2, size - size / 2);
    for (const auto numbers : {SeriesNumbers::shared, SeriesNumbers::literal}) {
        const QByteArray written = writtenBothWays({card, std::make_shared<Card>(*card)}, cardLayout, numbers);
        compareReading(written, cardLayout);
        // Damaged in one place.
        if (size > 2) {
            QByteArray damaged = written;
            damaged[(data[0] * 256 + data[1]) % damaged.size()] = static_cast<char>(data[2]);
            compareReading(damaged, cardLayout);
        }
    }
    return 0;
}
