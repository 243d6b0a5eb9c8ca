#pragma once

#include <utility>
#include <vector>

#include "engine/band_place.h"
#include "engine/document.h"

namespace varnel::engine {

/// Formatted bands that wait for their place, first in, first out. Storage is reused.
class BandQueue {
  public:
    struct Entry {
        PlacedBand band;
        BandPlace place;
    };

    bool Empty() const { return first_ == end_; }
    Twips Height() const { return height_; }
    Entry& Front() { return entries_[first_]; }
    Entry& Back() { return entries_[end_ - 1]; }

    /// Takes the band's content; `band` is left with some former one's storage.
    void Push(PlacedBand& band, const BandPlace& place) {
        if (end_ == entries_.size()) entries_.emplace_back();
        Entry& entry = entries_[end_++];
        std::swap(entry.band, band);
        entry.place = place;
        height_ += entry.band.height;
    }
    void Pop() {
        height_ -= Front().band.height;
        if (++first_ == end_) first_ = end_ = 0;
    }

  private:
    std::vector<Entry> entries_;
    std::size_t first_ = 0;
    std::size_t end_ = 0;
    Twips height_ = 0;
};

}  // namespace varnel::engine
