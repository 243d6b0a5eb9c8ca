#include "company/services/budgets.h"

#include <algorithm>
#include <numeric>

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
        periods[account_id].push_back(period);
    }
    return periods_.emplace(std::move(periods));
}

void CompanyBudgets::ExactSum::Add(const Period& period, std::int64_t days) {
    const std::int64_t all_days = period.to - period.from + 1;
    if (days == all_days) {  // As nearly every one; the divisor stays small.
        numerator_ += Int128{period.amount.Scaled()} * divisor_;
        return;
    }
    const std::int64_t common = std::lcm(divisor_, all_days);
    if (common > kLargestDivisor)
        throw Error(
            error_number::kOverflow, "Budgets",
            "too many budget periods of different lengths overlap on " + period.from.ToIso());
    numerator_ = numerator_ * (common / divisor_) +
                 Int128{period.amount.Scaled()} * days * (common / all_days);
    divisor_ = common;
}

Currency CompanyBudgets::ExactSum::ToCents() const {
    constexpr std::int64_t kCent = Currency::kScale / 100;
    const Int128 cents = decimal::DivideRounded(numerator_, Int128{divisor_} * kCent);
    return Currency::FromScaled(decimal::Narrow(cents * kCent, "The budget"));
}

Currency CompanyBudgets::GetAcctBudgetRange(std::int32_t account_id, Date from, Date to) {
    const auto found = All().find(account_id);
    if (found == All().end()) return {};
    ExactSum budget;
    for (const auto& period : found->second) {
        if (period.to < period.from)
            throw Error(error_number::kInvalidArgument, "Budgets",
                        "The budget of the account with the id " + std::to_string(account_id) +
                            " from " + period.from.ToIso() + " ends before it begins");
        const std::int64_t days = std::min(to, period.to) - std::max(from, period.from) + 1;
        if (days > 0) budget.Add(period, days);
    }
    return budget.ToCents();
}

}  // namespace varnel::company
