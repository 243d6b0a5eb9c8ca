#pragma once

#include <memory>
#include <string>

#include "host/application.h"
#include "host/exchange_rates.h"

namespace varnel {

/// Figures about accounts for statements that show them as one line, "Varnel.CGLAcctHelper".
///
/// Late-bound, both functions are methods. What fails is raised again with the function's name
/// (form B).
class CGLAcctHelper final : public Object {
  public:
    std::string_view ObjectName() const override { return "CGLAcctHelper"; }
    Variant Call(std::string_view name, std::span<const Variant> arguments) override;

    /// Keeps the application; without one, or without this call, the running host is asked.
    void Init(std::shared_ptr<Application> main_app);

    /// The unrealized exchange gain (negative for a loss) of bank, receivable and payable accounts
    /// in home currency: what their foreign balances up to the date are worth at `exchange_rates`,
    /// each to the cent, less what was booked. `ex_project_id` is a comma-separated list of
    /// projects to take, empty for all. 0, without a look at the books, when not to be revalued.
    ///
    /// Error 91 without an application or, when it is needed, without rates; error 5 naming
    /// currency and date when there is no rate.
    Currency GetPLUnrealOnExchangeRateAmount(Date end_date, bool reevaluate,
                                             const std::shared_ptr<RateCollection>& exchange_rates,
                                             const std::string& ex_project_id);

  private:
    std::shared_ptr<Application> Host() const;

    std::shared_ptr<Application> main_app_;
};

}  // namespace varnel
