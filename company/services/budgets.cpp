#include "company/services/budgets.h"

#include <algorithm>

#include "company/services/query.h"
#include "host/decimal.h"
#include "host/error.h"

namespace varnel::company {

const CompanyBudgets::Periods& CompanyBudgets::All() {
    if (periods_) return *periods_;
    Periods periods;
    const auto rows =
        Query(database_, "SELECT ExAcctId, BegDate, EndDate, BudgetAmnt FROM AcctBudget");
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        const std::int32_t account_id = row.Integer(Column{0});
        const Period period{row.Day(Column{1}), row.Day(Column{2}), row.Amount(Column{3})};
        if (period.to < period.from)
            throw Error(error_number::kInvalidArgument, "Budgets",
                        "The budget of the account with the id " + std::to_string(account_id) +
                            " from " + period.from.ToIso() + " ends before it begins");
        periods[account_id].push_back(period);
    }
    return periods_.emplace(std::move(periods));
}

Currency CompanyBudgets::Share(const Period& period, Date from, Date to) {
    const std::int32_t days = std::min(to, period.to) - std::max(from, period.from) + 1;
    if (days <= 0) return {};
    const std::int32_t all_days = period.to - period.from + 1;
    const Int128 share = decimal::DivideRounded(Int128{period.amount.Scaled()} * days, all_days);
    return Currency::FromScaled(decimal::Narrow(share, "The budget"));
}

Currency CompanyBudgets::GetAcctBudgetRange(std::int32_t account_id, Date from, Date to) {
    const auto found = All().find(account_id);
    if (found == All().end()) return {};
    Currency budget;
    for (const auto& period : found->second) budget += Share(period, from, to);
    return budget;
}

}  // namespace varnel::company
