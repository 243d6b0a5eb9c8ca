#pragma once

#include <algorithm>
#include <cstdint>

#include "engine/document.h"

namespace varnel::render {

/// How a layout's width falls onto character columns.
class TextGrid {
  public:
    static constexpr int kDefaultColumns = 120;
    static constexpr int kLeastColumns = 80;

    /// `width` is the layout's, after widening. Fewer than 80 columns are raised to 80.
    TextGrid(Twips width, int columns)
        : width_(std::max(width, Twips{1})), columns_(std::max(columns, kLeastColumns)) {}

    int Columns() const { return columns_; }
    /// The column boundary nearest to a place.
    int Boundary(Twips place) const {
        const std::int64_t scaled = std::int64_t{std::max(place, Twips{0})} * columns_;
        return static_cast<int>((scaled + width_ / 2) / width_);
    }
    /// Columns that fit a box of this width wherever it stands, with one left blank beside it; at
    /// least one.
    int TextColumns(Twips width) const {
        return std::max(1, static_cast<int>(std::int64_t{width} * columns_ / width_) - 1);
    }

  private:
    Twips width_;
    int columns_;
};

}  // namespace varnel::render
