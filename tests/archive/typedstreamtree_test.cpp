#include "archive/typedstreamtree.h"

#include "archive/colorarchive.h"
#include "support/streambytes.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrel {
namespace {

// An object of class 1 holding one of everything; then the same object again.
constexpr std::string_view everything = R"(
    04 "typedstream" 8103e8
    84"@" 84 8484"Thing"03 8484"NSObject"00 85
        84"ifd" 96 83 3dcccccd 83 7ff8000000000000
        84"+" 02 c3a9 96 02 ff41
        84"*" 84 84"Bo"
        84"#" 93
        84"[3c]" 414243
        84"{_Point=ff}[2s]" 0102 8181ff03
        84"Q" 87 ffffffffffffffff
        92 85
    86
    92 92)";

TEST(TypedStreamTree, WritesEveryKindOfValue) {
    JsonWriter json;
    const auto written = writeStreamJson(json, streamBytes(everything));
    ASSERT_TRUE(written) << written.error().message().toStdString();
    EXPECT_EQ(
        json.text(),
        R"({"byteOrder": "big", "system": 1000, "groups": [[["@"], [{"id": 0, "classes": )"
        R"([["Thing", 3], ["NSObject", 0]], "groups": [[["i", "f", "d"], [-106, 0.1, "nan"]], )"
        R"([["+"], ["é"]], [["+"], [{"hex": "ff41"}]], [["*"], ["Bo"]], [["#"], [[["Thing", 3], ["NSObject", 0]]]], )"
        R"([["[3c]"], [{"hex": "414243"}]], [["{_Point=ff}", "[2s]"], [[1, 2], [-32257, 3]]], )"
        R"([["Q"], [18446744073709551615]], [["@"], [null]]]}]], [["@"], [{"ref": 0}]]]})");
}

TEST(TypedStreamTree, CountsAndWritesNothingOfWhatIsDamaged) {
    const QByteArray whole = streamBytes(everything);
    const auto summary = inspectStream(whole);
    ASSERT_TRUE(summary);
    EXPECT_FALSE(summary->littleEndian);
    EXPECT_EQ(std::tuple(summary->groups, summary->objects, summary->references), std::tuple(2U, 1U, 1U));
    ASSERT_EQ(summary->classes.size(), 2U);
    EXPECT_EQ(summary->classes[0].objects, 1U);

    constexpr qsizetype header = 16;
    for (qsizetype length = 0; length < whole.size() - 2; ++length) {
        if (length == header) {
            continue;  // a stream without groups is whole
        }
        std::string taken;
        JsonWriter json([&](std::string_view piece) { taken += piece; });
        EXPECT_FALSE(writeStreamJson(json, QByteArrayView(whole).first(length))) << length;
        EXPECT_EQ(taken + json.text(), "") << length;
    }
}

TEST(TypedStreamTree, RefusesWhatUnfoldsBeyondItsBytes) {
    const QByteArray header = streamBytes(R"(04 "typedstream" 8103e8)");
    const auto text = [](const QByteArray& characters) {
        const auto size = static_cast<std::uint32_t>(characters.size());
        QByteArray bytes = streamBytes("8482");
        for (int shift = 24; shift >= 0; shift -= 8) {
            bytes += static_cast<char>(size >> shift & 0xff);
        }
        return bytes + characters;
    };
    const QByteArray nested =
        QByteArray("[1").repeated(30) + '{' + QByteArray(800, 'a') + "=c}" + QByteArray("]").repeated(30);
    const QByteArray cases[] = {
        // A type of many steps for one byte, named by one byte each time.
        header + text(nested) + 'x' + streamBytes("92 41").repeated(50'000),
        // Structures of nothing.
        header + text(QByteArray("{=}").repeated(341)) + streamBytes("92").repeated(300'000),
        // A long text, and a class of a long name, that are named again and again.
        header + streamBytes(R"(84"*" 84)") + text(QByteArray(100'000, 'a')) + streamBytes("92 92").repeated(10'000),
        header + streamBytes(R"(84"@" 84 84)") + text(QByteArray(100'000, 'C')) + streamBytes("00 85 86") +
            streamBytes("92 84 93 86").repeated(10'000),
    };
    for (const QByteArray& bytes : cases) {
        JsonWriter json;
        const auto written = writeStreamJson(json, bytes);
        ASSERT_FALSE(written);
        EXPECT_EQ(written.error().sentence, u"The file unfolds to far more than it could mean.");
        EXPECT_EQ(json.text(), "");
        EXPECT_FALSE(unarchivedColor(bytes).isValid());
    }
}

}  // namespace
}  // namespace tavrel
