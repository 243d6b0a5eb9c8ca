#include "cli/dialogs/dialog_layout.h"

#include <algorithm>
#include <utility>

#include "render/text/cell_width.h"

namespace varnel::cli {

namespace {

using render::CellPrefix;
using render::CellWidth;

constexpr int kButtonEnds = 4;  // "< " and " >"
constexpr int kCloseMark = 3;   // "[×]"
constexpr int kSideRoom = 3;    // Edge and two blanks, on either side.
constexpr int kWidestText = 74;
constexpr int kNarrowestText = 8;

/// Takes the next line off `rest`, without the blank at which it ends.
std::string_view TakeLine(std::string_view& rest, int columns) {
    if (CellWidth(rest) <= columns) return std::exchange(rest, {});
    const auto fitting = std::max(CellPrefix(rest, columns), CellPrefix(rest, 2));
    const auto blank = rest.substr(0, fitting + 1).rfind(' ');
    const bool breaks_at_blank = blank != std::string_view::npos && blank > 0;
    const auto line = rest.substr(0, breaks_at_blank ? blank : fitting);
    rest.remove_prefix(line.size() + (breaks_at_blank ? 1 : 0));
    return line;
}

/// The caption without marks; "&&" stands for one "&". `marked` is where the accelerator is.
std::string PlainCaption(const std::string& caption, std::size_t& marked) {
    std::string plain;
    marked = std::string::npos;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) {
            if (caption[++i] != '&') marked = plain.size();
        }
        plain += caption[i];
    }
    return plain;
}

std::string CharacterAt(std::string_view text, std::size_t offset) {
    const auto rest = text.substr(offset);
    return std::string(rest.substr(0, CellPrefix(rest, 1)));
}

struct Placed {
    Box place;
    PlacedItem item;
};

std::vector<PlacedItem> ItemsTopToBottom(Form& form) {
    std::vector<Placed> placed;
    for (auto* box : form.CheckBoxes())
        if (box->visible) placed.push_back({box->box, {.box = box, .caption = {}, .area = {}}});
    for (auto* button : form.Buttons())
        placed.push_back({button->box, {.button = button, .caption = {}, .area = {}}});
    std::ranges::stable_sort(placed, [](const Placed& a, const Placed& b) {
        return std::pair(a.place.top, a.place.left) < std::pair(b.place.top, b.place.left);
    });
    std::vector<PlacedItem> items;
    for (auto& [place, item] : placed) items.push_back(std::move(item));
    return items;
}

int EndsOf(const PlacedItem& item) { return item.box != nullptr ? kMarkColumns : kButtonEnds; }

/// Wraps the caption and gives the item its size.
void Measure(PlacedItem& item, int columns) {
    const auto& caption = item.box != nullptr ? item.box->caption : item.button->caption;
    item.caption = WrapCaption(caption, std::max(1, columns - EndsOf(item)));
    for (const auto& line : item.caption.lines)
        item.area.columns = std::max(item.area.columns, CellWidth(line) + EndsOf(item));
    item.area.rows = static_cast<int>(item.caption.lines.size());
}

/// One below the other from the frame's corner; a blank row around them and before each button.
void Place(DialogLayout& layout) {
    int row = layout.frame.top + 2;
    for (auto& item : layout.items) {
        const bool is_button = item.button != nullptr;
        if (is_button && &item != layout.items.data()) ++row;
        const int room = is_button ? (layout.frame.columns - item.area.columns) / 2 : kSideRoom;
        item.area.top = row;
        item.area.left = layout.frame.left + room;
        row += item.area.rows;
    }
    layout.frame.rows = row + 1 - layout.frame.top;
    layout.close_mark = {layout.frame.top, layout.frame.Right() - 1 - kCloseMark, 1, kCloseMark};
}

void MoveDown(DialogLayout& layout, int rows) {
    layout.frame.top += rows;
    layout.close_mark.top += rows;
    for (auto& item : layout.items) item.area.top += rows;
}

int WantedTop(const DialogLayout& layout, int screen_rows, std::size_t focus) {
    const int centred = (screen_rows - layout.frame.rows) / 2;
    if (centred >= 0 || layout.items.empty()) return std::max(0, centred);
    const auto& area = layout.items[std::min(focus, layout.items.size() - 1)].area;
    return std::clamp(screen_rows - 2 - area.Bottom(), screen_rows - layout.frame.rows, 0);
}

}  // namespace

WrappedCaption WrapCaption(const std::string& caption, int columns) {
    std::size_t marked = 0;
    const std::string plain = PlainCaption(caption, marked);
    WrappedCaption wrapped;
    std::string_view rest = plain;
    do {
        const auto line = TakeLine(rest, columns);
        const auto begin = static_cast<std::size_t>(line.data() - plain.data());
        if (marked >= begin && marked < begin + line.size()) {
            wrapped.accelerator = CharacterAt(line, marked - begin);
            wrapped.accelerator_line = wrapped.lines.size();
            wrapped.accelerator_offset = marked - begin;
        }
        wrapped.lines.emplace_back(line);
    } while (!rest.empty());
    return wrapped;
}

DialogLayout LayOutDialog(Form& form, ScreenSize screen, std::size_t focus) {
    const int room = std::clamp(screen.columns - 2 * kSideRoom, kNarrowestText, kWidestText);
    std::size_t ignored = 0;
    DialogLayout layout{.title = PlainCaption(form.Caption(), ignored),
                        .frame = {},
                        .close_mark = {},
                        .items = ItemsTopToBottom(form)};
    // The title stands in the upper edge, with the close mark and as much room on its other side.
    int text = std::min(room, CellWidth(layout.title) + 2 * kCloseMark);
    for (auto& item : layout.items) {
        Measure(item, room);
        text = std::max(text, item.area.columns);
    }
    layout.frame.columns = text + 2 * kSideRoom;
    layout.frame.left = std::max(0, (screen.columns - layout.frame.columns) / 2);
    Place(layout);
    MoveDown(layout, WantedTop(layout, screen.rows, focus));
    return layout;
}

}  // namespace varnel::cli
