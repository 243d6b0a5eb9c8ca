#include <gtest/gtest.h>

#include <string>

#include "render/fonts/utf8.h"

namespace varnel::render {
namespace {

std::u32string Decode(std::string_view text) {
    std::u32string decoded;
    const char* position = text.data();
    const char* const end = position + text.size();
    while (position < end) decoded += DecodeUtf8(position, end);
    EXPECT_EQ(position, end);
    return decoded;
}

TEST(Utf8, DecodesEveryLength) {
    EXPECT_EQ(Decode("a\u00E9\u20AC\U0001F600"), U"a\u00E9\u20AC\U0001F600");
    EXPECT_EQ(Decode("\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF"),
              U"\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF");
}

TEST(Utf8, ReplacesWhatIsMalformedAndGoesOn) {
    struct Case {
        const char* name;
        std::string_view bytes;
        std::u32string_view expected;
    };
    const Case cases[] = {
        {"stray continuation", "a\x80z", U"a\uFFFDz"},
        {"never valid", "\xFEz", U"\uFFFDz"},
        {"overlong slash", "\xC0\xAFz", U"\uFFFD\uFFFDz"},
        {"overlong of three", "\xE0\x80\xAF", U"\uFFFD\uFFFD\uFFFD"},
        {"surrogate", "\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD"},
        {"beyond the last", "\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"cut by a letter", "\xE2\x82z", U"\uFFFDz"},
        {"cut by the end", "a\xF0\x9F\x98", U"a\uFFFD"},
    };
    for (const Case& c : cases) EXPECT_EQ(Decode(c.bytes), c.expected) << c.name;
}

TEST(Utf8, FindsAHighByteAnywhere) {
    std::string text(21, 'a');
    EXPECT_TRUE(IsAscii(text));
    for (char& c : text) {
        c = '\x80';
        EXPECT_FALSE(IsAscii(text));
        c = 'a';
    }
}

}  // namespace
}  // namespace varnel::render
