#include "reports/statements/comparison_period.h"

#include <algorithm>

#include "framework/procedure.h"
#include "framework/query_runner.h"

namespace varnel::reports {

using framework::Mark;

namespace {

constexpr const char* kFiscalYears =
    "SELECT FiscalYearDet.BegDate, FiscalYearDet.EndDate FROM FiscalYearDet "
    "WHERE FiscalYearDet.BegDate BETWEEN ? AND ? OR FiscalYearDet.EndDate BETWEEN ? AND ? OR "
    "(FiscalYearDet.BegDate < ? AND FiscalYearDet.EndDate > ?) ORDER BY FiscalYearDet.EndDate";

Date YearBefore(Date date) {
    const auto [year, month, day] = date.Civil();
    return Date::FromYearMonthDay(year - 1, month, day);
}

}  // namespace

Period PeriodOfLastYear(Application& application, const Period& period) {
    Period cut{YearBefore(period.from), YearBefore(period.to)};
    const Variant first = cut.from, last = cut.to;
    const Variant parameters[] = {first, last, first, last, first, last};
    const auto rows = (Mark(), framework::RunQuery(application, kFiscalYears, parameters));
    if (Mark(), rows->AtEnd()) return cut;
    const Column begins = (Mark(), rows->GetColumns().At("BegDate"));
    const Column ends = (Mark(), rows->GetColumns().At("EndDate"));
    Mark(), cut.from = std::max(cut.from, rows->Current().Day(begins));
    Date end;
    for (; !(Mark(), rows->AtEnd()); (Mark(), rows->MoveNext())) end = rows->Current().Day(ends);
    cut.to = std::min(cut.to, end);
    return cut;
}

}  // namespace varnel::reports
