#pragma once

#include <string_view>
#include <vector>

#include "engine/document.h"
#include "render/fonts/font_set.h"

namespace varnel::render {

/// Measures text as PdfPageWriter draws it.
class PrintMeasurer final : public engine::Measurer {
  public:
    /// `fonts` must outlive the measurer.
    explicit PrintMeasurer(FontSet& fonts) : fonts_(fonts) {}

    Twips LineHeight(const TextStyle& style) override;
    void BreakLines(std::string_view text, const TextStyle& style, Twips width,
                    std::vector<std::string_view>& lines) override;

  private:
    FontSet& fonts_;
};

}  // namespace varnel::render
