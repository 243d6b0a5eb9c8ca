#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/render/pdf_tools.h"

namespace varnel::render {
namespace {

/// A document that uses all that the writer can do.
std::string FullDocument() {
    MemorySink sink;
    FontSet fonts;
    PdfWriter writer(sink, fonts,
                     {.title = "Tout (\u00E9t\u00E9) <&>",
                      .author = "A",
                      .subject = "B",
                      .language = "fr-CA",
                      .creation_date = "2025-03-31"});
    for (int i = 0; i < 3; ++i) {
        PdfPage& page = writer.BeginPage(i == 1 ? 792 : 612, 792);
        page.FillRect(30, 90, 400, 14, Colour::Gray(230));
        page.FillRect(36, 200, 364, 0.25, {0, 0, 200});
        page.Text(36, 100, {}, "Relev\u00E9 (a) \\ \u2713 \xFF 1,234.56");
        page.Text(36, 130, {.font = FontStyle::kBold, .stretch = 70}, "Condensed");
        page.Text(36, 160, {.font = FontStyle::kItalic, .colour = {200, 0, 0}}, "Italic");
        page.Text(36, 190, {}, "\u0633\u0644\u0627\u0645 123 q\u0308x\u0323\u0304");
        writer.EndPage();
    }
    writer.BeginPage(100, 100);
    writer.EndPage();
    writer.Finish();
    return sink.Take();
}

struct Reader {
    const char *tool, *before, *after;
};

// Builds of mutool without colour management say so on every run.
constexpr Reader kReaders[] = {
    {"qpdf", "qpdf --check ", " | grep WARNING"},
    {"pdftoppm", "pdftoppm -r 20 ", " > /dev/null"},
    {"mutool", "mutool draw -q -r 20 -F png -o /dev/null ",
     " 2>&1 | grep -v 'ICC support is not available'"},
    {"gs", "gs -q -dNOPAUSE -dBATCH -dPDFSTOPONERROR -sDEVICE=nullpage ", ""},
};

TEST(PdfReaders, HaveNothingToSay) {
    const TemporaryFile file(FullDocument());
    for (const auto& [tool, before, after] : kReaders) {
        if (!HasTool(tool)) continue;
        EXPECT_EQ(RunTool(before + file.Path() + after).output, "") << tool;
    }
    if (HasTool("qpdf")) {
        EXPECT_EQ(RunTool("qpdf --check " + file.Path()).exit_code, 0);
    }
}

TEST(PdfReaders, FindEveryFontEmbeddedAsASubset) {
    if (!HasTool("pdffonts")) GTEST_SKIP() << "pdffonts is not installed";
    const TemporaryFile file(FullDocument());
    const std::string fonts = RunTool("pdffonts " + file.Path()).output;
    EXPECT_EQ(Count(fonts, "Identity-H       yes yes yes"), 4u) << fonts;
    for (const char* name :
         {"+OpenSans ", "+OpenSans-Bold ", "+OpenSans-Italic ", "+DejaVuSans "}) {
        EXPECT_THAT(fonts, testing::HasSubstr(name));
    }
}

// Whole faces are 200 to 750 KB each.
TEST(PdfReaders, GetASmallFile) { EXPECT_LT(FullDocument().size(), 60'000u); }

}  // namespace
}  // namespace varnel::render
