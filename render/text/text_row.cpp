#include "render/text/text_row.h"

#include <algorithm>

#include "render/text/cell_width.h"

namespace varnel::render {

namespace {

constexpr std::string_view kBoldOn = "\x1b[1m";
constexpr std::string_view kBoldOff = "\x1b[0m";

int NaturalStart(const TextCell& cell, int width) {
    if (cell.align == Align::kRight) return cell.right - width;
    if (cell.align == Align::kCenter) return (cell.left + cell.right - width) / 2;
    return cell.left;
}

void AppendBlanks(std::string& out, int count) {
    if (count > 0) out.append(static_cast<std::size_t>(count), ' ');
}

}  // namespace

void TextRow::Add(const TextCell& cell) {
    const int width = CellWidth(cell.text);
    const int natural = std::max(0, NaturalStart(cell, width));
    const Placed placed{cell, width, natural, std::max(cell.left, natural)};
    const auto after = std::find_if(cells_.rbegin(), cells_.rend(), [&](const Placed& other) {
        return other.order <= placed.order;
    });
    cells_.insert(after.base(), placed);
}

void TextRow::Place() {
    int cursor = 0;
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        Placed& placed = cells_[i];
        if (placed.cell.figure) {
            placed.start = std::max(placed.natural, cursor);
            placed.shown = placed.width;
        } else if (i + 1 < cells_.size()) {
            const Placed& next = cells_[i + 1];
            PlaceText(placed, cursor, (next.cell.figure ? next.natural : next.order) - 1);
        } else {
            PlaceText(placed, cursor, columns_);
        }
        cursor = placed.start + placed.shown + 1;
    }
}

void TextRow::PlaceText(Placed& placed, int cursor, int limit) const {
    placed.start = std::max(placed.natural, cursor);
    // A figure grew over all of the text's own place: move to the left as far as it is blank.
    if (placed.start >= limit) placed.start = std::max(cursor, limit - placed.width);
    placed.shown = std::min(placed.width, std::max(1, limit - placed.start));
}

void TextRow::AppendTo(std::string& out) {
    Place();
    int column = 0;
    for (const Placed& placed : cells_) AppendCell(out, placed, column);
    out += '\n';
}

void TextRow::AppendCell(std::string& out, const Placed& placed, int& column) const {
    AppendBlanks(out, placed.start - column);
    const bool bold = placed.cell.bold && options_.bold;
    if (bold) out += kBoldOn;
    column = placed.start + AppendText(out, placed);
    if (bold) out += kBoldOff;
}

int TextRow::AppendText(std::string& out, const Placed& placed) const {
    const std::string_view text = WithoutTrailingBlanks(placed.cell.text);
    const int blanks = static_cast<int>(placed.cell.text.size() - text.size());
    if (placed.width - blanks <= placed.shown) {
        AppendCells(out, text);
        return placed.width - blanks;
    }
    const std::string_view ellipsis = options_.ascii ? "..." : "\u2026";
    const int dots = std::min(placed.shown, options_.ascii ? 3 : 1);
    const std::string_view beginning =
        WithoutTrailingBlanks(text.substr(0, CellPrefix(text, placed.shown - dots)));
    AppendCells(out, beginning);
    out += options_.ascii ? ellipsis.substr(0, static_cast<std::size_t>(dots)) : ellipsis;
    return CellWidth(beginning) + dots;
}

void RuleRow::Add(int left, int right, bool heavy) {
    for (Rule& rule : rules_) {
        if (left >= rule.right || right <= rule.left) continue;
        rule.heavy = true;
        rule.left = std::min(rule.left, left);
        rule.right = std::max(rule.right, right);
        return;
    }
    const auto after =
        std::find_if(rules_.begin(), rules_.end(), [&](const Rule& r) { return r.left > left; });
    rules_.insert(after, {left, right, heavy});
}

void RuleRow::AppendTo(std::string& out) const {
    int column = 0;
    for (const Rule& rule : rules_) {
        AppendBlanks(out, rule.left - column);
        for (column = std::max(rule.left, column); column < rule.right; ++column) {
            if (options_.ascii) {
                out += rule.heavy ? '=' : '-';
            } else {
                out += rule.heavy ? "\u2550" : "\u2500";
            }
        }
    }
    out += '\n';
}

}  // namespace varnel::render
