#include "render/pages/print_measurer.h"

#include <cmath>

#include "render/fonts/line_breaker.h"
#include "render/pages/print_style.h"

namespace varnel::render {

Twips PrintMeasurer::LineHeight(const TextStyle& style) {
    const FontMetrics& metrics = fonts_.Metrics(PrintFont(style));
    return static_cast<Twips>(std::ceil((metrics.ascent - metrics.descent) * style.size / 1000));
}

void PrintMeasurer::BreakLines(std::string_view text, const TextStyle& style, Twips width,
                               std::vector<std::string_view>& lines) {
    render::BreakLines(fonts_, PrintFont(style), style.size, width, text, lines);
}

}  // namespace varnel::render
