#pragma once

#include <string>

#include "host/application.h"

namespace varnel::framework {

/// The period as journals and ledgers caption it: text 3012, the first date, text 3013, the last
/// date; text 1376 when either limit is open.
std::string JournalPeriodCaption(Application& application, Date from, Date to);

}  // namespace varnel::framework
