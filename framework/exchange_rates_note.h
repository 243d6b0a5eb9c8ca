#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/application.h"
#include "host/exchange_rates.h"
#include "host/surface.h"

namespace varnel::framework {

/// PageHeaderControls with a line under the period for the rates that a report revalues at.
std::vector<ControlLayout> PageHeaderControlsWithRates(std::vector<ControlLayout> column_controls);

inline constexpr std::string_view kExchangeRatesNote = "txtExchangeRate";

/// "Exchange rates (" + `what` + ")" in the user's language.
std::string ExchangeRatesText(Application& application, std::string_view what);

/// The rates in words; empty in a company of one currency and without rates.
std::string RatesLegend(Application& application, IExchangeRates& rates);

/// Puts a text into the note's line of the page header, or takes the line away when it is empty.
/// Comes before ReplacePageHeaderControls.
void ShowRatesLine(Surface& surface, const std::string& text);

/// Puts the legend of the rates into the page header, or takes the line away when it is not wanted,
/// in a company of one currency and without rates. Comes before ReplacePageHeaderControls.
void ShowExchangeRatesNote(Application& application, Surface& surface, IExchangeRates& rates,
                           bool wanted = true);

}  // namespace varnel::framework
