#include "tests/statements/books_sums.h"

#include <map>
#include <tuple>

namespace varnel::test {

Units BookSums::Sum(Units BookLine::*amount, int account_id, const Period& period) const {
    Units sum = 0;
    for (const auto& line : books_.lines)
        if (line.account_id == account_id && line.date >= period.from && line.date <= period.to &&
            question_.Takes(line))
            sum += line.*amount;
    return sum;
}

Units BookSums::Booked(int account_id, const Period& period) const {
    return Sum(&BookLine::amount, account_id, period);
}

Units BookSums::Earned(const Period& period) const {
    Units sum = 0;
    for (const auto& account : books_.accounts)
        if (account.IsOfTheYear()) sum += Booked(account.id, period);
    return sum;
}

bool BookSums::IsControl(const BookAccount& account) const {
    const auto& own = books_.controls[account.currency_id];
    const auto& company = books_.company_controls;
    const int receivable = own.receivable != 0 ? own.receivable : company.receivable;
    const int payable = own.payable != 0 ? own.payable : company.payable;
    return account.id == receivable || account.id == payable;
}

Units BookSums::Worth(const BookAccount& account, const Period& period) const {
    if (!Revalues() || !account.IsForeign() || IsControl(account))
        return Booked(account.id, period);
    return Revalued(Sum(&BookLine::foreign, account.id, period), account.currency_id);
}

Units BookSums::GainOfOthers(Date day) const {
    Units gain = 0;
    for (const auto& account : books_.accounts)
        if (!account.IsOfTheYear())
            gain += Worth(account, {kOpenStart, day}) - Booked(account.id, {kOpenStart, day});
    return gain;
}

// Of foreign lines on bank accounts in a foreign currency and on receivables and payables in any.
Units BookSums::Unrealized(Date day) const {
    const auto counts = [&](const BookAccount& account) {
        bool control = books_.company_controls.Has(account.id);
        for (const auto& of_currency : books_.controls) control |= of_currency.Has(account.id);
        return control || (account.bank && account.IsForeign());
    };
    Units gain = 0;
    for (const auto& account : books_.accounts) {
        if (!counts(account)) continue;
        // Each entry is revalued by itself.
        std::map<std::tuple<int, int, int>, Units> foreign;
        for (const auto& line : books_.lines) {
            if (line.account_id != account.id || line.date > day || !question_.Takes(line) ||
                line.currency_id <= kHomeCurrency)
                continue;
            foreign[{line.currency_id, line.entry, line.project_id}] += line.foreign;
            gain -= line.amount;
        }
        for (const auto& [key, amount] : foreign) gain += Revalued(amount, std::get<0>(key));
    }
    return gain;
}

Units BookSums::Income(const BookAccount& account, const Period& period) const {
    if (account.id == books_.unrealized && Revalues())
        return Booked(account.id, period) - Unrealized(period.to);
    return Worth(account, period);
}

Units BookSums::Balance(const BookAccount& account, Date day) const {
    const Date year_start = books_.YearStart(day);
    Units balance = Worth(account, {kOpenStart, day});
    if (account.id == books_.current_earnings)
        balance += Earned({year_start, day}) - GainOfOthers(day);
    if (account.id == books_.retained_earnings) balance += Earned({kOpenStart, year_start - 1});
    return balance;
}

Units BookSums::Adjustment(const BookAccount& account, Date day) const {
    if (!Revalues() || !account.IsForeign() || !IsControl(account)) return 0;
    const Period until{kOpenStart, day};
    return Revalued(Sum(&BookLine::foreign, account.id, until), account.currency_id) -
           Booked(account.id, until);
}

}  // namespace varnel::test
