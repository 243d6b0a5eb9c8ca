#include "company/demo/master_data.h"

#include <string>
#include <string_view>

#include "company/demo/calendar.h"
#include "company/demo/chart.h"
#include "company/demo/names.h"
#include "company/services/setting_names.h"

namespace varnel::company::demo {
namespace {

struct NamedValue {
    std::string_view name;
    const char* value;
};

// schema/README.md says what they mean.
constexpr NamedValue kSettings[] = {
    {setting::kCompanyName, kCompanyName},
    {setting::kLanguage, "en-CA"},
    {setting::kHomeCurrencyId, "1"},
    {setting::kUseForeignCurrency, "True"},
    {setting::kUseProjects, "True"},
    {"UseAccountNumbers", "True"},
    {"AccountNumberHint", "9999"},
    {setting::kItemAdjustGL, "True"},
    {setting::kItemAdjustStartDate, "2024-07-01"},
    {setting::kSessionDate, "2026-10-31"},
};

constexpr NamedValue kAccountParams[] = {
    {"GLRtainEarn", "3100"},
    {"GLCurntEarn", "3300"},
    {account_param::kReceivable, "1060"},
    {account_param::kPayable, "2010"},
    {account_param::kUnrealizedGainLoss, "5930"},
    {"RealizedGainLoss", "5920"},
};

void WriteCurrencies(Database& database) {
    Statement insert(database, "INSERT INTO WorldCurrency VALUES (?, ?, ?, ?, 2, ?, ?)");
    // The home currency's control accounts are company parameters.
    insert.Run(kCad, "CAD", "Canadian dollar", "$", 0, 0);
    for (const int currency : {kUsd, kEur}) {
        const bool usd = currency == kUsd;
        insert.Run(currency, usd ? "USD" : "EUR", usd ? "US dollar" : "Euro", usd ? "US$" : "€",
                   AccountId(ReceivableAccount(currency)), AccountId(PayableAccount(currency)));
    }
}

void WriteRates(Database& database, const RateTable& rates) {
    Statement insert(database, "INSERT INTO ExchangeRate VALUES (?, ?, ?)");
    for (const int currency : {kUsd, kEur}) {
        for (Date day = RateTable::Begin(); day <= RateTable::End(); day = day + 1) {
            if (IsBusinessDay(day)) insert.Run(currency, day, rates.On(currency, day));
        }
    }
}

void WriteChart(Database& database) {
    Statement insert(database, "INSERT INTO GLAcct VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (AccountIndex i = 0; i < kChartRows; ++i) {
        const ChartRow& row = kChart[i];
        insert.Run(AccountId(i), row.number, row.descr, int{row.type}, int{row.role}, row.inactive,
                   row.bank ? 1 : 0, nullptr, row.gifi, KeyOrNull(row.currency));
    }
    Statement set_note(database, "UPDATE GLAcct SET Note = ? WHERE GLAcctId = ?");
    for (const AccountNote& note : kNotes) set_note.Run(note.note, note.account);
}

void WriteAccountTypes(Database& database) {
    database.Execute(
        "INSERT INTO AcctTypeInfo VALUES"
        " (1, 1, 'Assets', 0), (2, 1, 'Liabilities', 0), (3, 1, 'Equity', 0),"
        " (4, 2, 'Revenue', 0), (5, 2, 'Expenses', 0), (6, 2, 'Other income', 1),"
        " (7, 2, 'Other expenses', 1), (9, 2, 'Other items', 0)");
}

template <class Rows>
void WriteCodes(Database& database, const char* sql, const Rows& rows) {
    Statement insert(database, sql);
    int id = 0;
    for (const CodeAndName& row : rows) insert.Run(++id, row.code, row.name);
}

void WriteFiscalYear(Database& database, int id, int year) {
    Statement insert_year(database, "INSERT INTO FiscalYear VALUES (?, ?, ?, ?)");
    Statement insert_period(database, "INSERT INTO FiscalYearDet VALUES (?, ?, ?, ?, ?)");
    const std::string descr = "Fiscal year " + std::to_string(year);
    insert_year.Run(id, descr, Date::FromYearMonthDay(year, 1, 1),
                    Date::FromYearMonthDay(year, 12, 31));
    for (int month = 1; month <= 12; ++month) {
        const Date begin = Date::FromYearMonthDay(year, month, 1);
        insert_period.Run((id - 1) * 12 + month, id, month, begin, MonthEnd(begin));
    }
}

}  // namespace

void WriteMasterData(Database& database, const RateTable& rates) {
    WriteCurrencies(database);
    WriteRates(database, rates);
    WriteChart(database);
    WriteAccountTypes(database);
    WriteCodes(database, "INSERT INTO Segment VALUES (?, ?, ?)", Segments());
    WriteCodes(database, "INSERT INTO ProjInfo VALUES (?, ?, ?)", Projects());
    for (int id = 1; id <= 3; ++id) WriteFiscalYear(database, id, 2023 + id);
    Statement setting(database, "INSERT INTO CompanySetting VALUES (?, ?)");
    for (const NamedValue& one : kSettings) setting.Run(one.name, one.value);
    Statement param(database, "INSERT INTO GLAccountParam VALUES ('Cie', ?, ?)");
    for (const NamedValue& one : kAccountParams) param.Run(one.name, AccountId(one.value));
}

void WriteBudgets(Database& database, std::int64_t lines) {
    constexpr int kSeason[] = {92, 92, 96, 98, 100, 98, 94, 96, 102, 108, 114, 110};
    Statement insert(database, "INSERT INTO AcctBudget VALUES (?, ?, ?, ?, ?)");
    int id = 0;
    for (AccountIndex i = 0; i < kChartRows; ++i) {
        if (kChart[i].budget == 0) continue;
        for (int month = 0; month < 36; ++month) {
            const Date begin = Date::FromYearMonthDay(2024 + month / 12, month % 12 + 1, 1);
            const std::int64_t percent = kSeason[month % 12] * (100 + 4 * (month / 12));
            const std::int64_t dollars = kChart[i].budget * percent * lines / 12'000 / 10'000;
            insert.Run(++id, AccountId(i), begin, MonthEnd(begin), Dollars(dollars));
        }
    }
}

}  // namespace varnel::company::demo
