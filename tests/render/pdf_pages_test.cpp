#include "render/pages/pdf_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "render/pages/print_measurer.h"
#include "tests/render/made_up_report.h"
#include "tests/render/pdf_tools.h"

namespace varnel::render {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::RuleItem;
using testing::TextItem;

FontSet& Fonts() {
    static FontSet fonts;
    return fonts;
}

/// Pages of US Letter, written uncompressed.
std::string WritePages(const std::vector<engine::Page>& pages,
                       const engine::DocumentInfo& info = {}) {
    MemorySink sink;
    PdfPageWriter writer(sink, Fonts(), {.compression_level = 0});
    const int count = static_cast<int>(pages.size());
    writer.Begin(info, count);
    for (int i = 0; i < count; ++i) writer.Write(pages[static_cast<std::size_t>(i)], i + 1, count);
    writer.End();
    return sink.Take();
}

std::string WriteItem(const engine::Item& item, std::string_view text) {
    engine::Page page{.width = 12'240, .height = 15'840, .content = {}};
    page.content.Add(item, text);
    return WritePages({page});
}

/// The text as the page's content shows it.
std::string Shown(std::string_view ascii, FontStyle font = FontStyle::kRegular) {
    std::string hex = "<";
    for (const char c : ascii) {
        const GlyphCell& cell = Fonts().Cell(font, static_cast<unsigned char>(c));
        hex.append(cell.hex.data(), cell.hex.size());
    }
    return hex + "> Tj";
}

/// The numbers in front of the first operator of that name.
std::vector<double> Operands(const std::string& pdf, const std::string& name) {
    const auto end = pdf.find(" " + name + "\n");
    if (end == std::string::npos) return {};
    const auto start = pdf.rfind('\n', end) + 1;
    std::istringstream line(pdf.substr(start, end - start));
    line.imbue(std::locale::classic());
    return {std::istream_iterator<double>(line), {}};
}

TEST(PdfPages, PutTextAtTheLeftMiddleOrRightOfItsBox) {
    const double width = Fonts().Width(FontStyle::kRegular, 8.5, "50.00");
    const Box box{2000, 1000, 1200, 240};  // 100 to 160 points
    const struct {
        Align align;
        double left;
    } cases[] = {
        {Align::kLeft, 100}, {Align::kCenter, 130 - width / 2}, {Align::kRight, 160 - width}};
    for (const auto& c : cases) {
        const std::string pdf = WriteItem(TextItem(box, c.align), "50.00");
        EXPECT_NEAR(Operands(pdf, "Td").at(0), c.left, 0.01);
        EXPECT_THAT(pdf, HasSubstr(Shown("50.00")));
    }
}

TEST(PdfPages, SetTextInsideItsBox) {
    const FontMetrics& metrics = Fonts().Metrics(FontStyle::kRegular);
    for (const Twips height : {240, 260, 300, 900}) {
        const std::string pdf = WriteItem(TextItem({0, 1000, 5000, height}), "Ågy");
        const double baseline = 792 - Operands(pdf, "Td").at(1);
        EXPECT_GE(baseline - metrics.cap_height * 8.5 / 1000, 50) << height;
        EXPECT_LE(baseline - metrics.descent * 8.5 / 1000, 50 + height / 20.0 + 0.01) << height;
    }
}

TEST(PdfPages, TextsOfDifferentSizesBesideEachOtherShareTheirBaseline) {
    engine::Item small = TextItem({0, 1000, 5000, 220});
    small.style.size = 160;
    engine::Item large = small;
    large.style.size = 180;
    EXPECT_EQ(Operands(WriteItem(small, "1020"), "Td").at(1),
              Operands(WriteItem(large, "1020"), "Td").at(1));
}

TEST(PdfPages, CondenseAFigureThatIsWiderThanItsBox) {
    const double width = Fonts().Width(FontStyle::kRegular, 8.5, "123,456,789.01");
    const std::string pdf =
        WriteItem(TextItem({2000, 1000, 600, 240}, Align::kRight, true), "123,456,789.01");
    EXPECT_THAT(pdf, HasSubstr(Shown("123,456,789.01")));
    EXPECT_NEAR(Operands(pdf, "Tz").at(0), 30 / width * 100, 0.01);
    EXPECT_NEAR(Operands(pdf, "Td").at(0), 100, 0.01);
}

TEST(PdfPages, EndOtherTextThatIsTooWideInAnEllipsis) {
    const std::string pdf = WriteItem(TextItem({0, 0, 600, 240}), "Accounts receivable");
    EXPECT_THAT(pdf, ::testing::Not(HasSubstr(Shown("Accounts receivable"))));
    EXPECT_THAT(pdf, ::testing::Not(HasSubstr(" Tz\n")));
    const GlyphCell& ellipsis = Fonts().Cell(FontStyle::kRegular, U'\u2026');
    EXPECT_THAT(pdf, HasSubstr(std::string(ellipsis.hex.data(), 4) + "> Tj"));
}

TEST(PdfPages, FillInTheNumberAndCountOfPages) {
    engine::Page page{.width = 12'240, .height = 15'840, .content = {}};
    engine::Item item = TextItem({0, 0, 3000, 240});
    item.kind = engine::ItemKind::kPageNumber;
    page.content.Add(item, "Page {0} of {1} {2}");
    const std::string pdf = WritePages({page, page, page});
    for (const char* text : {"Page 1 of 3 {2}", "Page 2 of 3 {2}", "Page 3 of 3 {2}"})
        EXPECT_THAT(pdf, HasSubstr(Shown(text)));
}

TEST(PdfPages, DrawRulesAsFilledRectangles) {
    const std::string pdf = WriteItem(RuleItem({1000, 2000, 3000, 20}), "");
    // 100 points down on a page of 792, a point thick.
    EXPECT_THAT(Operands(pdf, "re f"), ElementsAre(50, 691, 150, 1));
}

TEST(PdfPages, UseTheFaceOfTheStyle) {
    engine::Item item = TextItem({0, 0, 3000, 240});
    const struct {
        bool bold, italic;
        FontStyle font;
    } cases[] = {{false, false, FontStyle::kRegular},
                 {true, false, FontStyle::kBold},
                 {false, true, FontStyle::kItalic},
                 {true, true, FontStyle::kBoldItalic}};
    for (const auto& c : cases) {
        item.style.bold = c.bold;
        item.style.italic = c.italic;
        EXPECT_THAT(WriteItem(item, "Total"),
                    HasSubstr("/F" + std::to_string(static_cast<int>(c.font)) + " 8.5 Tf"));
    }
}

TEST(PdfPages, TellWhatTheDocumentIsAbout) {
    const std::string pdf = WritePages({}, {.title = "General Journal",
                                            .company = "Maple Trading",
                                            .language = "en-CA",
                                            .creator = "Varnel",
                                            .date = "2025-03-31"});
    for (const char* entry :
         {"/Title(General Journal)", "/Author(Maple Trading)", "/Lang(en-CA)", "D:20250331"})
        EXPECT_THAT(pdf, HasSubstr(entry));
}

TEST(PdfPages, AreOneBlankPageWhenThereAreNone) {
    const std::string pdf = WritePages({});
    EXPECT_THAT(pdf, HasSubstr("/Count 1"));
    EXPECT_THAT(pdf, HasSubstr("/MediaBox[0 0 612 792]"));
}

TEST(PrintMeasurer, MeasuresInTwipsAsThePagesAreDrawn) {
    PrintMeasurer measurer(Fonts());
    const TextStyle style{.size = 170, .bold = true};
    const double width = Fonts().Width(FontStyle::kBold, 8.5, "Accounts receivable") * 20;
    std::vector<std::string_view> lines;
    measurer.BreakLines("Accounts receivable", style, static_cast<Twips>(width) + 1, lines);
    EXPECT_THAT(lines, ElementsAre("Accounts receivable"));
    measurer.BreakLines("Accounts receivable", style, static_cast<Twips>(width) - 1, lines);
    EXPECT_THAT(lines, ElementsAre("Accounts", "receivable"));
    const FontMetrics& metrics = Fonts().Metrics(FontStyle::kBold);
    EXPECT_NEAR(measurer.LineHeight(style), (metrics.ascent - metrics.descent) * 0.17, 1);
}

}  // namespace

}  // namespace varnel::render
