#include "cli/report_table.h"

#include <algorithm>
#include <string>

#include "cli/company_argument.h"
#include "cli/cumulative_period.h"
#include "cli/errors.h"
#include "cli/nearest_name.h"
#include "cli/projects.h"
#include "cli/reconciliation_properties.h"
#include "framework/catalogue.h"
#include "framework/create_object.h"

namespace varnel::cli {

namespace {

using Arguments = std::vector<Variant>;

Arguments None(const RunSettings&, Application&) { return {}; }
Arguments ActiveAndInactive(const RunSettings&, Application&) { return {Variant(false)}; }
Arguments AccountType(const RunSettings& settings, Application&) {
    return {Variant(settings.account_type)};
}

/// Projects, and the cumulative period: its last day first.
Arguments ProjectsAndPeriod(const RunSettings& settings, Application& application) {
    auto& company = application.CurrentContext().CurrentCompany();
    const auto [from, to] = CumulativePeriodOf(settings, company);
    return {ListProjects(application, settings.projects), to, from};
}

constexpr ReportEntry kReports[] = {
    {"general-journal", "GeneralJournal", "dsrGeneralJournal", None},
    {.name = "general-ledger",
     .method = "GeneralLedger",
     .class_name = "dsrGeneralLedger",
     .arguments = AccountType,
     .by_account_type = true},
    {"general-ledger-by-account", "GeneralLedgerByAccount", "dsrGeneralLedgerByAccount", None},
    {"trial-balance-summary", "TrialBalanceSummary", "dsrTrialBalanceSummary", None},
    {"trial-balance-detail", "TrialBalanceDetail", "dsrTrialBalanceDetail", ActiveAndInactive},
    {.name = "income-statement",
     .method = "IncomeStatement",
     .class_name = "dsrIncomeStatement",
     .arguments = None,
     .cumulative_from_property = "CumulDateFrom",
     .cumulative_to_property = "CumulDateTo"},
    {.name = "income-statement-proj",
     .method = "IncomeStatementProj",
     .class_name = "dsrIncomeStatement",
     .arguments = ProjectsAndPeriod,
     .projects_property = "ProjIds",
     .cumulative_from_property = "CumulDateFrom",
     .cumulative_to_property = "CumulDateTo"},
    {"balance-sheet", "BalanceSheet", "dsrBalanceSheet", None},
    {.name = "comparative-income-statement",
     .method = "ComparativeIncomeStatement",
     .class_name = "dsrComparativeIncomeStatement",
     .arguments = None,
     .cumulative_from_property = "CumulativeDateFrom",
     .cumulative_to_property = "CumulativeDateTo"},
    {.name = "comparative-income-statement-budget",
     .method = "ComparativeIncomeStatementBudget",
     .class_name = "dsrComparativeIncomeStatement",
     .arguments = None,
     .title_text = 30005,
     .cumulative_from_property = "CumulativeDateFrom",
     .cumulative_to_property = "CumulativeDateTo"},
    {"comparative-balance-sheet", "ComparativeBalanceSheet", "dsrComparativeBalanceSheet", None},
    {"gifi", "GIFIReport", "dsrGIFIReport", None},
    {.name = "bank-reconciliation",
     .method = "BankReconciliation",
     .class_name = "dsrBankReconciliation",
     .arguments = None,
     .account_property = reconciliation::kAccount,
     .statement_date_property = reconciliation::kStatementDate,
     .ending_balance_property = reconciliation::kEndingBalance,
     .history_property = reconciliation::kHistory,
     .ignores_filter = true},
    {.name = "current-bank-reconciliation",
     .method = "CurrentBankReconciliation",
     .class_name = "dsrCurrentBankReconciliation",
     .arguments = None,
     .account_property = reconciliation::kAccount,
     .statement_date_property = reconciliation::kStatementDate,
     .ending_balance_property = reconciliation::kEndingBalance,
     .rows_property = reconciliation::kRows,
     .ignores_filter = true},
    {.name = "unrealized-exchange",
     .method = "UnRealExchProfitLoss",
     .class_name = "dsrUnRealExchProfitloss",
     .arguments = None,
     .filter_gives_rates = true},
    {.name = "unrealized-exchange-detail",
     .method = "UnRealExchProfitLossDetail",
     .class_name = "dsrUnRealExchProfitlossDetail",
     .arguments = None,
     .account_property = "GLAcctId",
     .currency_property = "ExCurrencyId",
     .filter_gives_rates = true},
    {"realized-exchange", "RealizedExchProfitLoss", "dsrRealizedExchProfitloss", None},
};

const framework::CatalogueEntry* InCatalogue(const ReportEntry& entry) {
    for (const auto& report : framework::Catalogue())
        if (report.class_name == entry.class_name) return &report;
    return nullptr;
}

constexpr const char* kSeeReports = "\"varnel reports\" lists the reports";

[[noreturn]] void RefuseUnknown(std::string_view name) {
    std::vector<std::string_view> names;
    for (const auto& entry : kReports) names.push_back(entry.name);
    CheckCompany("run", std::string(name));  // Its password is not to be shown.
    throw UsageError("there is no report " + std::string(name) + DidYouMean(name, names) + "\n" +
                     kSeeReports);
}

}  // namespace

std::span<const ReportEntry> Reports() { return kReports; }

const ReportEntry& FindReport(std::string_view name) {
    if (name.empty()) throw UsageError(std::string("say which report\n") + kSeeReports);
    const auto* entry = std::ranges::find(kReports, name, &ReportEntry::name);
    if (entry == std::end(kReports)) RefuseUnknown(name);
    return *entry;
}

std::shared_ptr<IReport> SampleReport(const ReportEntry& entry) {
    return InCatalogue(entry)->make();
}

std::int16_t TitleText(const ReportEntry& entry) {
    if (entry.title_text != 0) return entry.title_text;
    const auto* report = InCatalogue(entry);
    return report == nullptr ? std::int16_t{0} : report->title_text;
}

std::shared_ptr<IReport> MakeReport(const ReportEntry& entry, std::span<const Variant> arguments) {
    const auto made = CreateObject("Varnel.clsReport")->Call(entry.method, arguments);
    return std::dynamic_pointer_cast<IReport>(made.ToObject());
}

}  // namespace varnel::cli
