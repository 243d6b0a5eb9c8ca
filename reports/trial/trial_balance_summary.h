#pragma once

#include <string>

#include "framework/comparable_report.h"
#include "framework/debit_credit.h"
#include "framework/excel_add_in_export.h"
#include "reports/trial/trial_report.h"

namespace varnel::reports {

/// Trial balance summary: one line an account with its balance at the end of the period, in a debit
/// or a credit column.
class dsrTrialBalanceSummary final : public TrialReport,
                                     public framework::ComparableReport,
                                     public framework::ExcelAddInExport,
                                     public IReportConfig {
  public:
    dsrTrialBalanceSummary();

    std::string IExcelAddInExport_ExcelAddInTemplate() override { return "TrialBalance"; }
    void IReportConfig_ShowConfigurationScreen() override;
    void ActiveReport_ReportStart() override;

  private:
    std::string BuildStatement();
    AccountAmounts::Period BalancePeriod();
    void PlaceColumns();
    void ResolveColumns(const Columns& columns);
    void ShowKey(const std::string& key);
    bool IsInForeignCurrency(const TrialAccount& account) const;
    void ShowForeignBalance(const TrialAccount& account);
    bool IsLeftOut(Currency amount) const;
    void IComparableReportActions(const TrialAccount& account, Currency amount);
    void SeAdjControlsPosition(bool visible);
    void SetAdjControlsValue();

    void PageHeader_Format();
    void Detail_Format();
    void ReportFooter_Format();

    Column currency_code_, inactive_;
    framework::DebitCredit totals_;
    bool include_zero_balances_ = false;
    bool foreign_used_ = false;
    std::string text_;  // Scratch for texts built row by row.

    Section& PageHeader = SectionAt("PageHeader");
    Section& Detail = SectionAt("Detail");
    Section& ReportFooter = SectionAt("ReportFooter");
    Control& txtAcctId = At("txtAcctId");
    Control& txtDescr = At("txtDescr");
    Control& txtCurrency = At("txtCurrency");
    Control& txtCurrencyCode = At("txtCurrencyCode");
    Control& txtDebit = At("txtDebit");
    Control& txtCredit = At("txtCredit");
    Control& txtDescrAdj = At("txtDescrAdj");
    Control& txtDebitAdj = At("txtDebitAdj");
    Control& txtCreditAdj = At("txtCreditAdj");
    Control& txtDebitGrandTotal = At("txtDebitGrandTotal");
    Control& txtCreditGrandTotal = At("txtCreditGrandTotal");
};

}  // namespace varnel::reports
