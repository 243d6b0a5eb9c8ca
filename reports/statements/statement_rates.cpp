#include "reports/statements/statement_rates.h"

#include "framework/exchange_rates_note.h"

namespace varnel::reports {

std::string StatementRatesText(Application& application, IExchangeRates& rates) {
    const std::string legend = framework::RatesLegend(application, rates);
    if (legend.empty()) return legend;
    auto& info = application.CurrentContext().CurrentCompany().GetCurrencyInfo();
    const auto& home = info.GetCurrencies().Item(info.CieHomeCurrencyId());
    return framework::ExchangeRatesText(application, home.code) + " " + legend;
}

}  // namespace varnel::reports
