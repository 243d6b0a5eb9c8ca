#include "render/text/text_writer.h"

#include <algorithm>

#include "render/text/cell_width.h"
#include "render/text/text_measurer.h"

namespace varnel::render {

namespace {

// Items whose middles are less than this apart stand on one line: half a line of small type.
constexpr Twips kSameLine = 100;
// Space that shows as a blank line.
constexpr Twips kBlankLine = 160;
// A rule from here on is drawn double.
constexpr Twips kHeavyRule = 30;

bool IsRule(const engine::Item& item) { return item.kind == engine::ItemKind::kRule; }

bool IsShown(const engine::Item& item, std::string_view text) {
    if (IsRule(item)) return item.box.width > item.box.height;
    return item.kind == engine::ItemKind::kText && !WithoutTrailingBlanks(text).empty();
}

/// Of the line of text, which is centred in its box; one of several lines begins at its top.
Twips Middle(const engine::Item& item) {
    const Twips line = TextLineHeight(item.style);
    const bool one_line = IsRule(item) || item.box.height < 2 * line;
    return item.box.top + (one_line ? item.box.height : line) / 2;
}

Twips Top(const engine::Item& item) {
    return IsRule(item) ? item.box.top : Middle(item) - TextLineHeight(item.style) / 2;
}

Twips Bottom(const engine::Item& item) {
    return IsRule(item) ? item.box.Bottom() : Middle(item) + TextLineHeight(item.style) / 2;
}

}  // namespace

TextWriter::TextWriter(ByteSink& sink, const TextOptions& options)
    : output_(sink),
      grid_(TextGrid::kLeastColumns, options.columns),
      texts_(grid_.Columns(), options),
      rules_(options) {}

void TextWriter::Begin(const engine::DocumentInfo&, Twips width) {
    grid_ = TextGrid(width, grid_.Columns());
    band_top_ = 0;
    bottom_.reset();
}

void TextWriter::Write(const engine::PlacedBand& band) {
    SortLines(band.content);
    WriteRows(band.content);
    band_top_ += band.height;
    output_.EndRecord();
}

void TextWriter::SortLines(const engine::ItemList& content) {
    lines_.clear();
    for (const engine::Item& item : content.Items()) {
        if (!IsShown(item, content.Text(item))) continue;
        const Line line{Middle(item), &item};
        const auto after = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& other) {
            return other.middle <= line.middle;
        });
        lines_.insert(after.base(), line);
    }
}

void TextWriter::WriteRows(const engine::ItemList& content) {
    for (auto line = lines_.begin(); line != lines_.end();) {
        const auto first = line;
        Twips top = Top(*first->item);
        Twips bottom = Bottom(*first->item);
        for (; line != lines_.end(); ++line) {
            const engine::Item& item = *line->item;
            if (IsRule(item) != IsRule(*first->item)) break;
            if (line->middle - first->middle >= kSameLine) break;
            top = std::min(top, Top(item));
            bottom = std::max(bottom, Bottom(item));
            AddToRow(item, content.Text(item));
        }
        EndRow(top, bottom);
    }
}

void TextWriter::AddToRow(const engine::Item& item, std::string_view text) {
    const int left = grid_.Boundary(item.box.left);
    const int right = std::max(left + 1, grid_.Boundary(item.box.Right()));
    if (IsRule(item)) return rules_.Add(left, right, item.box.height >= kHeavyRule);
    texts_.Add({text, left, right, item.align, item.figure, item.style.bold});
}

void TextWriter::EndRow(Twips top, Twips bottom) {
    std::string& out = output_.Bytes();
    if (bottom_ && band_top_ + top - *bottom_ >= kBlankLine) out += '\n';
    bottom_ = band_top_ + bottom;
    if (!rules_.Empty()) rules_.AppendTo(out);
    if (!texts_.Empty()) texts_.AppendTo(out);
    rules_.Clear();
    texts_.Clear();
}

}  // namespace varnel::render
