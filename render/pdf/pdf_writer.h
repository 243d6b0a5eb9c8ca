#pragma once

#include <string>
#include <string_view>

#include "render/byte_sink.h"
#include "render/fonts/font_set.h"
#include "render/pdf/page_tree.h"
#include "render/pdf/pdf_metadata.h"
#include "render/pdf/pdf_objects.h"
#include "render/pdf/pdf_page.h"
#include "render/pdf/used_fonts.h"

namespace varnel::render {

struct PdfOptions {
    int compression_level = 6;  // 0 (stored) to 12 (smallest)
};

/// Writes a PDF 1.7 document page by page, forwards only. Finished pages leave the memory; what
/// stays is eight bytes an object (two objects a page) and the set of used glyphs. The same calls
/// give the same bytes: there is no clock and no random number in a document.
///
///     PdfWriter writer(sink, fonts, {.title = "General journal", .language = "en"});
///     PdfPage& page = writer.BeginPage(612, 792);
///     page.Text(72, 72, {.font = FontStyle::kBold, .size = 14}, "General journal");
///     writer.EndPage();
///     writer.Finish();
///
/// Calls out of order are std::logic_error, sizes and dates out of range std::invalid_argument,
/// failing output std::system_error from the sink. After an error the document is incomplete and of
/// no use.
///
/// To add what the writer does not know: Reserve and write objects through Objects(), and hang them
/// in by PdfPage::AddEntry (links: /Annots; content marks: /StructParents) or AddCatalogEntry
/// (bookmarks: /Outlines; structure: /StructTreeRoot and /MarkInfo; attachments: /Names and /AF).
class PdfWriter {
  public:
    /// `sink` and `fonts` must outlive the writer.
    PdfWriter(ByteSink& sink, FontSet& fonts, PdfInfo info = {}, PdfOptions options = {});
    PdfWriter(const PdfWriter&) = delete;
    PdfWriter& operator=(const PdfWriter&) = delete;

    /// Starts a page; sizes in points, up to 14400 (200 inches). The page is valid until EndPage.
    PdfPage& BeginPage(double width, double height);

    /// The object of the open page, for links that lead to it.
    ObjectId CurrentPage() const { return page_id_; }

    void EndPage();

    /// Writes the fonts, the page tree and the end of the file. A document without a page is
    /// refused (std::logic_error), as no viewer opens one.
    void Finish();

    PdfObjects& Objects() { return objects_; }
    void AddCatalogEntry(std::string_view entry) { catalog_entries_ += entry; }
    std::uint64_t PageCount() const { return tree_.PageCount(); }

  private:
    ObjectId WriteMetadata();
    void WritePage(ObjectId content);
    void WriteResources();
    void WriteCatalog(ObjectId pages);

    PdfInfo info_;
    std::string info_dictionary_;  // made before the first byte goes out, as its making may fail
    PdfObjects objects_;
    PageTree tree_;
    UsedFonts used_fonts_;
    PdfPage page_;
    ObjectId catalog_id_;
    ObjectId resources_id_;
    ObjectId info_id_;
    ObjectId page_id_ = 0;  // 0: no page is open
    bool finished_ = false;
    std::string catalog_entries_;
};

}  // namespace varnel::render
