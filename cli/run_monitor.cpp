#include "cli/run_monitor.h"

#include "cli/interrupt.h"

namespace varnel::cli {

bool RunMonitor::Report(std::int64_t rows, int pages) {
    if (console_.ProgressIsDue()) {
        std::string text = GroupedCount(rows) + " rows";
        if (pages > 0) text += ", " + GroupedCount(pages) + " pages";
        console_.ShowProgress(text);
    }
    return StopSignal() == 0;
}

}  // namespace varnel::cli
