#pragma once

#include <string>

#include "host/application.h"
#include "host/exchange_rates.h"

namespace varnel::reports {

/// What a statement says of the rates it was given: "Exchange rates (CAD) USD 1.3500; EUR 1.4700".
/// Empty in a company of one currency and without rates.
std::string StatementRatesText(Application& application, IExchangeRates& rates);

}  // namespace varnel::reports
