#include "archive/recordarchive.h"
#include "records/floatbits.h"
#include "support/printing.h"

#include <cmath>
#include <limits>

namespace tavrel {

namespace {

struct Pair : Record {
    Series one, two;
};

constexpr Item pairItems[] = {{"one", member<&Pair::one>}, {"two", member<&Pair::two>}};
constexpr RecordLayout pairLayout = recordLayout<Pair>("Pair", 1, pairItems);

/// Series of every type and size of number, of one type and of several, with repetitions and without.
std::vector<Series> variedSeries() {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    std::vector<Series> all(7, Series::empty());
    for (int index = 0; index < 300; ++index) {
        all[0].appendReal(index % 7 == 0 ? -0.0 : std::sin(index / 40));
        all[1].append(Number::ofReal(widened(static_cast<float>(index % 50) / 8), 'f'));
        all[2].appendInteger(index * index * 97 - 40000);
        all[3].append(Number::ofInteger(index % 3 - 1, index < 200 ? 'c' : 's'));
        all[4].append(Number::ofInteger(index % 5 == 0 ? std::int64_t{-5000000000} - index % 2 : index, 'q'));
        all[5].append(Number::ofInteger(std::int64_t{index} * 1000, 'I'));
    }
    for (const char code : {'c', 'C', 's', 'S', 'i', 'I', 'l', 'L', 'q', 'Q', 'B', 'c'}) {
        all[6].append(Number::ofInteger(100, code));
        all[6].append(Number::ofInteger(1, code));
    }
    for (const double value : {0.0, -0.0, 1e300, nan, -nan, 127.0, 128.0, -110.0, -111.0, 2147483648.0}) {
        all[6].appendReal(value);
    }
    all[6].append(Number::ofInteger(std::numeric_limits<std::int64_t>::min(), 'Q'));
    return all;
}

RecordList records() {
    RecordList list;
    for (const Series& series : variedSeries()) {
        auto pair = std::make_shared<Pair>();
        pair->one = series;
        pair->two = series;
        pair->two.appendInteger(8);
        list.push_back(pair);
    }
    return list;
}

TEST(SeriesPaths, writeAndReadTheSame) {
    for (const auto numbers : {SeriesNumbers::shared, SeriesNumbers::literal}) {
        const QByteArray fast = writeRecords(records(), pairLayout, numbers, SeriesPath::fast);
        ASSERT_EQ(fast, writeRecords(records(), pairLayout, numbers, SeriesPath::plain));
        for (const auto path : {SeriesPath::fast, SeriesPath::plain}) {
            const auto file = readRecords(fast, pairLayout, {}, path);
            ASSERT_TRUE(file) << file.error().message().toStdString();
            EXPECT_EQ(writeRecords(file->records, pairLayout, numbers, SeriesPath::plain), fast);
        }
    }
}

TEST(SeriesPaths, refuseTheSame) {
    const QByteArray whole = writeRecords(records(), pairLayout);
    const auto refusal = [](const QByteArray& bytes, SeriesPath path) {
        const auto file = readRecords(bytes, pairLayout, {}, path);
        return file ? QString() : file.error().message();
    };
    constexpr qsizetype places = 40;
    int refused = 0;
    for (qsizetype place = 1; place <= places; ++place) {
        const qsizetype at = whole.size() * place / (places + 1);
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
        for (const QByteArray& bytes : {damaged, whole.left(at)}) {
            const QString reason = refusal(bytes, SeriesPath::fast);
            ASSERT_EQ(reason, refusal(bytes, SeriesPath::plain)) << at;
            refused += reason.isEmpty() ? 0 : 1;
        }
    }
    EXPECT_GE(refused, places) << "at least what is cut off";
}

}  // namespace

}  // namespace tavrel
