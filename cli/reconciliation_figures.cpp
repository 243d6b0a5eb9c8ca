#include "cli/reconciliation_figures.h"

#include <set>
#include <string>

#include "cli/errors.h"
#include "cli/names_by_id.h"
#include "cli/reconciliation_properties.h"
#include "cli/reconciliation_rows.h"
#include "framework/query_runner.h"
#include "reports/bank/reconciliation_query.h"

namespace varnel::cli {

namespace {

namespace property = reconciliation;

constexpr const char* kNumbers = "SELECT InGLAcctId, GLAcctId, NULL FROM GLAcct";
constexpr const char* kBanks = "SELECT InGLAcctId, GLAcctId, NULL FROM GLAcct WHERE ChqAcct <> 0";

constexpr std::string_view kGiven[] = {property::kAccountNumber, property::kDeposits,
                                       property::kWithdrawals, property::kLedgerBalance,
                                       property::kDifference};

struct Account {
    std::int32_t id;
    std::string number;
    bool foreign;  // In a currency of its own.
};

struct Statement {
    std::int32_t account_id = 0;
    std::string account_number;
    Date date;
};

void PutStatement(Object& report, const Statement& statement) {
    report.Put(property::kAccount, statement.account_id);
    report.Put(property::kAccountNumber, statement.account_number);
    report.Put(property::kStatementDate, statement.date);
}

/// A UsageError for an id that no saved reconciliation has.
Statement FindSaved(company::CompanyHost& host, std::int32_t history_id) {
    NamesById numbers = ReadNames(host, kNumbers);
    const auto records = host.CurrentCompany().Reconciliations().OpenRecords();
    const Columns& columns = records->GetColumns();
    const Column id = columns.At("ID");
    const Column account = columns.At("ExAcctId");
    const Column date = columns.At("BankConcilDate");
    NamesById names;
    Statement found;
    for (; !records->AtEnd(); records->MoveNext()) {
        const Row& record = records->Current();
        const std::int32_t account_id = record.Integer(account);
        const Statement statement{account_id, numbers[account_id], record.Day(date)};
        names[record.Integer(id)] = statement.account_number + " - " + statement.date.ToIso();
        if (record.Integer(id) == history_id) found = statement;
    }
    NameOf(history_id, names, "saved reconciliation");
    return found;
}

void PutSaved(Object& report, company::CompanyHost& host, std::int32_t history_id) {
    PutStatement(report, FindSaved(host, history_id));
    report.Put(property::kHistory, history_id);
    report.Call(property::kRefresh, {});
}

/// Sums of the account's lines up to the statement's date, in the account's currency.
struct LedgerSums {
    Outstanding outstanding;
    Currency balance;
};

/// Of what the report lists as outstanding.
std::string OutstandingSum(const std::string& amount, const char* sign) {
    return "SUM(CASE WHEN " + amount + sign + " 0 AND " + reports::kNotReconciled + " THEN " +
           amount + " END)";
}

LedgerSums SumLedger(Application& application, const Account& account, Date date) {
    const std::string amount = std::string("GLDet.") + reports::AmountColumn(account.foreign);
    const Variant parameters[] = {account.id, date};
    const auto sums = framework::RunQuery(
        application,
        "SELECT " + OutstandingSum(amount, " >") + ", " + OutstandingSum(amount, " <") + ", SUM(" +
            amount + ") FROM GLDet WHERE GLDet.ExAcctId = ? AND GLDet.DetDate <= ?",
        parameters);
    const Row& row = sums->Current();
    return {{.deposits = row.Amount({0}), .withdrawals = -row.Amount({1})}, row.Amount({2})};
}

[[noreturn]] void RefuseAccount(const std::string& number, const NamesById& banks) {
    std::set<std::string> numbers;
    for (const auto& [id, bank] : banks) numbers.insert(bank);
    std::string list;
    for (const auto& bank : numbers) list += (list.empty() ? "there are " : ", ") + bank;
    throw UsageError("--account: " + number + " is no bank account; " +
                     (list.empty() ? "the company has none" : list));
}

/// A UsageError for an account that is no bank account.
Account AccountOf(Object& report, company::CompanyHost& host, const std::string& number) {
    auto& company = host.CurrentCompany();
    const std::int32_t id = report.Get(property::kAccount).ToInteger32();
    const NamesById banks = ReadNames(host, kBanks);
    const auto bank = banks.find(id);
    if (bank == banks.end()) RefuseAccount(number, banks);
    const std::int32_t home = company.GetCurrencyInfo().CieHomeCurrencyId();
    return {id, bank->second, company.Accounts().CurrencyOf(id) != home};
}

void PutInProgress(Object& report, const ReportEntry& entry, company::CompanyHost& host,
                   const RunRequest& request, const RunSettings& settings) {
    const Account account = AccountOf(report, host, request.account);
    auto [outstanding, balance] = SumLedger(host, account, settings.statement.date);
    if (!entry.rows_property.empty()) {
        const auto rows = ReadReconciliationRows(request.rows_file);
        outstanding = SumOutstanding(*rows, account.foreign);
        report.Put(property::kRows, ObjectRef(rows));
    }
    const auto& [deposits, withdrawals] = outstanding;
    const Currency ending = settings.statement.ending_balance;
    PutStatement(report, {account.id, account.number, settings.statement.date});
    report.Put(property::kEndingBalance, ending);
    report.Put(property::kDeposits, deposits);
    report.Put(property::kWithdrawals, withdrawals);
    report.Put(property::kLedgerBalance, balance);
    report.Put(property::kDifference, balance - (ending + deposits - withdrawals));
}

}  // namespace

void RefuseFigures(const ReportEntry& entry, const RunSettings& settings) {
    if (entry.statement_date_property.empty()) return;
    for (const auto& set : settings.properties)
        for (const auto given : kGiven)
            if (SameName(set.name, given))
                throw UsageError("--property " + set.name +
                                 ": leave it out; it follows from the account and its lines");
}

void PutReconciliation(IReport& report, const ReportEntry& entry, company::CompanyHost& host,
                       const RunRequest& request, const RunSettings& settings) {
    if (entry.statement_date_property.empty()) return;
    Object& designed = *report.IReport_ReportDesigner();
    if (settings.statement.history)
        PutSaved(designed, host, *settings.statement.history);
    else
        PutInProgress(designed, entry, host, request, settings);
}

}  // namespace varnel::cli
