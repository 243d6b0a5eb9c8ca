#include "cli/reconciliation_figures.h"

#include <string>

#include "cli/errors.h"
#include "cli/names_by_id.h"
#include "cli/reconciliation_rows.h"
#include "framework/query_runner.h"

namespace varnel::cli {

namespace {

constexpr const char* kSavedReconciliations =
    "SELECT \"ID\", GLAcctId, \"BankConcilDate\" FROM BankConcilHistory LEFT JOIN GLAcct ON "
    "InGLAcctId = ExAcctId";
constexpr const char* kStatement =
    "SELECT ExAcctId, \"BankConcilDate\" FROM BankConcilHistory WHERE \"ID\" = ?";
constexpr const char* kNumber = "SELECT GLAcctId FROM GLAcct WHERE InGLAcctId = ?";

constexpr const char* kNumberProperty = "ConcilAcctId";
constexpr const char* kDepositsProperty = "DepAmntCirc";
constexpr const char* kWithdrawalsProperty = "ChqAmntCirc";
constexpr const char* kLedgerProperty = "GLBalAmnt";
constexpr const char* kDifferenceProperty = "DifAmnt";
constexpr const char* kGiven[] = {kNumberProperty, kDepositsProperty, kWithdrawalsProperty,
                                  kLedgerProperty, kDifferenceProperty};

struct Account {
    std::int32_t id;
    bool foreign;  // In a currency of its own.
};

/// Puts the account, its number and the statement's date.
void PutStatement(Object& report, const ReportEntry& entry, Application& application,
                  std::int32_t account_id, Date date) {
    const Variant account(account_id);
    const auto number = framework::RunQuery(application, kNumber, {&account, 1});
    std::string text;
    if (!number->AtEnd()) number->Current().AppendText({0}, text);
    report.Put(entry.account_property, account);
    report.Put(kNumberProperty, text);
    report.Put(entry.statement_date_property, date);
}

void PutSaved(Object& report, const ReportEntry& entry, Application& application,
              std::int32_t history_id) {
    NameOf(history_id, ReadNames(application, kSavedReconciliations), "saved reconciliation");
    const Variant id(history_id);
    const auto statement = framework::RunQuery(application, kStatement, {&id, 1});
    const Row& row = statement->Current();
    PutStatement(report, entry, application, row.Integer({0}), row.Day({1}));
    report.Put(entry.history_property, id);
    report.Call("RefreshTotalsWithBankConcilHistory", {});
}

/// Sums of the account's lines up to the statement's date, in the account's currency.
struct LedgerSums {
    Outstanding outstanding;
    Currency balance;
};

std::string OutstandingSum(const std::string& amount, const char* sign) {
    return "SUM(CASE WHEN " + amount + sign +
           " 0 AND (GLDet.Conciliated = 0 OR GLDet.Conciliated IS NULL) THEN " + amount + " END)";
}

LedgerSums SumLedger(Application& application, const Account& account, Date date) {
    const std::string amount = account.foreign ? "GLDet.ForeignAmnt" : "GLDet.DetAmnt";
    const Variant parameters[] = {account.id, date};
    const auto sums = framework::RunQuery(
        application,
        "SELECT " + OutstandingSum(amount, " >") + ", " + OutstandingSum(amount, " <") + ", SUM(" +
            amount + ") FROM GLDet WHERE GLDet.ExAcctId = ? AND GLDet.DetDate <= ?",
        parameters);
    const Row& row = sums->Current();
    return {{.deposits = row.Amount({0}), .withdrawals = -row.Amount({1})}, row.Amount({2})};
}

Account AccountOf(Object& report, const ReportEntry& entry, company::CompanyHost& host) {
    auto& company = host.CurrentCompany();
    const std::int32_t id = report.Get(entry.account_property).ToInteger32();
    const std::int32_t home = company.GetCurrencyInfo().CieHomeCurrencyId();
    return {id, company.Accounts().CurrencyOf(id) != home};
}

void PutInProgress(Object& report, const ReportEntry& entry, company::CompanyHost& host,
                   const RunRequest& request, const RunSettings& settings) {
    const Account account = AccountOf(report, entry, host);
    auto [outstanding, balance] = SumLedger(host, account, settings.statement.date);
    if (!entry.rows_property.empty()) {
        const auto rows = ReadReconciliationRows(request.rows_file);
        outstanding = SumOutstanding(*rows, account.foreign);
        report.Put(entry.rows_property, ObjectRef(rows));
    }
    const auto& [deposits, withdrawals] = outstanding;
    const Currency ending = settings.statement.ending_balance;
    PutStatement(report, entry, host, account.id, settings.statement.date);
    report.Put(entry.ending_balance_property, ending);
    report.Put(kDepositsProperty, deposits);
    report.Put(kWithdrawalsProperty, withdrawals);
    report.Put(kLedgerProperty, balance);
    report.Put(kDifferenceProperty, balance - (ending + deposits - withdrawals));
}

}  // namespace

void RefuseFigures(const ReportEntry& entry, const RunSettings& settings) {
    if (entry.statement_date_property.empty()) return;
    for (const auto& property : settings.properties)
        for (const char* given : kGiven)
            if (SameName(property.name, given))
                throw UsageError("--property " + property.name +
                                 ": leave it out; it follows from the account and its lines");
}

void PutReconciliation(IReport& report, const ReportEntry& entry, company::CompanyHost& host,
                       const RunRequest& request, const RunSettings& settings) {
    if (entry.statement_date_property.empty()) return;
    Object& designed = *report.IReport_ReportDesigner();
    if (settings.statement.history)
        PutSaved(designed, entry, host, *settings.statement.history);
    else
        PutInProgress(designed, entry, host, request, settings);
}

}  // namespace varnel::cli
