#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "company/services/account_params.h"
#include "company/services/settings.h"
#include "host/currency_info.h"

namespace varnel::company {

/// The company's currencies from WorldCurrency, read once.
class CompanyCurrencies final : public Currencies {
  public:
    /// `decimal_mark` is the user's, for rates in words.
    CompanyCurrencies(CompanyDatabase& database, Settings& settings, AccountParams& params,
                      std::string decimal_mark)
        : database_(database),
          settings_(settings),
          params_(params),
          decimal_mark_(std::move(decimal_mark)) {}

    const CurrencyRecord& Item(std::int32_t currency_id) override;
    /// Every foreign currency that has a rate, by code; at least four decimals.
    std::string GetCurrenciesLegend(IExchangeRates& rates) override;
    std::string GetAllARAPGLAccountUsed() override;

    /// Error 5 naming the code and the currencies that there are. Case does not matter.
    const CurrencyRecord& ItemByCode(std::string_view code);
    std::int32_t HomeId();
    bool ForeignUsed();
    /// By code.
    const std::vector<CurrencyRecord>& All();

    /// The next question reads the home currency and the switch again; the list of currencies
    /// stays.
    void Forget() {
        home_id_.reset();
        foreign_used_.reset();
    }

  private:
    CompanyDatabase& database_;
    Settings& settings_;
    AccountParams& params_;
    std::string decimal_mark_;
    std::vector<CurrencyRecord> records_;
    std::unordered_map<std::int32_t, std::size_t> places_;
    std::optional<std::int32_t> home_id_;
    std::optional<bool> foreign_used_;
};

}  // namespace varnel::company
