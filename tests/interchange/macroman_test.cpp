#include "interchange/macroman.h"

#include <gtest/gtest.h>

namespace tavrel {

namespace {

TEST(MacRoman, holdsItsCharactersAndNoOther) {
    const auto macRoman = MacRoman::open();
    ASSERT_TRUE(macRoman);
    const std::tuple<const char16_t*, std::string, char32_t> cases[] = {
        {u"plain \"text\"\r\n", "plain \"text\"\r\n", 0},
        {u"Épave à 20 €", "\x83pave \x88 20 \xdb", 0},
        {u"e\u0301t\u00e9", "\x8et\x8e", 0},
        {u"\u2206 \uF8FF \u03A9 \u2126", "\xc6 \xf0 \xbd \xbd", 0},
        {u"\u0394", "", U'\u0394'},
        {u"Île Пхукет", "", U'П'},
        {u"ok \U0001F419", "", U'\U0001F419'},
        {u"\u00A4", "", U'\u00A4'},
        {u"\U000E0041", "", U'\U000E0041'},
        {u"q\u0301", "", U'\u0301'},
    };
    for (const auto& [text, fitting, unfit] : cases) {
        std::string bytes = "|";
        EXPECT_EQ(macRoman->append(bytes, text), unfit) << fitting;
        EXPECT_EQ(bytes, "|" + fitting);
    }
}

}  // namespace

}  // namespace tavrel
