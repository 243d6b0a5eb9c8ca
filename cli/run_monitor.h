#pragma once

#include "cli/console.h"
#include "company/texts/messages.h"
#include "engine/engine.h"

namespace varnel::cli {

/// Watches a report while it runs: shows how far it is, and cancels it after a signal.
class RunMonitor final : public engine::Progress {
  public:
    RunMonitor(Console& console, const company::HostMessages& messages)
        : console_(console), messages_(messages) {}

    bool Report(std::int64_t rows, int pages) override;
    /// Whether the report told of a failure before it had read a row: it printed nothing of use.
    bool StartFailed(const engine::RunResult& result) const {
        return result.rows == 0 && messages_.BoxesShown() > 0;
    }

  private:
    Console& console_;
    const company::HostMessages& messages_;
};

}  // namespace varnel::cli
