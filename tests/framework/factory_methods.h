#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "framework/cls_report.h"
#include "host/variant.h"

namespace varnel::test {

/// A method of the factory, called both ways.
struct FactoryMethod {
    std::string name;
    const char* class_name;
    std::function<std::shared_ptr<IReport>(clsReport& factory)> call;
    std::vector<Variant> arguments = {};
    /// What the report must then answer, late-bound.
    std::vector<std::pair<const char*, const char*>> options = {};
    /// Shows a message and gives null when it fails; the others raise the error again.
    bool shows_message = false;
};

inline std::vector<FactoryMethod> FactoryMethods() {
    const Date to = Date::ParseIso("2025-12-31");
    const Date from = Date::ParseIso("2025-01-01");
    return {
        {"TrialBalanceDetail",
         "dsrTrialBalanceDetail",
         [](clsReport& f) { return f.TrialBalanceDetail(true); },
         {true},
         {{"HideInactiveAccounts", "True"}},
         true},
        {"BalanceSheet", "dsrBalanceSheet", &clsReport::BalanceSheet},
        {"IncomeStatement", "dsrIncomeStatement", &clsReport::IncomeStatement, {}, {}, true},
        {"IncomeStatementProj",
         "dsrIncomeStatement",
         [=](clsReport& f) { return f.IncomeStatementProj("3,7", to, from); },
         {"3,7", to, from},
         {{"ProjIds", "3,7"}, {"CumulDateTo", "2025-12-31"}, {"CumulDateFrom", "2025-01-01"}},
         true},
        {"ComparativeIncomeStatement",
         "dsrComparativeIncomeStatement",
         &clsReport::ComparativeIncomeStatement,
         {},
         {{"IsBudgetComparative", "False"}}},
        {"ComparativeIncomeStatementBudget",
         "dsrComparativeIncomeStatement",
         &clsReport::ComparativeIncomeStatementBudget,
         {},
         {{"IsBudgetComparative", "True"}}},
        {"ComparativeBalanceSheet", "dsrComparativeBalanceSheet",
         &clsReport::ComparativeBalanceSheet},
        {"BankReconciliation", "dsrBankReconciliation", &clsReport::BankReconciliation},
        {"CurrentBankReconciliation", "dsrCurrentBankReconciliation",
         &clsReport::CurrentBankReconciliation},
        {"GeneralLedger",
         "dsrGeneralLedger",
         [](clsReport& f) { return f.GeneralLedger(4); },
         {std::int16_t{4}},
         {{"lblType", "4"}}},
        {"GeneralLedgerByAccount", "dsrGeneralLedgerByAccount", &clsReport::GeneralLedgerByAccount},
        {"GeneralJournal", "dsrGeneralJournal", &clsReport::GeneralJournal},
        {"TrialBalanceSummary", "dsrTrialBalanceSummary", &clsReport::TrialBalanceSummary},
        {"UnRealExchProfitLoss", "dsrUnRealExchProfitloss", &clsReport::UnRealExchProfitLoss},
        {"UnRealExchProfitLossDetail", "dsrUnRealExchProfitlossDetail",
         &clsReport::UnRealExchProfitLossDetail},
        {"RealizedExchProfitLoss", "dsrRealizedExchProfitloss", &clsReport::RealizedExchProfitLoss},
        {"GIFIReport", "dsrGIFIReport", &clsReport::GIFIReport},
    };
}

}  // namespace varnel::test
