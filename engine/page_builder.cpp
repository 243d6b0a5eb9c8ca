#include "engine/page_builder.h"

#include <algorithm>

namespace varnel::engine {

namespace {

// An empty page takes at least a line, however tall its header and footer: a run must come to an
// end.
constexpr Twips kLeastRoom = 240;

}  // namespace

PageBuilder::PageBuilder(const PageSetup& setup, PageEdges& edges) : setup_(setup), edges_(edges) {
    page_.width = setup.paper_width;
    page_.height = setup.paper_height;
}

void PageBuilder::StartPage() {
    page_.content.Clear();
    y_ = setup_.margin_top;
    fresh_ = true;
    has_header_ = false;
    footer_room_ = std::max(edges_.FooterHeight(), footer_.height);
}

void PageBuilder::AddHeader() {
    if (has_header_) return;
    has_header_ = true;
    if (!edges_.MakeHeader(header_)) {
        header_.height = 0;
        return;
    }
    if (!fresh_ && header_.height > Room()) {
        FinishPage();
        StartPage();
        has_header_ = true;
    }
    PlaceRepeated(header_);
}

void PageBuilder::FinishPage(const ItemList* carried) {
    if (edges_.MakeFooter(footer_)) {
        const Twips bottom = setup_.paper_height - setup_.margin_bottom;
        const Twips top = std::max(y_, bottom - footer_.height);
        if (carried != nullptr)
            page_.content.AppendCarried(footer_.over_break, *carried, left_, top);
        PlaceAt(footer_, top);
    }
    edges_.Finish(page_);
}

Twips PageBuilder::Room() const {
    const Twips room = setup_.paper_height - setup_.margin_bottom - footer_room_ - y_;
    return std::max(room, fresh_ ? kLeastRoom : 0);
}

Twips PageBuilder::RoomOnNewPage() const {
    const Twips body = setup_.paper_height - setup_.margin_top - setup_.margin_bottom;
    return std::max(body - header_.height - footer_room_, kLeastRoom);
}

void PageBuilder::Place(const PlacedBand& band) {
    PlaceAt(band, y_);
    if (band.height > 0) fresh_ = false;
}

void PageBuilder::PlaceRepeated(const PlacedBand& band, const ItemList& carried) {
    page_.content.AppendCarried(band.over_break, carried, left_, y_);
    PlaceAt(band, y_);
}

void PageBuilder::PlaceAt(const PlacedBand& band, Twips top) {
    page_.content.Append(band.content, left_, top);
    y_ = top + band.height;
}

}  // namespace varnel::engine
