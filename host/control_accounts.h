#pragma once

#include <cstdint>

#include "host/company.h"

namespace varnel {

/// Receivable and payable control accounts: those of a currency, the company's where it has none of
/// its own. What stands on them is owed in the currency of the document, so that statements revalue
/// them apart from other foreign accounts.
class ControlAccounts {
  public:
    /// Reads the company's own accounts; the company must outlive it.
    explicit ControlAccounts(Company& company);

    /// Whether the account is a control account of that currency. Error 5 when there is no such
    /// currency.
    bool Holds(std::int32_t account_id, std::int32_t currency_id) const;

  private:
    Company& company_;
    std::int32_t receivable_;
    std::int32_t payable_;
};

}  // namespace varnel
