#pragma once

#include <vector>

#include "host/layout.h"

namespace varnel::engine {

/// What a control takes of its section's height: as designed, and as it came out.
struct Extent {
    Box box;
    Twips height = 0;             // As it came out.
    bool gives_way = false;       // Takes what it needs, be it less than designed: a sub-report.
    bool follows_column = false;  // Moves with what stands above it in its column alone.
    Twips shift = 0;              // The answer: how far it moves down.
};

/// Moves controls down by what grew above them, and up into the place of sub-reports that came out
/// smaller; beside something that keeps its place nothing moves up. Gives the section's height.
class Growth {
  public:
    Twips Settle(std::vector<Extent>& extents, Twips section_height);

  private:
    Twips ShiftOf(const std::vector<Extent>& extents, std::size_t place) const;

    std::vector<std::size_t> order_;  // From top to bottom.
};

}  // namespace varnel::engine
