#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "host/company.h"
#include "host/decimal.h"

namespace varnel::company {

/// Budgets from AcctBudget, read once. A budget period that the range cuts counts by its days; the
/// periods are added up exactly and their sum is rounded once, to the cent.
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

    /// Of the parts of periods, as a fraction.
    class ExactSum {
      public:
        /// Error 6 when the periods have no common divisor that is small enough.
        void Add(const Period& period, std::int64_t days);
        Currency ToCents() const;

      private:
        static constexpr std::int64_t kLargestDivisor = 1'000'000'000'000;
        Int128 numerator_ = 0;  // Of ten-thousandths.
        std::int64_t divisor_ = 1;
    };

    CompanyDatabase& database_;
    std::optional<Periods> periods_;
};

}  // namespace varnel::company
