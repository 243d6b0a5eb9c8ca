#pragma once

#include "engine/document.h"

namespace varnel::engine {

/// Cuts a band that is taller than a page into pieces. Texts stay whole; rules are cut.
class BandSplitter {
  public:
    /// Where to cut below `from` so that the piece takes at most `room`: above the first text that
    /// would not fit. `from` itself when not even one item fits.
    static Twips CutBelow(const PlacedBand& band, Twips from, Twips room);
    /// Copies what begins between `from` and `to`, with the part of each rule that lies there.
    static void Copy(const PlacedBand& band, Twips from, Twips to, PlacedBand& piece);
};

}  // namespace varnel::engine
