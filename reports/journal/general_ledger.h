#pragma once

#include "framework/comparable_report.h"
#include "reports/journal/entry_report.h"

namespace varnel::reports {

/// General ledger: every ledger line of a period, whatever posted it, in the order of the entries.
///
/// The caption of its hidden label `lblType`, read at the start of a run, says whose: "0" takes the
/// lines of all accounts, any other number those of accounts of that type. A caption that is not a
/// number counts as 0.
class dsrGeneralLedger final : public EntryReport, public framework::ComparableReport {
  public:
    dsrGeneralLedger();

  protected:
    std::string Condition() override;
    std::string_view DefaultOrder() const override;
    void BeginRun() override;
    void ShowSelection() override;
    void LineAdded(std::optional<Currency> amount) override;

  private:
    void ShowAccountType();
    void AddComparableLine(std::optional<Currency> amount);

    std::int32_t account_type_ = 0;
};

}  // namespace varnel::reports
