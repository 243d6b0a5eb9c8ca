#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "framework/custom_criteria.h"
#include "framework/debit_credit.h"
#include "framework/report_base.h"
#include "framework/segment_filter.h"

namespace varnel::reports {

/// Ledger lines of a period by the entry that posted them, with totals per entry and for the
/// report. A report says which lines it lists and in which order; its layout is an EntryLayout.
class EntryReport : public framework::ReportBase,
                    public framework::SegmentFilter,
                    public framework::FilterableReport {
  public:
    void ActiveReport_ReportStart() override;

  protected:
    EntryReport(const Layout& layout, std::int16_t title_text);

    /// The condition on the lines, with the period's two parameters: "WHERE ... BETWEEN ? AND ? ".
    virtual std::string Condition() = 0;
    /// " ORDER BY ..." without an order of the user's.
    virtual std::string_view DefaultOrder() const = 0;
    /// At the start of a run, before its statement is asked for.
    virtual void BeginRun() {}
    /// Says on the page what was selected besides the period.
    virtual void ShowSelection() {}

    struct LineColumns {
        Column id, currency_id, currency_code, seq_no, amount, foreign_amount, date, description,
            reference, source, source_key, remarks, project_id, account_number, account_description,
            project;
        void Resolve(const Columns& columns);
    };
    /// Of the rows of the run.
    const LineColumns& LineAt() const { return columns_; }
    /// Whether the line is in a foreign currency and these are wanted.
    bool ShowsForeignAmount() const;
    /// After the line was added up, with its amount, debit positive; none when it could not be.
    virtual void LineAdded(std::optional<Currency>) {}

  private:
    std::string BuildStatement();
    void MoveAmountColumns();
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

    LineColumns columns_;
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
