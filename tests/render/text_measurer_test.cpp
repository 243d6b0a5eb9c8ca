#include "render/text/text_measurer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "render/text/cell_width.h"

namespace varnel::render {

namespace {

using ::testing::ElementsAre;

/// A column is 100 twips, and one of a box stays blank.
std::vector<std::string_view> Lines(std::string_view text, int columns) {
    TextMeasurer measurer(TextGrid(8000, 80));
    std::vector<std::string_view> lines;
    measurer.BreakLines(text, {}, (columns + 1) * 100, lines);
    return lines;
}

TEST(TextMeasurer, BreaksAtSpacesAndLineFeeds) {
    EXPECT_THAT(Lines("", 10), ElementsAre(""));
    EXPECT_THAT(Lines("fits", 4), ElementsAre("fits"));
    EXPECT_THAT(Lines("one two three", 7), ElementsAre("one two", "three"));
    EXPECT_THAT(Lines("one two three", 8), ElementsAre("one two", "three"));
    EXPECT_THAT(Lines("one   two", 4), ElementsAre("one", "two"));
    EXPECT_THAT(Lines("one\r\n\ntwo", 9), ElementsAre("one", "", "two"));
    EXPECT_THAT(Lines("  indented text", 10), ElementsAre("  indented", "text"));
}

TEST(TextMeasurer, BreaksAWordThatIsTooLongAlone) {
    EXPECT_THAT(Lines("abcdefgh ij", 3), ElementsAre("abc", "def", "gh", "ij"));
    EXPECT_THAT(Lines("  abcdef", 3), ElementsAre("  a", "bcd", "ef"));
    EXPECT_THAT(Lines("漢字漢", 3), ElementsAre("漢", "字", "漢"));
    EXPECT_THAT(Lines("漢字", 1), ElementsAre("漢", "字"));
}

TEST(TextMeasurer, KeepsNoBreakSpacesTogether) {
    EXPECT_THAT(Lines("solde 1\u00A0234,50\u00A0$", 11),
                ElementsAre("solde", "1\u00A0234,50\u00A0$"));
}

TEST(TextMeasurer, PromisesNoMoreThanAnyPlaceOfTheBoxHolds) {
    // 90 twips a column: boxes of 1,000 twips span 11 or 12 boundaries, depending on their place.
    const TextGrid grid(10'800, 120);
    for (Twips left = 0; left < 900; left += 7) {
        const int columns = grid.Boundary(left + 1000) - grid.Boundary(left);
        EXPECT_LT(grid.TextColumns(1000), columns);
    }
}

}  // namespace

}  // namespace varnel::render
