#pragma once

#include "host/date.h"

namespace varnel::company::demo {

/// The books open with 2024-01-01 and are kept up to the end of October 2026; exchange rates and
/// fiscal years reach a little further.
Date BooksBegin();
Date BooksEnd();

/// 0 is Monday.
int Weekday(Date date);
bool IsBusinessDay(Date date);
Date MonthBegin(Date date);
Date MonthEnd(Date date);
/// Business days that are left in the month after `date`.
int BusinessDaysLeftInMonth(Date date);
/// Every second Friday.
bool IsPayday(Date date);

}  // namespace varnel::company::demo
