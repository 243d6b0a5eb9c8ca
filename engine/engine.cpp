#include "engine/engine.h"

#include "engine/bands_output.h"
#include "engine/pages_output.h"
#include "engine/placed_output.h"
#include "engine/runner.h"

namespace varnel::engine {

RunResult RunToBands(BandedReport& report, const DocumentInfo& info, BandSink& sink,
                     Progress* progress) {
    RunControl control(progress);
    BandsOutput output(info, sink, control);
    RunReport(report, output, control);
    if (!control.Cancelled()) sink.End();
    return control.Result();
}

RunResult RunToPlacedBands(BandedReport& report, const DocumentInfo& info, Twips width,
                           Measurer& measurer, PlacedBandSink& sink, Progress* progress) {
    RunControl control(progress);
    PlacedOutput output(info, width, measurer, sink, control);
    RunReport(report, output, control);
    if (!control.Cancelled()) sink.End();
    return control.Result();
}

RunResult RunToPages(BandedReport& report, const PageSetup& setup, Measurer& measurer,
                     PageStore& store, Progress* progress) {
    RunControl control(progress);
    PagesOutput output(setup, measurer, store, control);
    RunReport(report, output, control);
    return control.Result();
}

void WritePages(PageStore& store, const DocumentInfo& info, PageSink& sink) {
    const int count = store.Count();
    sink.Begin(info, count);
    Page page;
    for (int index = 0; index < count; ++index) {
        store.Read(index, page);
        sink.Write(page, index + 1, count);
    }
    sink.End();
}

}  // namespace varnel::engine
