#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/render/pdf_tools.h"

namespace varnel::render {
namespace {

class PdfText : public testing::Test {
  protected:
    void SetUp() override {
        if (!HasTool("pdftotext")) GTEST_SKIP() << "pdftotext is not installed";
    }
};

TEST_F(PdfText, ComesBackAsItWentIn) {
    for (const char* text :
         {"Plain 0123456789 1,234.56", "(brackets) \\ back <slash> ]",
          "Relev\u00E9 \u00E0 l\u2019\u00E9ch\u00E9ance \u2013 1\u2212234,56 \u20AC \u0153uvre",
          "\u041F\u0440\u0438\u0432\u0435\u0442 \u03B5\u03BB\u03BB", "tick \u2713 arrow \u2190 end",
          "q\u0308 x\u0323"}) {
        EXPECT_EQ(ExtractText(MakePdf(text)), text);
    }
}

TEST_F(PdfText, ShowsNoBreakSpacesAsSpacesAndWhatItCannotShowAsReplacements) {
    EXPECT_EQ(ExtractText(MakePdf("1\u00A0234 a b")), "1 234 a b");
    EXPECT_EQ(ExtractText(MakePdf("a\xFF\xC3(b")), "a\uFFFD\uFFFD(b");
    EXPECT_EQ(ExtractText(MakePdf("x\u65E5\u672Cy")), "x\uFFFD\uFFFDy");
    EXPECT_EQ(ExtractText(MakePdf("e\u0301\u65E5\u672Cy")), "e\u0301\uFFFD\uFFFDy");
}

TEST_F(PdfText, IsCompleteWhenHuge) {
    std::string text;
    for (int i = 0; i < 200'000; ++i) text += i % 1000 == 0 ? "\u2713" : "0";
    const std::string pdf = MakePdf([&](PdfPage& page) { page.Text(0, 72, {.size = 0.01}, text); });
    const TemporaryFile file(pdf);
    const std::string content = RunTool("qpdf --qdf " + file.Path() + " - | grep -a Tj").output;
    EXPECT_EQ(Count(content, "<0013"), 200u);
    EXPECT_EQ(Count(content, "0013"), 199'800u);
}

/// The boxes "xMin xMax" of the words that poppler finds, in order.
std::vector<std::pair<double, double>> WordEdges(const std::string& pdf) {
    const TemporaryFile file(pdf);
    std::istringstream lines(RunTool("pdftotext -bbox " + file.Path() + " -").output);
    std::vector<std::pair<double, double>> edges;
    const auto value = [](const std::string& line, const std::string& name) {
        return std::stod(line.substr(line.find(name) + name.size() + 2));
    };
    for (std::string line; std::getline(lines, line);) {
        if (line.find("<word") == std::string::npos) continue;
        edges.emplace_back(value(line, "xMin"), value(line, "xMax"));
    }
    return edges;
}

TEST_F(PdfText, StandsWhereItWasPutAndIsAsWideAsMeasured) {
    const std::pair<PdfTextStyle, const char*> texts[] = {
        {{}, "1,234,567.89"},
        {{.size = 9, .stretch = 60}, "1,234,567.89"},
        {{.font = FontStyle::kBold, .size = 14}, "Middle"},
        {{}, "\u05E9\u05DC\u05D5\u05DD"},
    };
    const auto edges = WordEdges(MakePdf([&](PdfPage& page) {
        double y = 100;
        for (const auto& [style, text] : texts) page.Text(100, y += 30, style, text);
    }));
    ASSERT_EQ(edges.size(), std::size(texts));
    FontSet fonts;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const auto& [style, text] = texts[i];
        const double width = fonts.Width(style.font, style.size, text) * style.stretch / 100;
        EXPECT_NEAR(edges[i].first, 100, 0.02) << text;
        EXPECT_NEAR(edges[i].second, 100 + width, 0.02) << text;
    }
}

}  // namespace
}  // namespace varnel::render
