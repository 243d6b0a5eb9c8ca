#pragma once

#include <string>

#include "framework/known_sum.h"
#include "reports/trial/trial_report.h"

namespace varnel::reports {

/// GIFI report: the balance of every active account that has a GIFI code, grouped by code with a
/// total each. Debit positive.
class dsrGIFIReport final : public TrialReport {
  public:
    dsrGIFIReport();

    void ActiveReport_ReportStart() override;

  private:
    std::string BuildStatement();
    AccountAmounts::Period BalancePeriod();
    void ResolveColumns(const Columns& columns);
    void ShowDescription();
    void ShowKey(const std::string& key);

    void PageHeader_Format();
    void ghGIFI_Format();
    void Detail_Format();
    void gfGIFI_Format();
    void ReportFooter_Format();

    Column number_, description_;
    framework::KnownSum total_;
    std::int32_t count_ = 0;
    std::string text_;  // Scratch for texts built row by row.

    Section& PageHeader = SectionAt("PageHeader");
    Section& Detail = SectionAt("Detail");
    Control& txtDescr = At("txtDescr");
    Control& txtAmount = At("txtAmount");
    Control& txtTotal = At("txtTotal");
    Control& txtCount = At("txtCount");
};

}  // namespace varnel::reports
