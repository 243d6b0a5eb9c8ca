#pragma once

#include <memory>
#include <optional>
#include <string>

#include "framework/custom_criteria.h"
#include "framework/report_base.h"
#include "framework/revalued_report.h"
#include "framework/segment_filter.h"
#include "reports/trial/account_amounts.h"

namespace varnel::reports {

/// GIFI report: the balance of every active account that has a GIFI code, grouped by code with a
/// total each. Debit positive.
class dsrGIFIReport final : public framework::ReportBase,
                            public framework::SegmentFilter,
                            public framework::FilterableReport,
                            public framework::RevaluedReport {
  public:
    dsrGIFIReport();

    void IReport_Initialize() override;
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
    std::unique_ptr<AccountAmounts> amounts_;
    std::optional<SpecialAccounts> special_;
    KnownSum total_;
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
