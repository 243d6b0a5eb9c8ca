#include "framework/cls_report.h"

#include "framework/catalogue.h"
#include "framework/procedure.h"
#include "host/member_table.h"

namespace varnel {

namespace {

using framework::GuardFormA;
using framework::GuardFormB;
using framework::Mark;
using ReportRef = std::shared_ptr<IReport>;

constexpr std::string_view kFactory = "clsReport";

ReportRef Make(std::string_view class_name) {
    for (const auto& entry : framework::Catalogue())
        if (entry.class_name == class_name && entry.make != nullptr) return entry.make();
    Raise(error_number::kCannotCreateObject, "Varnel.clsReport",
          "The report " + std::string(class_name) + " is not part of this version");
}

/// Sets options of a new report, late-bound.
void PutOption(IReport& report, std::string_view name, const Variant& value) {
    report.IReport_ReportDesigner()->Put(name, value);
}

ReportRef MakeFormB(std::string_view method, std::string_view class_name) {
    return GuardFormB(kFactory, method, [&] { return Make(class_name); });
}

ReportRef ComparativeStatement(std::string_view method, bool is_budget_comparative) {
    return GuardFormB(kFactory, method, [&] {
        auto report = Make("dsrComparativeIncomeStatement");
        Mark(), PutOption(*report, "IsBudgetComparative", is_budget_comparative);
        return report;
    });
}

Variant AsVariant(const ReportRef& report) {
    return report == nullptr ? ObjectRef() : ObjectRef(report->IReport_ReportDesigner());
}

using Arguments = std::span<const Variant>;

template <ReportRef (clsReport::*method)()>
Variant CallPlain(clsReport& factory, Arguments) {
    return AsVariant((factory.*method)());
}

constexpr Member<clsReport> kMembers[] = {
    {"TrialBalanceDetail", nullptr, nullptr,
     [](clsReport& f, Arguments a) {
         return AsVariant(f.TrialBalanceDetail(ArgumentAt(a, 0).ToBool()));
     }},
    {"BalanceSheet", nullptr, nullptr, CallPlain<&clsReport::BalanceSheet>},
    {"IncomeStatement", nullptr, nullptr, CallPlain<&clsReport::IncomeStatement>},
    {"IncomeStatementProj", nullptr, nullptr,
     [](clsReport& f, Arguments a) {
         return AsVariant(f.IncomeStatementProj(
             ArgumentAt(a, 0).ToText(), ArgumentAt(a, 1).ToDate(), ArgumentAt(a, 2).ToDate()));
     }},
    {"ComparativeIncomeStatement", nullptr, nullptr,
     CallPlain<&clsReport::ComparativeIncomeStatement>},
    {"ComparativeIncomeStatementBudget", nullptr, nullptr,
     CallPlain<&clsReport::ComparativeIncomeStatementBudget>},
    {"ComparativeBalanceSheet", nullptr, nullptr, CallPlain<&clsReport::ComparativeBalanceSheet>},
    {"BankReconciliation", nullptr, nullptr, CallPlain<&clsReport::BankReconciliation>},
    {"CurrentBankReconciliation", nullptr, nullptr,
     CallPlain<&clsReport::CurrentBankReconciliation>},
    {"GeneralLedger", nullptr, nullptr,
     [](clsReport& f, Arguments a) {
         return AsVariant(f.GeneralLedger(ArgumentAt(a, 0).ToInteger16()));
     }},
    {"GeneralLedgerByAccount", nullptr, nullptr, CallPlain<&clsReport::GeneralLedgerByAccount>},
    {"GeneralJournal", nullptr, nullptr, CallPlain<&clsReport::GeneralJournal>},
    {"TrialBalanceSummary", nullptr, nullptr, CallPlain<&clsReport::TrialBalanceSummary>},
    {"UnRealExchProfitLoss", nullptr, nullptr, CallPlain<&clsReport::UnRealExchProfitLoss>},
    {"UnRealExchProfitLossDetail", nullptr, nullptr,
     CallPlain<&clsReport::UnRealExchProfitLossDetail>},
    {"RealizedExchProfitLoss", nullptr, nullptr, CallPlain<&clsReport::RealizedExchProfitLoss>},
    {"GIFIReport", nullptr, nullptr, CallPlain<&clsReport::GIFIReport>},
};

}  // namespace

Variant clsReport::Call(std::string_view name, std::span<const Variant> arguments) {
    return CallMember<clsReport>(kMembers, *this, name, arguments);
}

ReportRef clsReport::TrialBalanceDetail(bool hide_inactive_accounts) {
    ReportRef made;
    GuardFormA(nullptr, kFactory, "TrialBalanceDetail", [&] {
        auto report = Make("dsrTrialBalanceDetail");
        Mark(), PutOption(*report, "HideInactiveAccounts", hide_inactive_accounts);
        made = std::move(report);
    });
    return made;
}

ReportRef clsReport::BalanceSheet() { return MakeFormB("BalanceSheet", "dsrBalanceSheet"); }

ReportRef clsReport::IncomeStatement() {
    ReportRef made;
    GuardFormA(nullptr, kFactory, "IncomeStatement", [&] { made = Make("dsrIncomeStatement"); });
    return made;
}

ReportRef clsReport::IncomeStatementProj(const std::string& project_ids, Date cumul_date_to,
                                         Date cumul_date_from) {
    ReportRef made;
    GuardFormA(nullptr, kFactory, "IncomeStatementProj", [&] {
        auto report = Make("dsrIncomeStatement");
        Mark(), PutOption(*report, "ProjIds", project_ids);
        Mark(), PutOption(*report, "CumulDateTo", cumul_date_to);
        Mark(), PutOption(*report, "CumulDateFrom", cumul_date_from);
        made = std::move(report);
    });
    return made;
}

ReportRef clsReport::ComparativeIncomeStatement() {
    return ComparativeStatement("ComparativeIncomeStatement", false);
}

ReportRef clsReport::ComparativeIncomeStatementBudget() {
    return ComparativeStatement("ComparativeIncomeStatementBudget", true);
}

ReportRef clsReport::ComparativeBalanceSheet() {
    return MakeFormB("ComparativeBalanceSheet", "dsrComparativeBalanceSheet");
}

ReportRef clsReport::BankReconciliation() {
    return MakeFormB("BankReconciliation", "dsrBankReconciliation");
}

ReportRef clsReport::CurrentBankReconciliation() {
    return MakeFormB("CurrentBankReconciliation", "dsrCurrentBankReconciliation");
}

ReportRef clsReport::GeneralLedger(std::int16_t gl_type) {
    return GuardFormB(kFactory, "GeneralLedger", [&] {
        auto report = Make("dsrGeneralLedger");
        const auto designer = report->IReport_ReportDesigner();
        const auto label = (Mark(), designer->Get("lblType").ToObject());
        Mark(), label->Put("Caption", Variant(gl_type).ToText());
        return report;
    });
}

ReportRef clsReport::GeneralLedgerByAccount() {
    return MakeFormB("GeneralLedgerByAccount", "dsrGeneralLedgerByAccount");
}

ReportRef clsReport::GeneralJournal() { return MakeFormB("GeneralJournal", "dsrGeneralJournal"); }

ReportRef clsReport::TrialBalanceSummary() {
    return MakeFormB("TrialBalanceSummary", "dsrTrialBalanceSummary");
}

ReportRef clsReport::UnRealExchProfitLoss() {
    return MakeFormB("UnRealExchProfitLoss", "dsrUnRealExchProfitloss");
}

ReportRef clsReport::UnRealExchProfitLossDetail() {
    return MakeFormB("UnRealExchProfitLossDetail", "dsrUnRealExchProfitlossDetail");
}

ReportRef clsReport::RealizedExchProfitLoss() {
    return MakeFormB("RealizedExchProfitLoss", "dsrRealizedExchProfitloss");
}

ReportRef clsReport::GIFIReport() { return MakeFormB("GIFIReport", "dsrGIFIReport"); }

}  // namespace varnel
