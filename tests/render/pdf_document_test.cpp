#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>

#include "tests/render/pdf_tools.h"

namespace varnel::render {
namespace {

void WritePages(PdfWriter& writer, int count) {
    for (int i = 1; i <= count; ++i) {
        writer.BeginPage(612, 792).Text(36, 36, {}, "Page " + std::to_string(i));
        writer.EndPage();
    }
    writer.Finish();
}

std::string PagesPdf(FontSet& fonts, int count) {
    MemorySink sink;
    PdfWriter writer(sink, fonts, {.title = "Pages"});
    WritePages(writer, count);
    return sink.Take();
}

TEST(PdfDocument, IsTheSameBytesForTheSameInput) {
    FontSet fonts;
    const std::string first = PagesPdf(fonts, 3);
    EXPECT_EQ(PagesPdf(fonts, 3), first);
    FontSet other_fonts;
    EXPECT_EQ(PagesPdf(other_fonts, 3), first);
    const auto id = [](const std::string& pdf) { return pdf.substr(pdf.find("/ID["), 38); };
    EXPECT_NE(id(PagesPdf(fonts, 4)), id(first));
}

TEST(PdfDocument, RefusesCallsOutOfOrder) {
    MemorySink sink;
    FontSet fonts;
    PdfWriter writer(sink, fonts);
    EXPECT_THROW(writer.Finish(), std::logic_error) << "without a page";
    EXPECT_THROW(writer.EndPage(), std::logic_error);
    writer.BeginPage(612, 792);
    EXPECT_THROW(writer.BeginPage(612, 792), std::logic_error);
    EXPECT_THROW(writer.Finish(), std::logic_error);
    writer.EndPage();
    writer.Finish();
    EXPECT_THROW(writer.Finish(), std::logic_error);
    EXPECT_THROW(writer.BeginPage(612, 792), std::logic_error);
}

TEST(PdfDocument, RefusesPagesNoViewerShows) {
    MemorySink sink;
    FontSet fonts;
    PdfWriter writer(sink, fonts);
    EXPECT_THROW(writer.BeginPage(0, 792), std::invalid_argument);
    EXPECT_THROW(writer.BeginPage(612, 14401), std::invalid_argument);
    EXPECT_THROW(writer.BeginPage(612, std::nan("")), std::invalid_argument);
}

// 64 pages fill a node, 64 nodes the next level: at the edges a level more or less is needed.
TEST(PdfDocument, HasAValidTreeInOrderWhereLevelsBegin) {
    if (!HasTool("qpdf") || !HasTool("pdftotext")) GTEST_SKIP() << "qpdf or poppler is missing";
    FontSet fonts;
    for (const int count : {1, 64, 65, 4096, 4097}) {
        const TemporaryFile file(PagesPdf(fonts, count));
        EXPECT_EQ(RunTool("qpdf --check " + file.Path()).exit_code, 0) << count;
        std::string expected;
        for (int i = 1; i <= count; ++i) expected += "Page " + std::to_string(i) + "\n\n\f";
        EXPECT_EQ(RunTool("pdftotext " + file.Path() + " -").output, expected);
    }
}

TEST(PdfDocument, WritesStateOnlyWhenItChanges) {
    if (!HasTool("qpdf")) GTEST_SKIP() << "qpdf is not installed";
    const TemporaryFile file(MakePdf([](PdfPage& page) {
        page.Text(10, 20, {.colour = {255, 0, 0}}, "a");
        page.Text(50, 20, {.colour = {255, 0, 0}}, "b");
        page.Text(50, 30, {.colour = {255, 0, 0}, .stretch = 80}, "c");
        page.FillRect(10, 60, 20, 5.5, {255, 0, 0});
        page.FillRect(0, 70, 100, 0.5, Colour::Gray(128));
        page.FillRect(0, 80, 100, 0.5, Colour::Gray(128));
    }));
    const std::string content = RunTool("qpdf --qdf " + file.Path() + " - | strings -n 1").output;
    for (const char* once :
         {"1 0 0 rg\n", "/F0 9 Tf\n", "BT\n", "ET\n", "0.502 g\n", "80 Tz\n", "10 772 Td\n",
          "40 0 Td\n", "0 -10 Td\n", "10 726.5 20 5.5 re f\n", "0 721.5 100 0.5 re f\n"}) {
        EXPECT_EQ(Count(content, once), 1u) << once;
    }
}

}  // namespace
}  // namespace varnel::render
