#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "render/fonts/line_breaker.h"

namespace varnel::render {
namespace {

using Lines = std::vector<std::string_view>;

constexpr FontStyle kStyle = FontStyle::kRegular;
constexpr double kSize = 10;

/// Breaks into a column exactly as wide as `measure`.
Lines Break(FontSet& fonts, std::string_view text, std::string_view measure) {
    Lines lines;
    BreakLines(fonts, kStyle, kSize, fonts.Width(kStyle, kSize, measure), text, lines);
    return lines;
}

TEST(BreakLines, BreaksWhereReadersExpectIt) {
    FontSet fonts;
    struct Case {
        const char* name;
        const char* text;
        const char* measure;
        Lines expected;
    };
    const Case cases[] = {
        {"not where it fits", "Bank charges", "Bank charges", {"Bank charges"}},
        {"nothing", "", "0", {""}},
        {"a text that is indented", "  indented", "  indented", {"  indented"}},
        {"at spaces", "000 111 222", "000 111", {"000 111", "222"}},
        {"at several spaces", "000   111", "000", {"000", "111"}},
        {"after a hyphen", "well-known", "well-kno", {"well-", "known"}},
        {"not in a date", "on 2025-01-02", "2025-01-02", {"on", "2025-01-02"}},
        {"not at a minus", "000 -55", "000 -", {"000", "-55"}},
        {"inside a word too wide", "0123456789", "0000", {"0123", "4567", "89"}},
        {"before a word too wide", "0 123456", "0000", {"0", "1234", "56"}},
        {"at line feeds", "a\n\nb\r\nc", "wide enough", {"a", "", "b", "c"}},
        {"after the last line feed", "a\n", "wide enough", {"a", ""}},
        {"spaces at the end", "000   ", "000", {"000"}},
        {"spaces only", "     ", "0", {""}},
        {"spaces before a word", "      000", "000", {"000"}},
        {"a character at least", "\u00E9\u00E9", ".", {"\u00E9", "\u00E9"}},
        {"not between a letter and its mark",
         "e\u0301e\u0301e\u0301",
         "\u00E9\u00E9",
         {"e\u0301e\u0301", "e\u0301"}},
    };
    for (const Case& c : cases) EXPECT_EQ(Break(fonts, c.text, c.measure), c.expected) << c.name;
}

TEST(BreakLines, TakesANegativeWidthAsNone) {
    FontSet fonts;
    Lines lines;
    BreakLines(fonts, kStyle, kSize, -5, "ab", lines);
    EXPECT_EQ(lines, (Lines{"a", "b"}));
}

TEST(BreakLines, LosesNothingOfAHugeWord) {
    FontSet fonts;
    for (const std::string unit : {"0", "\u0628", "\x80"}) {
        std::string text;
        while (text.size() < 200'000) text += unit;
        std::string joined;
        for (const auto line : Break(fonts, text, "00000000000000000000")) joined += line;
        EXPECT_EQ(joined, text);
    }
}

TEST(Ellipsize, CutsOnlyWhatDoesNotFit) {
    FontSet fonts;
    std::string storage;
    const auto cut = [&](std::string_view text, std::string_view measure) {
        return Ellipsize(fonts, kStyle, kSize, fonts.Width(kStyle, kSize, measure), text, storage);
    };
    EXPECT_EQ(cut("000", "000"), "000");
    EXPECT_EQ(cut("012345", "000\u2026"), "012\u2026");
    EXPECT_EQ(cut("01 345", "00 \u2026"), "01\u2026");
    EXPECT_EQ(cut("012345", "\u2026"), "\u2026");
    EXPECT_EQ(cut("012345", ""), "");
}

}  // namespace
}  // namespace varnel::render
