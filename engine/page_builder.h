#pragma once

#include "engine/document.h"

namespace varnel::engine {

/// What a page asks for at its edges, and who takes it when it is done. Header and footer are
/// formatted anew for each page; false is none.
class PageEdges {
  public:
    virtual bool MakeHeader(PlacedBand& header) = 0;
    virtual bool MakeFooter(PlacedBand& footer) = 0;
    /// The space to keep free for the footer, as far as one knows before it is formatted.
    virtual Twips FooterHeight() const = 0;
    virtual void Finish(const Page& page) = 0;

  protected:
    ~PageEdges() = default;
};

/// One page at a time: bands from the top down, header first, footer at the bottom.
class PageBuilder {
  public:
    PageBuilder(const PageSetup& setup, PageEdges& edges);

    /// Content begins this far from the paper's left edge.
    void SetLeft(Twips left) { left_ = left; }
    void StartPage();
    /// Unless the page has it: on the first one the report header may come before, and reach on to
    /// another page.
    void AddHeader();
    /// `carried` are the texts of the last row when its group goes on over the page break, else
    /// null.
    void FinishPage(const ItemList* carried = nullptr);
    void BreakPage(const ItemList* carried = nullptr) {
        FinishPage(carried);
        StartPage();
        AddHeader();
    }

    /// Height left above the footer.
    Twips Room() const;
    /// What an empty page leaves for bands, going by the header and footer of the last one.
    Twips RoomOnNewPage() const;
    /// Nothing but header and repeated group headers is on the page.
    bool Fresh() const { return fresh_; }

    void Place(const PlacedBand& band);
    /// Places a band that leaves the page fresh.
    void PlaceRepeated(const PlacedBand& band) { PlaceAt(band, y_); }
    /// The same with what it prints besides where its group goes on.
    void PlaceRepeated(const PlacedBand& band, const ItemList& carried);

  private:
    void PlaceAt(const PlacedBand& band, Twips top);

    PageSetup setup_;
    PageEdges& edges_;
    Twips left_ = 0;
    Twips y_ = 0;
    Twips footer_room_ = 0;
    bool fresh_ = true;
    bool has_header_ = false;
    PlacedBand header_;
    PlacedBand footer_;
    Page page_;
};

}  // namespace varnel::engine
