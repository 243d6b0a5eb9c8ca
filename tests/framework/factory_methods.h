#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "framework/cls_report.h"
#include "host/variant.h"

namespace varnel::test {

/// A method of the factory, called both ways.
struct FactoryMethod {
    const char* name;
    const char* class_name;
    std::shared_ptr<IReport> (*call)(clsReport& factory);
    std::vector<Variant> arguments = {};
    std::vector<std::string> options = {};
    const char* type_caption = "";
    /// Shows a message and gives null when it fails; the others raise the error again.
    bool shows_message = false;
};

inline void PrintTo(const FactoryMethod& method, std::ostream* out) { *out << method.name; }

inline std::vector<FactoryMethod> FactoryMethods() {
    const Date to = Date::ParseIso("2025-12-31");
    const Date from = Date::ParseIso("2025-01-01");
    return {
        {"TrialBalanceDetail",
         "dsrTrialBalanceDetail",
         [](clsReport& f) { return f.TrialBalanceDetail(true); },
         {true},
         {"HideInactiveAccounts = True"},
         "",
         true},
        {"BalanceSheet", "dsrBalanceSheet", [](clsReport& f) { return f.BalanceSheet(); }},
        {"IncomeStatement",
         "dsrIncomeStatement",
         [](clsReport& f) { return f.IncomeStatement(); },
         {},
         {},
         "",
         true},
        {"IncomeStatementProj",
         "dsrIncomeStatement",
         [](clsReport& f) {
             return f.IncomeStatementProj("3,7", Date::ParseIso("2025-12-31"),
                                          Date::ParseIso("2025-01-01"));
         },
         {"3,7", to, from},
         {"ProjIds = 3,7", "CumulDateTo = 2025-12-31", "CumulDateFrom = 2025-01-01"},
         "",
         true},
        {"ComparativeIncomeStatement",
         "dsrComparativeIncomeStatement",
         [](clsReport& f) { return f.ComparativeIncomeStatement(); },
         {},
         {"IsBudgetComparative = False"}},
        {"ComparativeIncomeStatementBudget",
         "dsrComparativeIncomeStatement",
         [](clsReport& f) { return f.ComparativeIncomeStatementBudget(); },
         {},
         {"IsBudgetComparative = True"}},
        {"ComparativeBalanceSheet", "dsrComparativeBalanceSheet",
         [](clsReport& f) { return f.ComparativeBalanceSheet(); }},
        {"BankReconciliation", "dsrBankReconciliation",
         [](clsReport& f) { return f.BankReconciliation(); }},
        {"CurrentBankReconciliation", "dsrCurrentBankReconciliation",
         [](clsReport& f) { return f.CurrentBankReconciliation(); }},
        {"GeneralLedger",
         "dsrGeneralLedger",
         [](clsReport& f) { return f.GeneralLedger(0); },
         {std::int16_t{0}},
         {},
         "0"},
        {"GeneralLedgerByAccount", "dsrGeneralLedgerByAccount",
         [](clsReport& f) { return f.GeneralLedgerByAccount(); }},
        {"GeneralJournal", "dsrGeneralJournal", [](clsReport& f) { return f.GeneralJournal(); }},
        {"TrialBalanceSummary", "dsrTrialBalanceSummary",
         [](clsReport& f) { return f.TrialBalanceSummary(); }},
        {"UnRealExchProfitLoss", "dsrUnRealExchProfitloss",
         [](clsReport& f) { return f.UnRealExchProfitLoss(); }},
        {"UnRealExchProfitLossDetail", "dsrUnRealExchProfitlossDetail",
         [](clsReport& f) { return f.UnRealExchProfitLossDetail(); }},
        {"RealizedExchProfitLoss", "dsrRealizedExchProfitloss",
         [](clsReport& f) { return f.RealizedExchProfitLoss(); }},
        {"GIFIReport", "dsrGIFIReport", [](clsReport& f) { return f.GIFIReport(); }},
    };
}

}  // namespace varnel::test
