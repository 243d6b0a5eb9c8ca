#pragma once

#include <string>
#include <vector>

#include "host/dialogs.h"

namespace varnel::cli {

/// A rectangle of a terminal, in character cells from its upper left corner.
struct Cells {
    int top = 0;
    int left = 0;
    int rows = 0;
    int columns = 0;
    int Bottom() const { return top + rows; }
    int Right() const { return left + columns; }
    bool Contains(int row, int column) const {
        return row >= top && row < Bottom() && column >= left && column < Right();
    }
};

struct ScreenSize {
    int rows = 0;
    int columns = 0;
};

/// A caption in lines, without its accelerator mark.
struct WrappedCaption {
    std::vector<std::string> lines;
    std::string accelerator;  // The marked character; empty for none.
    std::size_t accelerator_line = 0;
    std::size_t accelerator_offset = 0;  // In bytes, in that line.
};

/// Lines of at most `columns` cells, broken at blanks; a word that is longer is cut.
WrappedCaption WrapCaption(const std::string& caption, int columns);

/// A check box or a button in its place: "[x] " or "< " stand before the first line.
struct PlacedItem {
    CheckBox* box = nullptr;
    Button* button = nullptr;
    WrappedCaption caption;
    Cells area;
};

/// Where a form stands on a screen: its visible items one below the other in a frame, from top to
/// bottom as the form's geometry has them. What lies outside the screen is not seen.
struct DialogLayout {
    std::string title;
    Cells frame;
    Cells close_mark;  // In the frame's upper edge.
    std::vector<PlacedItem> items;
};

inline constexpr int kMarkColumns = 4;  // "[x] "

/// A form that is higher than the screen is moved up until the item `focus` can be seen.
DialogLayout LayOutDialog(Form& form, ScreenSize screen, std::size_t focus);

}  // namespace varnel::cli
