#pragma once

#include <string_view>
#include <vector>

#include "render/text/text_grid.h"

namespace varnel::render {

/// Measures text in character columns, as TextWriter with the same width and columns shows it.
class TextMeasurer final : public engine::Measurer {
  public:
    explicit TextMeasurer(TextGrid grid) : grid_(grid) {}

    Twips LineHeight(const TextStyle& style) override;
    void BreakLines(std::string_view text, const TextStyle& style, Twips width,
                    std::vector<std::string_view>& lines) override;

  private:
    TextGrid grid_;
};

/// The height a line of text takes in its place, so that layouts grow much as they do on paper.
constexpr Twips TextLineHeight(const TextStyle& style) { return style.size * 136 / 100; }

}  // namespace varnel::render
