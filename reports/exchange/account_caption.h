#pragma once

#include <cstdint>
#include <string>

#include "accounts/cgl_accts.h"

namespace varnel::reports {

/// "1060 - Bank, US dollars" for the account of that internal id, or its description alone. The
/// collection's error for an account that it does not hold.
std::string CaptionOf(const CGLAccts& accounts, std::int32_t account_id, bool with_number);

/// Drill-down key of an account: "ACC|1043".
std::string AccountKey(std::int32_t account_id);

}  // namespace varnel::reports
