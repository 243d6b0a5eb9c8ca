#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "host/company.h"

namespace varnel::company {

/// Budgets from AcctBudget, read once. A budget period that the range cuts counts by its days, and
/// each period's share is rounded once to four decimals.
class CompanyBudgets final : public BudgetService {
  public:
    explicit CompanyBudgets(CompanyDatabase& database) : database_(database) {}

    /// Error 5 naming the account when one of its budget periods ends before it begins.
    Currency GetAcctBudgetRange(std::int32_t account_id, Date from, Date to) override;

    /// The next question reads the database again.
    void Forget() { periods_.reset(); }

  private:
    struct Period {
        Date from, to;
        Currency amount;
    };
    using Periods = std::unordered_map<std::int32_t, std::vector<Period>>;
    const Periods& All();
    static Currency Share(const Period& period, Date from, Date to);

    CompanyDatabase& database_;
    std::optional<Periods> periods_;
};

}  // namespace varnel::company
