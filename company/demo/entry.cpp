#include "company/demo/entry.h"

namespace varnel::company::demo {

void Entry::Add(AccountIndex account, Currency amount) { AddForeign(account, kHome, amount, kPar); }

void Entry::AddForeign(AccountIndex account, int currency, Currency foreign, Rate rate) {
    lines.push_back({.account = account,
                     .amount = Multiply(foreign, rate, 2),
                     .currency = currency,
                     .foreign = foreign,
                     .rate = rate,
                     .segment = segment,
                     .project = IsIncomeStatement(account) ? project : 0});
}

Currency Entry::Total() const {
    Currency total;
    for (const Line& line : lines) total += line.amount;
    return total;
}

void Entry::BalanceOn(const char* account) {
    const Currency total = Total();
    if (!total.IsZero()) Add(account, -total);
}

void Entry::RoundOffOnLastLine() { lines.back().amount -= Total(); }

}  // namespace varnel::company::demo
