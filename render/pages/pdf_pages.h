#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/document.h"
#include "render/pdf/pdf_writer.h"

namespace varnel::render {

/// Draws finished pages into a PDF document. Figures wider than their box are condensed, other
/// texts end in an ellipsis. Lay the pages out with PrintMeasurer and the same fonts.
class PdfPageWriter final : public engine::PageSink {
  public:
    /// `sink` and `fonts` must outlive the writer; the sink is neither flushed nor closed here.
    PdfPageWriter(ByteSink& sink, FontSet& fonts, PdfOptions options = {})
        : sink_(sink), fonts_(fonts), options_(options) {}

    void Begin(const engine::DocumentInfo& info, int page_count) override;
    void Write(const engine::Page& page, int number, int page_count) override;
    /// A document without pages becomes one blank page, as no viewer opens an empty one.
    void End() override;

  private:
    void DrawRule(PdfPage& page, const engine::Item& item);
    void DrawText(PdfPage& page, const engine::Item& item, std::string_view text);

    ByteSink& sink_;
    FontSet& fonts_;
    PdfOptions options_;
    std::optional<PdfWriter> writer_;
    std::string page_number_;
    std::string shortened_;
};

}  // namespace varnel::render
