#pragma once

#include "engine/run_control.h"
#include "engine/section_sink.h"
#include "host/banded_report.h"

namespace varnel::engine {

/// Runs `report` once: raises its events in order and hands each formatted section to `sink`.
/// `depth` is 0 for a report and one more for each sub-report around it. Error 5, and nothing else
/// happens, when the report is running already: a sub-report that holds itself, or a host that
/// runs it from within one of its events. When the run is cancelled the sink hears nothing further,
/// not even the end.
///
/// Whatever happens, the terminate event is raised and the surface is again as the host had set it.
void RunReport(BandedReport& report, SectionSink& sink, RunControl& control, int depth = 0);

}  // namespace varnel::engine
