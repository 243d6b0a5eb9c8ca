#pragma once

#include <string>

#include "host/application.h"
#include "host/exchange_rates.h"

namespace varnel {

/// Which lines an unrealized gain is worked out from.
struct UnrealizedScope {
    Date to = kOpenEnd;
    /// Comma-separated project ids; empty takes all lines.
    std::string project_ids = {};
    /// Parenthesised condition on GLDet, without a leading AND; empty takes all lines.
    std::string segment_clause = {};
};

/// The unrealized exchange gain (negative for a loss) of bank, receivable and payable accounts in
/// home currency: what the foreign amount of each entry up to the date is worth at `rates`, to the
/// cent, less what was booked. Error 91 without rates where they are needed; error 5 naming
/// currency and date when there is no rate.
Currency UnrealizedGain(Application& application, const UnrealizedScope& scope,
                        const RateCollection* rates);

}  // namespace varnel
