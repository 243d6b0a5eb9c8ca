#include "engine/growth.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <tuple>

namespace varnel::engine {

namespace {

bool CameOutAsDesigned(const Extent& extent) { return extent.height == extent.box.height; }

bool IsAbove(const Extent& a, const Extent& b) {
    if (b.follows_column && (a.box.Right() <= b.box.left || b.box.Right() <= a.box.left))
        return false;
    return a.box.Bottom() <= b.box.top;
}

}  // namespace

Twips Growth::Settle(std::vector<Extent>& extents, Twips section_height) {
    // Nearly every band: all came out as designed, and nothing moves.
    if (std::ranges::all_of(extents, CameOutAsDesigned)) return section_height;
    // The end of the section moves like one more control.
    extents.push_back({.box = {0, section_height, 0, 0}});
    order_.resize(extents.size() - 1);
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    // What takes no height comes first: the controls at its place are below it.
    std::sort(order_.begin(), order_.end(), [&](std::size_t a, std::size_t b) {
        const Box& x = extents[a].box;
        const Box& y = extents[b].box;
        return std::tie(x.top, x.height, a) < std::tie(y.top, y.height, b);
    });
    order_.push_back(extents.size() - 1);
    for (std::size_t place = 0; place < order_.size(); ++place)
        extents[order_[place]].shift = ShiftOf(extents, place);

    Twips height = section_height + extents.back().shift;
    extents.pop_back();
    for (const auto& extent : extents)
        if (extent.height > extent.box.height)
            height = std::max(height, extent.box.top + extent.shift + extent.height);
    return height;
}

Twips Growth::ShiftOf(const std::vector<Extent>& extents, std::size_t place) const {
    const Extent& moved = extents[order_[place]];
    std::optional<Twips> shift;
    std::optional<Twips> gap_top;  // The lowest sub-report above: what is above that is too far.
    for (std::size_t i = place; i-- > 0;) {
        const Extent& above = extents[order_[i]];
        if (!IsAbove(above, moved)) continue;
        if (gap_top && above.box.Bottom() <= *gap_top) continue;
        const Twips moved_by = above.shift + above.height - above.box.height;
        shift = std::max(shift.value_or(moved_by), moved_by);
        if (above.gives_way) gap_top = std::max(gap_top.value_or(above.box.top), above.box.top);
    }
    return shift.value_or(0);
}

}  // namespace varnel::engine
