#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/date.h"
#include "host/object.h"
#include "host/report.h"

namespace varnel {

/// The factory of all reports, "Varnel.clsReport". It has no state: each call makes one new report,
/// sets what its arguments say and hands it over; the host owns it. All methods are late-bound too,
/// by their names.
///
/// A method that fails raises the error again with its own name (form B), except
/// TrialBalanceDetail, IncomeStatement and IncomeStatementProj, which show a message and return
/// null (form A).
class clsReport final : public Object {
  public:
    std::string_view ObjectName() const override { return "clsReport"; }
    Variant Call(std::string_view name, std::span<const Variant> arguments) override;

    std::shared_ptr<IReport> TrialBalanceDetail(bool hide_inactive_accounts);
    std::shared_ptr<IReport> BalanceSheet();
    std::shared_ptr<IReport> IncomeStatement();
    /// `project_ids` is comma-separated. Note the order of the dates.
    std::shared_ptr<IReport> IncomeStatementProj(const std::string& project_ids, Date cumul_date_to,
                                                 Date cumul_date_from);
    std::shared_ptr<IReport> ComparativeIncomeStatement();
    std::shared_ptr<IReport> ComparativeIncomeStatementBudget();
    std::shared_ptr<IReport> ComparativeBalanceSheet();
    std::shared_ptr<IReport> BankReconciliation();
    std::shared_ptr<IReport> CurrentBankReconciliation();
    /// `gl_type` reaches the report as the caption of its label lblType, in decimal.
    std::shared_ptr<IReport> GeneralLedger(std::int16_t gl_type);
    std::shared_ptr<IReport> GeneralLedgerByAccount();
    std::shared_ptr<IReport> GeneralJournal();
    std::shared_ptr<IReport> TrialBalanceSummary();
    std::shared_ptr<IReport> UnRealExchProfitLoss();
    std::shared_ptr<IReport> UnRealExchProfitLossDetail();
    std::shared_ptr<IReport> RealizedExchProfitLoss();
    std::shared_ptr<IReport> GIFIReport();
};

}  // namespace varnel
