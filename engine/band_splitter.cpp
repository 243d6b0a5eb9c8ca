#include "engine/band_splitter.h"

#include <algorithm>

namespace varnel::engine {

namespace {

/// The part of the rule between the two lines; nothing of a rule elsewhere.
Box Clipped(Box box, Twips from, Twips to) {
    const Twips top = std::max(box.top, from);
    return {box.left, top, box.width, std::min(box.Bottom(), to) - top};
}

bool BeginsBetween(const Box& box, Twips from, Twips to) {
    return box.top < to && (box.top >= from || from == 0);
}

}  // namespace

Twips BandSplitter::CutBelow(const PlacedBand& band, Twips from, Twips room) {
    Twips cut = std::min(from + room, band.height);
    for (bool moved = true; moved;) {
        moved = false;
        for (const Item& item : band.content.Items()) {
            if (item.kind == ItemKind::kRule) continue;
            if (item.box.top < from || item.box.top >= cut || item.box.Bottom() <= cut) continue;
            cut = item.box.top;
            moved = true;
        }
    }
    return cut;
}

void BandSplitter::Copy(const PlacedBand& band, Twips from, Twips to, PlacedBand& piece) {
    piece.kind = band.kind;
    piece.height = to - from;
    piece.content.Clear();
    for (Item item : band.content.Items()) {
        if (item.kind == ItemKind::kRule) {
            item.box = Clipped(item.box, from, to);
            if (item.box.height <= 0) continue;
        } else if (!BeginsBetween(item.box, from, to)) {
            continue;
        }
        item.box.top -= from;
        piece.content.Add(item, band.content.Text(item));
    }
}

}  // namespace varnel::engine
