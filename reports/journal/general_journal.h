#pragma once

#include <cstdint>
#include <string>

#include "framework/custom_criteria.h"
#include "framework/debit_credit.h"
#include "framework/report_base.h"
#include "framework/segment_filter.h"

namespace varnel::reports {

/// General journal: every ledger line of a period that a journal entry, a bank transfer or a bank
/// reconciliation posted, by entry, with totals per entry and for the report.
class dsrGeneralJournal final : public framework::ReportBase,
                                public framework::SegmentFilter,
                                public framework::FilterableReport {
  public:
    dsrGeneralJournal();

    void ActiveReport_ReportStart() override;

  private:
    struct JournalColumns {
        Column currency_id, seq_no, amount, foreign_amount, date, description, reference, source,
            source_key, remarks, project_id, account_number, account_description, project;
        void Resolve(const Columns& columns);
    };

    std::string BuildStatement();
    void MoveAmountColumns();
    bool ShowsForeignAmount() const;
    void ShowAccount();
    void ShowProject();
    void ShowForeignAmount();
    void ShowDate();
    Currency AddLine();
    /// Home-currency text and value in one.
    void PutAmount(Control& control, Currency amount);
    void PutTotals(Control& debit, Control& credit, const framework::DebitCredit& totals);

    void PageHeader_Format();
    void ghSeqNo_Format();
    void Detail_Format();
    void gfComment_Format();
    void gfSeqNo_Format();
    void ReportFooter_Format();

    JournalColumns columns_;
    framework::DebitCredit entry_;
    framework::DebitCredit report_;
    std::int32_t entry_count_ = 0;
    bool foreign_used_ = false;
    std::string text_;  // Scratch for texts built row by row.

    Section& PageHeader = SectionAt("PageHeader");
    Section& gfComment = SectionAt("gfComment");
    Control& txtSeqNo = At("txtSeqNo");
    Control& txtDate = At("txtDate");
    Control& txtDescription = At("txtDescription");
    Control& txtAccount = At("txtAccount");
    Control& txtProject = At("txtProject");
    Control& txtDebit = At("txtDebit");
    Control& txtCredit = At("txtCredit");
    Control& txtForeign = At("txtForeign");
    Control& txtForeignCode = At("txtForeignCode");
    Control& txtRemarks = At("txtRemarks");
    Control& txtDebitTotal = At("txtDebitTotal");
    Control& txtCreditTotal = At("txtCreditTotal");
    Control& txtDebitGrandTotal = At("txtDebitGrandTotal");
    Control& txtCreditGrandTotal = At("txtCreditGrandTotal");
    Control& txtCount = At("txtCount");
};

}  // namespace varnel::reports
