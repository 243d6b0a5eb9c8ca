#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/application.h"
#include "host/currency_info.h"
#include "tests/support/host_calls.h"

namespace varnel::test {

/// Currencies and rates that a test writes down.
class MemoryCurrencyInfo final : public CurrencyInfo, public Currencies {
  public:
    MemoryCurrencyInfo(HostCalls& calls, Formats& formats) : calls_(calls), formats_(formats) {}

    std::int32_t home_id = 1;
    /// By code, the home currency among them.
    std::vector<CurrencyRecord> records{{.id = 1, .code = "CAD", .description = "Canadian dollar"}};
    /// Rates of a currency by the day they are noted.
    std::map<std::int32_t, std::map<Date, Rate>> rate_table;
    std::int32_t unrealized_account_id = 0;
    std::string control_account_ids = "-1";

    std::int32_t CieHomeCurrencyId() override;
    bool CieIsForeignCurrencyUsed() override;
    std::int32_t UnrealizedGainLossAcctId() override;
    void ConfigureExchangeRates(IExchangeRates& target, Date date, bool use_rate_table,
                                std::span<const std::string> filter) override;
    Currency EvaluateValueWithExchangeRate(Rate booked_rate, std::int32_t currency_id,
                                           Currency foreign_amount, IExchangeRates& rates) override;
    void FormatWorldCurrency(Currency amount, std::int32_t currency_id, std::string& out) override;
    Currency Round(Currency amount, int decimals) override;
    Currency RoundProduct(Currency amount, Rate rate, int decimals) override;
    Currencies& GetCurrencies() override;

    const CurrencyRecord& Item(std::int32_t currency_id) override;
    std::string GetCurrenciesLegend(IExchangeRates& rates) override;
    std::string GetAllARAPGLAccountUsed() override;

  private:
    const CurrencyRecord& At(std::int32_t currency_id) const;
    [[noreturn]] static void RaiseNoRate(const std::string& code, const std::string& date);
    HostCalls& calls_;
    Formats& formats_;
};

}  // namespace varnel::test
