#include "render/pdf/pdf_objects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/render/pdf_tools.h"

namespace varnel::render {
namespace {

TEST(PdfObjects, RefusesAnObjectWrittenTwiceOrNotReserved) {
    MemorySink sink;
    PdfObjects objects(sink, 6);
    const ObjectId id = objects.Reserve();
    objects.WriteObject(id, "<<>>");
    EXPECT_THROW(objects.WriteObject(id, "<<>>"), std::logic_error);
    EXPECT_THROW(objects.WriteObject(id + 1, "<<>>"), std::logic_error);
    EXPECT_THROW(objects.WriteObject(0, "<<>>"), std::logic_error);
}

TEST(PdfObjects, RefusesToFinishWithAReferenceToNothing) {
    MemorySink sink;
    PdfObjects objects(sink, 6);
    const ObjectId id = objects.Reserve();
    EXPECT_THROW(objects.Finish(id, id), std::logic_error);
}

TEST(PdfObjects, RefusesCompressionLevelsThatDoNotExist) {
    MemorySink sink;
    EXPECT_THROW(PdfObjects(sink, 13), std::invalid_argument);
    EXPECT_THROW(PdfObjects(sink, -1), std::invalid_argument);
    EXPECT_EQ(sink.Bytes(), "");
}

// This is how links and other features are added beside the writer.
TEST(PdfObjects, LetLaterFeaturesHangInTheirOwn) {
    if (!HasTool("qpdf")) GTEST_SKIP() << "qpdf is not installed";
    MemorySink sink;
    FontSet fonts;
    PdfWriter writer(sink, fonts);
    PdfPage& page = writer.BeginPage(612, 792);
    const std::string page_object = std::to_string(writer.CurrentPage()) + " 0 ";
    const ObjectId link = writer.Objects().Reserve();
    writer.Objects().WriteObject(
        link, "<</Type/Annot/Subtype/Link/Rect[0 0 9 9]/Dest[" + page_object + "R/Fit]>>");
    page.AddEntry("/Annots[" + std::to_string(link) + " 0 R]");
    writer.AddCatalogEntry("/PageMode/UseThumbs");
    writer.EndPage();
    writer.Finish();
    const TemporaryFile file(sink.Bytes());
    const std::string text = RunTool("qpdf --qdf " + file.Path() + " -").output;
    EXPECT_THAT(text, testing::HasSubstr("/Subtype /Link"));
    EXPECT_THAT(sink.Bytes(), testing::HasSubstr(page_object + "obj\n<</Type/Page/"));
    EXPECT_THAT(text, testing::HasSubstr("/PageMode /UseThumbs"));
}

}  // namespace
}  // namespace varnel::render
