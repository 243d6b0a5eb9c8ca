#include "cli/run_monitor.h"

#include "cli/errors.h"
#include "cli/interrupt.h"

namespace varnel::cli {

bool RunMonitor::Report(std::int64_t rows, int pages) {
    if (console_.ProgressIsDue()) {
        std::string text = GroupedCount(rows) + " rows";
        if (pages > 0) text += ", " + GroupedCount(pages) + " pages";
        console_.ShowProgress(text);
    }
    return StopSignal() == 0 && !host_.Database().IsLost();
}

bool RunMonitor::IsOfUse(const engine::RunResult& result) const {
    if (host_.Database().IsLost()) return false;
    if (result.cancelled) throw Interrupted();
    return !StartFailed(result);
}

}  // namespace varnel::cli
