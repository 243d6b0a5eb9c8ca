#include "engine/paginator.h"

#include <algorithm>
#include <utility>

#include "engine/band_splitter.h"

namespace varnel::engine {

void Paginator::BeginBody() {
    Flush();
    page_.AddHeader();
}

void Paginator::Finish() {
    Flush();
    page_.FinishPage();
}

void Paginator::Add(PlacedBand& band, const BandPlace& place) {
    if (!waiting_.Empty() && !Joins(place)) Flush();
    if (kept_level_ == kNone && place.keep_together) kept_level_ = place.level;
    waiting_.Push(band, place);
    if (kept_level_ == kNone) {
        // Sure to move whatever follows: do it while handlers of the page header see this row.
        if (waiting_.Height() > page_.Room()) MakeRoom();
    } else if (waiting_.Height() > page_.RoomOnNewPage()) {
        AbandonKeeping();
    }
}

bool Paginator::Joins(const BandPlace& place) {
    return StayTogether(waiting_.Back().place, place) ||
           (kept_level_ != kNone && IsInsideGroup(place, kept_level_));
}

/// The group does not fit on a page: its bands wait again, as those of an ordinary group.
void Paginator::AbandonKeeping() {
    BandQueue again = std::exchange(waiting_, {});
    bool abandoned = false;
    kept_level_ = kNone;
    for (; !again.Empty(); again.Pop()) {
        auto& [band, place] = again.Front();
        if (!abandoned && place.keep_together) {
            place.keep_together = false;
            abandoned = true;
        }
        Add(band, place);
    }
}

void Paginator::Flush() {
    if (waiting_.Height() > page_.Room()) MakeRoom();
    while (!waiting_.Empty()) PlaceFront();
    kept_level_ = kNone;
}

/// All that waits goes to a new page. What does not even fit there goes on page after page.
void Paginator::MakeRoom() {
    if (!page_.Fresh()) BreakPage();
    while (waiting_.Height() > page_.Room()) PlaceFront();
}

void Paginator::PlaceFront() {
    auto& front = waiting_.Front();
    const Twips height = front.band.height;
    if (height > page_.Room() && !page_.Fresh() && height <= page_.RoomOnNewPage()) BreakPage();
    if (repeat_due_) RepeatHeaders();
    if (height > page_.Room())
        PlaceInPieces(front.band);
    else
        page_.Place(front.band);
    if (front.place.kind == SectionKind::kGroupHeader) Remember(front);
    if (front.place.kind == SectionKind::kDetail) std::swap(carried_, front.band.carried);
    waiting_.Pop();
}

void Paginator::PlaceInPieces(const PlacedBand& band) {
    Twips from = 0;
    while (band.height - from > page_.Room()) {
        Twips to = BandSplitter::CutBelow(band, from, page_.Room());
        // A text taller than an empty page has nowhere better to go.
        if (to == from && page_.Fresh()) to = from + page_.Room();
        if (to > from) {
            BandSplitter::Copy(band, from, to, piece_);
            page_.Place(piece_);
        }
        page_.BreakPage();
        from = to;
    }
    BandSplitter::Copy(band, from, band.height, piece_);
    page_.Place(piece_);
}

void Paginator::Remember(const BandQueue::Entry& header) {
    const auto level = static_cast<std::size_t>(header.place.level);
    if (repeated_.size() <= level) repeated_.resize(level + 1);
    if (header.place.repeat)
        repeated_[level] = header.band;
    else
        repeated_[level].height = 0;
    carried_.Clear();
}

void Paginator::BreakPage() {
    const SectionKind next = waiting_.Front().place.kind;
    const bool goes_on = next == SectionKind::kDetail || next == SectionKind::kGroupFooter;
    page_.BreakPage(goes_on && !carried_.Empty() ? &carried_ : nullptr);
    repeat_due_ = true;
}

/// Only now, when all that must stay together is known: that goes before repeating.
void Paginator::RepeatHeaders() {
    repeat_due_ = false;
    const BandPlace& next = waiting_.Front().place;
    if (RepeatedHeight(next) + waiting_.Height() > page_.Room()) return;
    for (int level = 0; level < OpenGroups(next); ++level) {
        const auto& header = repeated_[static_cast<std::size_t>(level)];
        if (header.height > 0) page_.PlaceRepeated(header, carried_);
    }
}

/// How many groups go on over a page break before this band.
int Paginator::OpenGroups(const BandPlace& before) const {
    switch (before.kind) {
        case SectionKind::kGroupHeader:
            return before.level;
        case SectionKind::kDetail:
            return static_cast<int>(repeated_.size());
        case SectionKind::kGroupFooter:
            return before.level + 1;
        default:
            return 0;
    }
}

Twips Paginator::RepeatedHeight(const BandPlace& before) const {
    Twips height = 0;
    for (int level = 0; level < OpenGroups(before); ++level)
        height += repeated_[static_cast<std::size_t>(level)].height;
    return height;
}

}  // namespace varnel::engine
