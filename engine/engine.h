#pragma once

#include <cstdint>

#include "engine/document.h"
#include "engine/page_store.h"
#include "host/banded_report.h"

namespace varnel::engine {

/// Asked now and then while a report runs; false cancels the run.
class Progress {
  public:
    virtual ~Progress() = default;
    virtual bool Report(std::int64_t rows, int pages) = 0;
};

struct RunResult {
    /// Of the report itself, without those of its sub-reports.
    std::int64_t rows = 0;
    int pages = 0;
    bool cancelled = false;
};

// A run raises the report's events in order and always ends with the terminate event; afterwards
// the surface is again as the host had set it. An exception of the feed comes out of the call. When
// a run was cancelled or failed, its sink was not ended and what was made is to be thrown away. A
// sub-report is run as on an endless page: its page header and footer come once.

/// Runs the report once and hands its live sections to `sink`. No layout is worked out.
RunResult RunToBands(BandedReport& report, const DocumentInfo& info, BandSink& sink,
                     Progress* progress = nullptr);

/// Runs the report once on an endless page of at least `width` twips.
RunResult RunToPlacedBands(BandedReport& report, const DocumentInfo& info, Twips width,
                           Measurer& measurer, PlacedBandSink& sink, Progress* progress = nullptr);

/// Runs the report once and adds its finished pages to `store`. A layout narrower than the paper
/// between its side margins is widened, a wider one is centred; error 5 when it is wider than the
/// paper.
RunResult RunToPages(BandedReport& report, const PageSetup& setup, Measurer& measurer,
                     PageStore& store, Progress* progress = nullptr);

/// Hands the stored pages to `sink`, from the first to the last.
void WritePages(PageStore& store, const DocumentInfo& info, PageSink& sink);

}  // namespace varnel::engine
