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
    std::int64_t rows = 0;
    int pages = 0;
    bool cancelled = false;
};

/// Runs the report once and hands its live sections to `sink`. No layout is worked out.
RunResult RunToBands(BandedReport& report, const DocumentInfo& info, BandSink& sink,
                     Progress* progress = nullptr);

/// Runs the report once on an endless page of at least `width` twips.
RunResult RunToPlacedBands(BandedReport& report, const DocumentInfo& info, Twips width,
                           Measurer& measurer, PlacedBandSink& sink, Progress* progress = nullptr);

/// Runs the report once and puts its finished pages into `store`.
RunResult RunToPages(BandedReport& report, const PageSetup& setup, Measurer& measurer,
                     PageStore& store, Progress* progress = nullptr);

/// Hands the stored pages to `sink`, from the first to the last.
void WritePages(PageStore& store, const DocumentInfo& info, PageSink& sink);

}  // namespace varnel::engine
