#pragma once

#include "reports/journal/entry_report.h"

namespace varnel::reports {

/// General journal: every ledger line of a period that a journal entry, a bank transfer or a bank
/// reconciliation posted.
class dsrGeneralJournal final : public EntryReport {
  public:
    dsrGeneralJournal();

  protected:
    std::string Condition() override;
    std::string_view DefaultOrder() const override;
};

}  // namespace varnel::reports
