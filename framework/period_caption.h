#pragma once

#include <string>

#include "host/application.h"

namespace varnel::framework {

/// The period as journals and ledgers caption it: text 3012, the first date, text 3013, the last
/// date; text 1376 when either limit is open.
std::string JournalPeriodCaption(Application& application, Date from, Date to);

/// The period as trial balances caption it: text 3013, the first date, text 3012, the last date;
/// text 1376 when the end is open.
std::string TrialPeriodCaption(Application& application, Date from, Date to);

/// The period as statements caption it: the first date, text 3012, the last date. An open end reads
/// as the date that the user works at, an open start is left out; text 1376 when both are open.
std::string StatementPeriodCaption(Application& application, Date from, Date to);

/// The closing date of a report that shows balances: text 1776 and the date; text 1376 with an open
/// end.
std::string ClosingDateCaption(Application& application, Date to);

}  // namespace varnel::framework
