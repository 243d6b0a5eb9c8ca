#include <gtest/gtest.h>

#include "render/text/cell_width.h"
#include "render/text/text_writer.h"
#include "tests/render/made_up_report.h"

namespace varnel::render {

namespace {

using testing::RuleItem;
using testing::TextItem;

// A layout of 8,000 twips on 80 columns: a column is 100 twips.
constexpr Twips kWidth = 8000;

std::string Write(const std::vector<engine::PlacedBand>& bands, TextOptions options = {}) {
    options.columns = 80;
    MemorySink sink;
    TextWriter writer(sink, options);
    writer.Begin({}, kWidth);
    for (const engine::PlacedBand& band : bands) writer.Write(band);
    writer.End();
    return sink.Take();
}

struct Piece {
    engine::Item item;
    std::string_view text;
};

std::string Write(const std::vector<Piece>& pieces, TextOptions options = {}) {
    engine::PlacedBand band{.height = 260, .content = {}};
    for (const Piece& piece : pieces) band.content.Add(piece.item, piece.text);
    return Write(std::vector{band}, options);
}

engine::Item Left(int column, int columns, Twips top = 0) {
    return TextItem({column * 100, top, columns * 100, 240});
}
engine::Item Figure(int column, int columns, Twips top = 0) {
    return TextItem({column * 100, top, columns * 100, 240}, Align::kRight, true);
}

std::string Blanks(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

TEST(CellWidth, CountsColumnsOfATerminal) {
    struct Case {
        std::string_view text;
        int width;
    };
    constexpr Case kCases[] = {
        {"", 0},
        {"Cash", 4},
        {"Société", 7},
        {"Socie\u0301te\u0301", 7},    // combining accents
        {"1\u202F234,50\u00A0$", 10},  // narrow and wide no-break spaces
        {"漢字", 4},
        {"ｱ", 1},  // half-width kana
        {"한", 2},
        {"a\u200Db", 2},  // joiner
        {"\xFF\xFE", 2},
    };
    for (const auto& [text, width] : kCases) EXPECT_EQ(CellWidth(text), width) << text;
}

TEST(CellPrefix, KeepsMarksWithTheirCharacterAndWideCharactersWhole) {
    EXPECT_EQ(CellPrefix("e\u0301t\u0301", 1), 3u);
    EXPECT_EQ(CellPrefix("漢字", 3), 3u);
    EXPECT_EQ(CellPrefix("漢字", 1), 0u);
}

struct Laid {
    const char* name;
    std::vector<Piece> pieces;
    std::string text;
};

const Laid kLaid[] = {
    {"texts at the left, figures at the right of their boxes",
     {{Figure(20, 10), "1,234.50"}, {Left(2, 10), "Cash"}},
     "  Cash" + Blanks(16) + "1,234.50\n"},
    {"centred", {{TextItem({0, 0, 2000, 240}, Align::kCenter), "Report"}}, Blanks(7) + "Report\n"},
    {"a figure grows over blanks and is never cut",
     {{Left(0, 10), "Cash"}, {Figure(20, 4), "123,456,789.01"}},
     "Cash" + Blanks(6) + "123,456,789.01\n"},
    {"figures move on rather than touch",
     {{Figure(0, 5), "1,234,567"}, {Figure(5, 5), "7,654,321"}},
     "1,234,567 7,654,321\n"},
    {"a text runs on over blanks",
     {{Left(0, 5), "Accounts"}, {Left(10, 5), "next"}},
     "Accounts  next\n"},
    {"up to the next text",
     {{Left(0, 5), "Accounts receivable"}, {Left(10, 5), "next"}},
     "Accounts… next\n"},
    {"up to the next figure",
     {{Left(0, 5), "Accounts receivable"}, {Figure(12, 5), "12,345.67"}},
     "Accoun… 12,345.67\n"},
    {"up to the last column",
     {{Left(70, 5), "a text that is too long"}},
     Blanks(70) + "a text th…\n"},
    {"a text moves out of the way of a figure",
     {{Left(20, 4), "CAD"}, {Figure(24, 6), "123,456,789.01"}},
     Blanks(12) + "CAD 123,456,789.01\n"},
    {"wide characters",
     {{Left(0, 8), "漢字漢字漢字"}, {Figure(10, 9), "1\u202F234,50"}},
     "漢字漢字…" + Blanks(2) + "1\u202F234,50\n"},
    {"marks on characters",
     {{Left(0, 8), "Cafe\u0301"}, {Figure(10, 10), "1\u00A0234,50"}},
     "Cafe\u0301" + Blanks(8) + "1\u00A0234,50\n"},
    {"items of about the same height stand on one line",
     {{Left(0, 5, 240), "three"},
      {Left(0, 5, 0), "one"},
      {Left(10, 5, 30), "two"},
      {Left(10, 5, 260), "four"}},
     "one       two\nthree     four\n"},
    {"no line ends with blanks",
     {{Left(0, 10), "name   "}, {Figure(20, 10), "50.00 "}},
     "name" + Blanks(20) + "50.00\n"},
    {"no text steers the terminal", {{Left(0, 20), "a\x1b[2Jb\tc"}}, "a [2Jb c\n"}};

TEST(Text, IsLaidOutOnTheGrid) {
    for (const auto& [name, pieces, text] : kLaid) EXPECT_EQ(Write(pieces), text) << name;
}

TEST(Text, ShowsAGapAsOneBlankLineAtMost) {
    engine::PlacedBand row{.height = 280, .content = {}};
    row.content.Add(Left(0, 5, 20), "row");
    engine::PlacedBand spaced{.height = 2000, .content = {}};
    spaced.content.Add(Left(0, 5, 900), "spaced");
    EXPECT_EQ(Write({spaced, row, row, spaced}), "spaced\n\nrow\nrow\n\nspaced\n");
}

TEST(Text, DrawsRulesOverTheirWidth) {
    const engine::Item thin = RuleItem({200, 0, 300, 10});
    const engine::Item thick = RuleItem({800, 0, 200, 40});
    EXPECT_EQ(Write({{thin, ""}, {thick, ""}}), "  ───   ══\n");
    EXPECT_EQ(Write({{thin, ""}, {thick, ""}}, {.ascii = true}), "  ---   ==\n");
}

TEST(Text, DrawsTwoRulesCloseTogetherAsADoubleOne) {
    EXPECT_EQ(Write({{Figure(0, 5, 0), "50.00"},
                     {RuleItem({0, 250, 500, 10}), ""},
                     {RuleItem({0, 290, 500, 10}), ""}},
                    {.ascii = true}),
              "50.00\n=====\n");
}

TEST(Text, PutsARuleAtTheTopOfALineAboveIt) {
    EXPECT_EQ(Write({{Left(0, 5), "Total"}, {RuleItem({0, 10, 500, 10}), ""}}, {.ascii = true}),
              "-----\nTotal\n");
}

TEST(Text, LeavesOutPageNumbersVerticalRulesAndBlankTexts) {
    engine::Item page_number = Left(0, 20);
    page_number.kind = engine::ItemKind::kPageNumber;
    EXPECT_EQ(Write({{page_number, "Page {0} of {1}"},
                     {RuleItem({0, 0, 10, 240}), ""},
                     {Left(0, 5), " \t "}}),
              "");
}

TEST(Text, IsBoldOnlyWhenAskedTo) {
    engine::Item bold = Left(0, 10);
    bold.style.bold = true;
    EXPECT_EQ(Write({{bold, "Total"}, {Left(10, 5), "x"}}), "Total     x\n");
    EXPECT_EQ(Write({{bold, "Total"}, {Left(10, 5), "x"}}, {.bold = true}),
              "\x1b[1mTotal\x1b[0m     x\n");
}

TEST(Text, IsNeverNarrowerThanEightyColumns) {
    MemorySink sink;
    TextWriter writer(sink, {.columns = 20});
    writer.Begin({}, kWidth);
    engine::PlacedBand band{.height = 260, .content = {}};
    band.content.Add(Figure(70, 10), "50.00");
    writer.Write(band);
    writer.End();
    EXPECT_EQ(sink.Bytes(), Blanks(75) + "50.00\n");
}

}  // namespace

}  // namespace varnel::render
