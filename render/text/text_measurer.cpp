#include "render/text/text_measurer.h"

#include "render/text/cell_width.h"

namespace varnel::render {

namespace {

/// Where the next line begins when `fitting` bytes fit on this one: after a space if there is one,
/// otherwise inside the word; never at its very beginning.
std::size_t NextLine(std::string_view text, std::size_t fitting) {
    if (fitting < text.size() && text[fitting] == ' ') return fitting;
    const auto space = text.substr(0, fitting).find_last_of(' ');
    const auto word = text.find_first_not_of(' ');
    if (space != std::string_view::npos && space > word) return space;
    // A wide character in a single column: it does not fit, and there is no narrower line.
    for (int columns = 1; fitting == 0; ++columns) fitting = CellPrefix(text, columns);
    return fitting;
}

void BreakParagraph(std::string_view text, int columns, std::vector<std::string_view>& lines) {
    while (CellWidth(text) > columns) {
        const std::size_t next = NextLine(text, CellPrefix(text, columns));
        lines.push_back(WithoutTrailingBlanks(text.substr(0, next)));
        text.remove_prefix(next);
        const auto word = text.find_first_not_of(' ');
        if (word == std::string_view::npos) return;
        text.remove_prefix(word);
    }
    lines.push_back(text);
}

}  // namespace

Twips TextMeasurer::LineHeight(const TextStyle& style) { return TextLineHeight(style); }

void TextMeasurer::BreakLines(std::string_view text, const TextStyle&, Twips width,
                              std::vector<std::string_view>& lines) {
    lines.clear();
    const int columns = grid_.TextColumns(width);
    while (true) {
        const auto feed = text.find('\n');
        std::string_view paragraph = text.substr(0, feed);
        if (!paragraph.empty() && paragraph.back() == '\r') paragraph.remove_suffix(1);
        BreakParagraph(paragraph, columns, lines);
        if (feed == std::string_view::npos) return;
        text.remove_prefix(feed + 1);
    }
}

}  // namespace varnel::render
