#include "base/numbers.h"

#include "support/printing.h"

#include <cmath>
#include <limits>
#include <tuple>

namespace tavrel {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint32 least = std::numeric_limits<qint32>::min();
constexpr qint32 greatest = std::numeric_limits<qint32>::max();

TEST(Numbers, readTheLeadingNumberOfAText) {
    const std::tuple<const char16_t*, qint32, double> cases[] = {
        {u"12.7 m", 12, 12.7},
        {u" \t\u00a0+12", 12, 12},
        {u"-5", -5, -5},
        {u"18,5", 18, 18.5},
        {u"1,234.5", 1, 1.234},
        {u"1.2.3", 1, 1.2},
        {u".5", 0, 0.5},
        {u"5.", 5, 5},
        {u"1e3", 1, 1000},
        {u"1e", 1, 1},
        {u"2e+x", 2, 2},
        {u"25E-1m", 25, 2.5},
        {u"2147483648", greatest, 2147483648.0},
        {u"-99999999999999999999", least, -1e20},
        {u"1e999", 1, infinity},
        {u"-1e999", -1, -infinity},
        {u"0.0001e400", 0, infinity},
        {u"1e-999", 1, 0},
        {u"0e99999999999999999999", 0, 0},
        {u"4.9e-324", 4, 4.9e-324},
    };
    for (const auto& [text, integer, real] : cases) {
        EXPECT_EQ(integerValue(text), integer) << QString::fromUtf16(text).toStdString();
        EXPECT_EQ(doubleValue(text), real) << QString::fromUtf16(text).toStdString();
    }
    for (const char16_t* text : {u"", u"-", u"-.", u"abc", u"inf", u"nan", u"+-5", u"0x10", u"１２"}) {
        EXPECT_EQ(integerValue(text), 0) << QString::fromUtf16(text).toStdString();
        EXPECT_EQ(doubleValue(text), 0) << QString::fromUtf16(text).toStdString();
    }
    EXPECT_TRUE(startsWithNumber(u" 0"));
    EXPECT_FALSE(startsWithNumber(u"m 0"));
}

TEST(Numbers, readSinglePrecisionWithOneRounding) {
    // Just above the middle of two floats: by way of double it would fall on the middle and go to the even one below.
    EXPECT_EQ(floatValue(u"1.000000059604644775390626"), std::nextafter(1.0F, 2.0F));
    EXPECT_EQ(floatValue(u"1e39"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(floatValue(u"1e-50"), 0.0F);
}

TEST(Numbers, ofFilesTakeOnlyAPoint) {
    const std::pair<const char*, double> cases[] = {
        {"", 0},         {"\n 18,5", 18},   {"+7.25 m", 7.25},   {"+-5", 0},     {"-.5", -0.5},   {"-nan", 0},
        {"infinity", 0}, {"12.360", 12.36}, {"1e999", infinity}, {"-1e-999", 0}, {"\xc3\xa9", 0}, {"300.15", 300.15},
    };
    for (const auto& [text, real] : cases) {
        EXPECT_EQ(doubleInFile(text), real) << text;
        EXPECT_EQ(floatInFile(text), static_cast<float>(real)) << text;
    }
    EXPECT_EQ(integerInFile(" 10.0"), 10);
    EXPECT_EQ(integerInFile("-3000000000"), least);
}

TEST(Numbers, areWrittenWithFixedDecimals) {
    const std::tuple<double, int, const char*> cases[] = {
        {12, 1, "12.0"},        {0.25, 1, "0.2"},         {0.35, 1, "0.3"},
        {-0.04, 1, "-0.0"},     {0.32, 2, "0.32"},        {1e22, 0, "10000000000000000000000"},
        {-infinity, 1, "-inf"}, {std::nan(""), 1, "nan"}, {-std::nan(""), 3, "nan"},
    };
    for (const auto& [value, decimals, text] : cases) {
        std::string written;
        appendFixed(written, value, decimals);
        EXPECT_EQ(written, text);
    }
    EXPECT_EQ(truncated(-23.9), -23);
    EXPECT_EQ(truncated(1e300), greatest);
    EXPECT_EQ(truncated(std::nan("")), 0);
}

TEST(Numbers, showTheShortestTextThatRestoresThem) {
    const std::pair<double, const char*> doubles[] = {
        {0, "0"},        {18, "18"},      {18.5, "18.5"},       {0.1, "0.1"},    {-3.25, "-3.25"},
        {1e5, "100000"}, {1e22, "1e+22"}, {0.00001, "0.00001"}, {1e-7, "1e-07"}, {-infinity, "-inf"}};
    for (const auto& [value, text] : doubles) {
        EXPECT_EQ(shortestText(value), QLatin1String(text));
    }
    EXPECT_EQ(shortestText(123456789012345.0), QLatin1String("123456789012345"));
    EXPECT_EQ(shortestText(std::nan("")), QLatin1String("nan"));
    EXPECT_EQ(shortestText(0.1F), QLatin1String("0.1"));
    EXPECT_EQ(shortestText(16777216.0F), QLatin1String("16777216"));
}

}  // namespace

}  // namespace tavrel
