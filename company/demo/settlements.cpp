#include <algorithm>

#include "company/demo/calendar.h"
#include "company/demo/documents.h"

namespace varnel::company::demo {
namespace {

// Pays what the accounts hold. An account with a balance of zero gets no line.
template <std::size_t N>
bool PayBalances(Books& books, Date date, const char* description,
                 const char* const (&accounts)[N]) {
    Entry entry{.date = date};
    entry.description = description;
    for (const char* account : accounts) {
        const Currency balance = books.Balance(account);
        if (!balance.IsZero()) entry.Add(account, -balance);
    }
    if (entry.lines.empty()) return false;
    entry.BalanceOn("1020");
    books.PostJournal(entry);
    return true;
}

}  // namespace

bool RemitTaxes(Books& books, Date date) {
    constexpr const char* kAccounts[] = {"2210", "2215", "2220", "2225"};
    return PayBalances(books, date, "Remittance of GST and QST", kAccounts);
}

bool RemitPayroll(Books& books, Date date) {
    constexpr const char* kAccounts[] = {"2110", "2120", "2130", "2140", "2150"};
    return PayBalances(books, date, "Remittance of source deductions and premiums", kAccounts);
}

bool PayIncomeTaxes(Books& books, Date date) {
    constexpr const char* kAccounts[] = {"2320"};
    if (books.Balance("2320") >= Currency()) return false;
    return PayBalances(books, date, "Income tax instalment", kAccounts);
}

bool ProvideForIncomeTaxes(Books& books, Date date) {
    constexpr int kTaxPercent = 16;
    const Currency amount =
        Share(std::max(books.ProfitBeforeTaxes(), Currency()), kTaxPercent, 100);
    if (amount.IsZero()) return false;
    Entry entry{.date = MonthEnd(date)};
    entry.description = "Provision for income taxes";
    entry.Add("5960", amount);
    entry.Add("2320", -amount);
    books.PostJournal(entry);
    return true;
}

bool PayDividend(Books& books, Date date, Currency wanted) {
    const Currency spare = books.Balance("1020") - books.Scaled(Dollars(26'000));
    const Currency amount = std::min(wanted, spare);
    if (amount <= Currency()) return false;
    Entry entry{.date = date};
    entry.description = "Dividend to shareholders";
    entry.remarks = "Résolution du conseil d'administration.";
    entry.Add("3200", amount);
    entry.Add("1020", -amount);
    books.PostJournal(entry);
    return true;
}

}  // namespace varnel::company::demo
