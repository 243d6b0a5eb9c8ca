#pragma once

#include "cli/console.h"
#include "company/company_host.h"
#include "engine/engine.h"

namespace varnel::cli {

/// Watches a report while it runs: shows how far it is, and cancels it after a signal.
class RunMonitor final : public engine::Progress {
  public:
    RunMonitor(Console& console, company::CompanyHost& host) : console_(console), host_(host) {}

    bool Report(std::int64_t rows, int pages) override;
    /// Whether the report told of a failure before it had read a row: it printed nothing of use.
    bool StartFailed(const engine::RunResult& result) const {
        return result.rows == 0 && host_.Messages().BoxesShown() > 0;
    }
    /// Whether what the run gave is of use: it started, and nothing went away meanwhile. Throws
    /// Interrupted when the user ended it.
    bool IsOfUse(const engine::RunResult& result) const;

  private:
    Console& console_;
    company::CompanyHost& host_;
};

}  // namespace varnel::cli
