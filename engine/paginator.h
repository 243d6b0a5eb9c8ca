#pragma once

#include <vector>

#include "engine/band_queue.h"
#include "engine/page_builder.h"

namespace varnel::engine {

/// Decides where pages break. It holds bands back until it is known what must stay with them: a
/// few neighbours, or one page of a group that is kept together. Bands are moved, never made again.
class Paginator {
  public:
    explicit Paginator(PageBuilder& page) : page_(page) {}

    /// Before the first page's header, for the report header.
    void Start() { page_.StartPage(); }
    /// The report header is through: what follows stands below the page header.
    void BeginBody();
    /// Takes the band's content. A band that prints nothing has no height.
    void Add(PlacedBand& band, const BandPlace& place);
    void Finish();

  private:
    static constexpr int kNone = -1;

    bool Joins(const BandPlace& place);
    int OpenGroups(const BandPlace& before) const;
    Twips RepeatedHeight(const BandPlace& before) const;
    void AbandonKeeping();
    void Flush();
    void MakeRoom();
    void BreakPage();
    void RepeatHeaders();
    void PlaceFront();
    void PlaceInPieces(const PlacedBand& band);
    void Remember(const BandQueue::Entry& header);

    PageBuilder& page_;
    BandQueue waiting_;
    int kept_level_ = kNone;  // Of the outermost group that the waiting bands keep together.
    std::vector<PlacedBand> repeated_;  // By level: the open group's header, empty without repeat.
    bool repeat_due_ = false;           // A page was begun and nothing placed on it yet.
    /// Of the last row that was placed; empty in a group that has placed none yet.
    ItemList carried_;
    PlacedBand piece_;
};

}  // namespace varnel::engine
