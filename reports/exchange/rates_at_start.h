#pragma once

#include <span>
#include <string>

#include "framework/revalued_report.h"

namespace varnel::reports {

/// The rates of a report that asks the company for them at the start of each run, unless the host
/// has set them: `IExchangeRates` and the late-bound property `RatesPreset`.
class RatesAtStart : public framework::RevaluedReport {
  public:
    /// Adds its members to those of the report it is a part of.
    explicit RatesAtStart(MemberParts& members);

    /// A run takes the rates that the host has set and does not ask the company for any.
    bool RatesPreset() const { return rates_preset_; }
    void RatesPreset(bool preset) { rates_preset_ = preset; }

  protected:
    /// Takes the rates of that day from the company's table, unless they are preset. `filter` is
    /// handed on to the host, piece by piece.
    void ConfigureRates(CurrencyInfo& info, Date date, std::span<const std::string> filter);

  private:
    bool rates_preset_ = false;
};

}  // namespace varnel::reports
