#include "company/demo/reconciliation.h"

#include <string_view>

namespace varnel::company::demo {
namespace {

Date MonthEndOf2026(int month) { return Date::FromYearMonthDay(2026, month + 1, 1) - 1; }

// The bank's own entries appear at once, electronic ones within days, cheques when they are cashed.
Date ClearingDate(std::string_view source, Date date, Currency amount, Random& random) {
    if (source == "BRC") return date;
    if (source == "CDI") {
        const bool forgotten = random.Chance(25);
        return date + static_cast<int>(forgotten ? random.Between(35, 120) : random.Between(2, 17));
    }
    if (amount < Currency()) return date + static_cast<int>(random.Between(0, 3));
    return date + static_cast<int>(random.Between(0, 4));
}

}  // namespace

Reconciliations::Reconciliations() {
    const AccountIndex cad = BankAccount(kCad), usd = BankAccount(kUsd);
    const auto add = [this](std::int64_t history, AccountIndex account, int month) {
        statements_.push_back({.history = history,
                               .account = account,
                               .date = MonthEndOf2026(month),
                               .ending = {},
                               .deposits_open = {},
                               .withdrawals_open = {},
                               .ledger = {}});
    };
    add(1, cad, 5);
    add(2, cad, 6);
    add(3, cad, 7);
    add(4, cad, 8);
    add(5, usd, 8);
    add(0, cad, 9);
}

Tick Reconciliations::TickOf(AccountIndex account, Date date, Date cleared, Random& random) const {
    for (const Statement& statement : statements_) {
        if (statement.account != account || cleared > statement.date) continue;
        if (statement.history > 0) return {1, statement.history};
        if (date <= MonthEndOf2026(8) || random.Chance(250)) break;
        return {1, random.Chance(500) ? std::optional<std::int64_t>(0) : std::nullopt};
    }
    return {random.Chance(300) ? std::nullopt : std::optional(0), std::nullopt};
}

void Reconciliations::Statement::Count(Date line_date, Currency amount, bool cleared,
                                       bool outstanding) {
    if (cleared) ending += amount;
    if (line_date > date) return;
    ledger += amount;
    if (!outstanding) return;
    if (amount < Currency()) {
        withdrawals_open -= amount;
    } else {
        deposits_open += amount;
    }
}

Tick Reconciliations::Mark(AccountIndex account, const char* source, Date date, Currency amount,
                           Random& random) {
    const bool opening = date == Date::FromYearMonthDay(2024, 1, 1);
    const Date cleared = opening ? date : ClearingDate(source, date, amount, random);
    const Tick tick = TickOf(account, date, cleared, random);
    for (Statement& statement : statements_) {
        if (statement.account != account) continue;
        const bool on_statement = cleared <= statement.date;
        const bool outstanding = statement.history > 0 ? !on_statement : tick.conciliated != 1;
        statement.Count(date, amount, on_statement, outstanding);
    }
    return tick;
}

void Reconciliations::Write(Database& database) const {
    demo::Statement history(database, "INSERT INTO BankConcilHistory VALUES (?, ?, ?, ?)");
    demo::Statement figures(database, "INSERT INTO BankStatement VALUES (?, ?, ?, ?, ?, ?, ?)");
    for (const Statement& s : statements_) {
        if (s.history > 0) history.Run(s.history, s.date, AccountId(s.account), s.ending);
        figures.Run(AccountId(s.account), s.date, s.history, s.ending, s.deposits_open,
                    s.withdrawals_open, s.ledger);
    }
}

}  // namespace varnel::company::demo
