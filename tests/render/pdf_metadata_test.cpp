#include "render/pdf/pdf_metadata.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "render/pdf/pdf_escape.h"
#include "tests/render/pdf_tools.h"

namespace varnel::render {
namespace {

using testing::HasSubstr;

std::string PdfString(std::string_view text) {
    std::string out;
    AppendPdfString(out, text);
    return out;
}

std::string XmlText(std::string_view text) {
    std::string out;
    AppendXmlText(out, text);
    return out;
}

TEST(PdfEscape, KeepsPlainTextReadableAndEscapesDelimiters) {
    EXPECT_EQ(PdfString("Journal"), "(Journal)");
    EXPECT_EQ(PdfString("a(b)c\\"), "(a\\(b\\)c\\\\)");
    EXPECT_EQ(PdfString(""), "()");
}

TEST(PdfEscape, WritesOtherTextAsUtf16) {
    EXPECT_EQ(PdfString("\u00E9\n"), "<FEFF00E9000A>");
    EXPECT_EQ(PdfString("\U0001F600"), "<FEFFD83DDE00>");
    EXPECT_EQ(PdfString("\xFF"), "<FEFFFFFD>");
}

TEST(PdfEscape, LeavesNothingInXmlThatXmlForbids) {
    EXPECT_EQ(XmlText("<a & \"b\">"), "&lt;a &amp; &quot;b&quot;&gt;");
    EXPECT_EQ(XmlText("x\u00E9\u20AC\U0001F600\n"), "x\u00E9\u20AC\U0001F600\n");
    EXPECT_EQ(XmlText(std::string_view("\0\x1B\xFF", 3)), "\uFFFD\uFFFD\uFFFD");
}

TEST(PdfMetadata, WritesDatesTheWayPdfHasThem) {
    const auto date = [](const char* iso) { return InfoDictionary({.creation_date = iso}); };
    EXPECT_THAT(date("2025-03-31"), HasSubstr("/CreationDate(D:20250331)"));
    EXPECT_THAT(date("2025-03-31T14:05:09"), HasSubstr("(D:20250331140509)"));
    EXPECT_THAT(date("2025-03-31T14:05:09Z"), HasSubstr("(D:20250331140509Z)"));
    EXPECT_THAT(date("2025-03-31T14:05:09-05:30"), HasSubstr("(D:20250331140509-05'30')"));
}

TEST(PdfMetadata, RefusesOtherDatesBeforeAnythingIsWritten) {
    FontSet fonts;
    for (const char* bad : {"31.03.2025", "2025-03-31 14:05:09", "2025-3-31", "today"}) {
        MemorySink sink;
        EXPECT_THROW(PdfWriter(sink, fonts, {.creation_date = bad}), std::invalid_argument) << bad;
        EXPECT_EQ(sink.Bytes(), "");
    }
}

TEST(PdfMetadata, IsWhatReadersShow) {
    if (!HasTool("pdfinfo")) GTEST_SKIP() << "pdfinfo is not installed";
    const TemporaryFile file(MakePdf([](PdfPage&) {}, {.title = "Journal (\u00E9t\u00E9) \\ <&>",
                                                       .author = "Atelier \u00C9clair",
                                                       .subject = "2025",
                                                       .language = "fr-CA",
                                                       .creation_date = "2025-03-31T14:05:09Z"}));
    const std::string info = RunTool("TZ=UTC pdfinfo -isodates -enc UTF-8 " + file.Path()).output;
    EXPECT_THAT(info, HasSubstr("Journal (\u00E9t\u00E9) \\ <&>\n"));
    EXPECT_THAT(info, HasSubstr("Atelier \u00C9clair\n"));
    EXPECT_THAT(info, HasSubstr("2025-03-31T14:05:09Z"));
    EXPECT_THAT(info, HasSubstr("612 x 792 pts"));
    const std::string xmp = RunTool("pdfinfo -meta " + file.Path()).output;
    EXPECT_THAT(xmp, HasSubstr("Journal (\u00E9t\u00E9) \\ &lt;&amp;&gt;</rdf:li>"));
    EXPECT_THAT(xmp, HasSubstr("<rdf:li>fr-CA</rdf:li>"));
}

}  // namespace
}  // namespace varnel::render
