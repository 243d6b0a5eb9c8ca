#include "company/services/fiscal_years.h"

#include <algorithm>

#include "company/services/query.h"

namespace varnel::company {

const std::vector<Date>& FiscalYears::Starts() {
    if (starts_) return *starts_;
    std::vector<Date> starts;
    const auto rows = Query(database_, "SELECT BegDate FROM FiscalYear ORDER BY BegDate");
    for (; !rows->AtEnd(); rows->MoveNext()) starts.push_back(rows->Current().Day(Column{0}));
    return starts_.emplace(std::move(starts));
}

// Years do not overlap, so the last one that begins on or before the date either holds it or is the
// one to fall back to: their ends do not matter.
Date FiscalYears::StartOf(Date date) {
    const auto& starts = Starts();
    const auto after = std::upper_bound(starts.begin(), starts.end(), date);
    if (after == starts.begin()) return Date::FromYearMonthDay(date.Civil().year, 1, 1);
    return *std::prev(after);
}

}  // namespace varnel::company
