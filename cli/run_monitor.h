#pragma once

#include "cli/console.h"
#include "cli/told_place.h"
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
    /// Runs a report; whether what it gave is of use: it started, and its database did not go away
    /// meanwhile. Throws Interrupted when the user ended it, and what the run throws with its place
    /// (told_place.h), unless a message told of the same loss before.
    template <class Work>
    bool Watch(std::string_view procedure, Work&& run,
               std::uint_least32_t line = __builtin_LINE()) {
        engine::RunResult result;
        try {
            result = TellingPlace(procedure, run, line);
        } catch (const Error&) {
            if (!host_.Database().IsLost() || host_.Messages().BoxesShown() == 0) throw;
        }
        return IsOfUse(result);
    }

  private:
    bool IsOfUse(const engine::RunResult& result) const;

    Console& console_;
    company::CompanyHost& host_;
};

}  // namespace varnel::cli
