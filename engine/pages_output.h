#pragma once

#include "engine/band_composer.h"
#include "engine/page_store.h"
#include "engine/paginator.h"
#include "engine/section_sink.h"

namespace varnel::engine {

/// Sets the sections of a run on pages and stores these.
class PagesOutput final : public SectionSink, private PageEdges {
  public:
    PagesOutput(const PageSetup& setup, Measurer& measurer, PageStore& store, RunControl& control)
        : setup_(setup),
          store_(store),
          control_(control),
          composer_(measurer, control),
          page_(setup, *this),
          paginator_(page_) {}

    void Begin(Surface& surface, PageFrame& frame) override;
    void Write(const Part& part, bool printed) override;
    void BeginBody() override { paginator_.BeginBody(); }
    void End() override { paginator_.Finish(); }

  private:
    bool MakeHeader(PlacedBand& header) override { return Make(frame_->FormatHeader(), header); }
    bool MakeFooter(PlacedBand& footer) override { return Make(frame_->FormatFooter(), footer); }
    Twips FooterHeight() const override { return frame_->FooterHeight(); }
    void Finish(const Page& page) override;
    bool Make(const Part* part, PlacedBand& band);

    PageSetup setup_;
    PageStore& store_;
    RunControl& control_;
    BandComposer composer_;
    PageBuilder page_;
    Paginator paginator_;
    PageFrame* frame_ = nullptr;
    PlacedBand band_;
};

}  // namespace varnel::engine
