#include <gtest/gtest.h>

#include <string>

#include "render/fonts/font_set.h"

namespace varnel::render {
namespace {

/// The text in the order of its glyphs from left to right.
std::string VisualOrder(FontSet& fonts, std::string_view text) {
    std::string order;
    for (const ShapedGlyph& glyph : fonts.Shape(FontStyle::kRegular, text)) {
        order += text.substr(glyph.text_begin, glyph.text_end - glyph.text_begin);
    }
    return order;
}

TEST(Shaping, IsAskedForOnlyByScriptsThatNeedIt) {
    FontSet fonts;
    for (const char* plain :
         {"Soci\u00E9t\u00E9", "\u041F\u0440\u0438", "\u03B1\u03B2", "1 234,56 \u20AC"}) {
        EXPECT_FALSE(fonts.NeedsShaping(FontStyle::kRegular, plain)) << plain;
    }
    for (const char* shaped : {"e\u0301", "\u0633\u0644", "\u05E9\u05DC", "\u0915\u093F"}) {
        EXPECT_TRUE(fonts.NeedsShaping(FontStyle::kRegular, shaped)) << shaped;
    }
}

TEST(Shaping, OrdersRightToLeftWordsAndKeepsNumbers) {
    FontSet fonts;
    struct Case {
        const char* name;
        const char* text;
        const char* expected;
    };
    const Case cases[] = {
        {"a word", "\u05D0\u05D1\u05D2", "\u05D2\u05D1\u05D0"},
        {"inside a left-to-right text", "ab \u05D0\u05D1 cd", "ab \u05D1\u05D0 cd"},
        {"two words", "ab \u05D0\u05D1 \u05D2 cd", "ab \u05D2 \u05D1\u05D0 cd"},
        {"a number after a word", "\u05D0\u05D1 123", "123 \u05D1\u05D0"},
        {"a number before a word", "123 \u05D0\u05D1", "\u05D1\u05D0 123"},
        {"a fraction", "\u05D0 12.50", "12.50 \u05D0"},
    };
    for (const Case& c : cases) EXPECT_EQ(VisualOrder(fonts, c.text), c.expected) << c.name;
}

TEST(Shaping, ComposesMarksWithTheirLetter) {
    FontSet fonts;
    EXPECT_EQ(fonts.Advance(FontStyle::kRegular, "e\u0301"),
              fonts.Advance(FontStyle::kRegular, "\u00E9"));
}

TEST(Shaping, JoinsArabicLetters) {
    FontSet fonts;
    const auto glyphs = fonts.Shape(FontStyle::kRegular, "\u0628\u0628\u0628");
    ASSERT_EQ(glyphs.size(), 3u);
    EXPECT_NE(glyphs[0].glyph, glyphs[1].glyph);
    EXPECT_NE(glyphs[1].glyph, glyphs[2].glyph);
}

TEST(Shaping, SurvivesMalformedAndLonelyPieces) {
    FontSet fonts;
    for (const char* text :
         {"\u0301", "\u0633\xFF\u0644", "\u200D\u0633", "\u0633\n\t", "\u65E5\u0301"}) {
        EXPECT_FALSE(fonts.Shape(FontStyle::kRegular, text).empty());
    }
    EXPECT_TRUE(fonts.Shape(FontStyle::kRegular, "").empty());
}

}  // namespace
}  // namespace varnel::render
