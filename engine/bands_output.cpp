#include "engine/bands_output.h"

namespace varnel::engine {

void BandsOutput::Start(Surface& surface) {
    if (depth_ == 0) sink_.Begin(info_, surface);
}

void BandsOutput::Take(const Part& part) {
    sink_.Write(*part.section, {.depth = depth_, .level = part.level});
    if (part.has_sub_reports) RunSubReports(*part.section);
}

void BandsOutput::Pass(const Part& part) {
    if (part.level < 0) return;
    sink_.Write(*part.section, {.depth = depth_, .level = part.level, .printed = false});
}

void BandsOutput::RunSubReports(const Section& section) {
    for (const auto& control : section.Controls()) {
        if (control.Design().kind != ControlKind::kSubReport || !control.Visible()) continue;
        // Held, as a handler may take it away while it runs.
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        const auto report = control.SubReport();
        if (report == nullptr) continue;
        BandsOutput inner(info_, sink_, control_, depth_ + 1);
        RunReport(*report, inner, control_, depth_ + 1);
    }
}

}  // namespace varnel::engine
