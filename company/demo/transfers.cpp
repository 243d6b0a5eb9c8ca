#include <algorithm>
#include <vector>

#include "company/demo/documents.h"

namespace varnel::company::demo {
namespace {

// An amount of the usual size, but not out of proportion in a small company.
Currency Amount(Books& books, std::int64_t dollars) {
    const Currency usual = Dollars(books.random.About(dollars, 40) / 10 * 10);
    return std::min(usual, std::max(books.Scaled(Dollars(dollars * 2)), Dollars(200)));
}

// A level that grows with the company but keeps enough in a small one to pay its largest invoice.
Currency Level(const Books& books, std::int64_t dollars, std::int64_t least) {
    return std::max(books.Scaled(Dollars(dollars)), Dollars(least));
}

bool PostTransfer(Books& books, Entry& entry, const char* description) {
    entry.source = "BKT";
    entry.key = books.NextBankDocument();
    entry.description = description;
    if (books.random.Chance(800)) entry.reference = "T" + std::to_string(entry.key);
    books.Post(entry);
    return true;
}

bool Move(Books& books, Date date, const char* from, const char* to, Currency amount,
          const char* description) {
    Entry entry{.date = date};
    books.PickSegmentAndProject(entry);
    entry.Add(to, amount);
    entry.Add(from, -amount);
    return PostTransfer(books, entry, description);
}

// Bought (+1) or sold (-1) at the published rate; the bank's margin is a charge of its own.
bool Convert(Books& books, Date date, int currency, int direction) {
    Entry entry{.date = date};
    books.PickSegmentAndProject(entry);
    const Rate rate = books.rates.On(currency, date);
    const Currency foreign = Amount(books, 6'500);
    entry.AddForeign(BankAccount(currency), currency, direction > 0 ? foreign : -foreign, rate);
    const Currency charge = Share(Multiply(foreign, rate, 2), 3, 1000);
    entry.Add("5495", charge);
    entry.BalanceOn("1020");
    return PostTransfer(books, entry,
                        direction > 0 ? "Purchase of currency" : "Conversion to Canadian dollars");
}

bool CoverShortage(Books& books, Date date) {
    const Currency amount = Amount(books, 14'000);
    if (books.Balance("1045") > amount) {
        return Move(books, date, "1045", "1020", amount, "Transfer from savings");
    }
    return Move(books, date, "2310", "1020", amount, "Advance on line of credit");
}

bool LevelForeignAccount(Books& books, Date date) {
    for (const int currency : {kUsd, kEur}) {
        const Currency balance = books.OwnBalance(BankAccount(currency));
        if (balance < Level(books, 10'500, 10'500)) return Convert(books, date, currency, 1);
        if (balance > Level(books, 27'000, 27'000)) return Convert(books, date, currency, -1);
    }
    return false;
}

bool UseSurplus(Books& books, Date date) {
    const Currency bank = books.Balance("1020");
    const Currency owed = -books.Balance("2310");
    if (owed > Currency() && bank > Level(books, 60'000, 30'000)) {
        return Move(books, date, "1020", "2310", std::min(owed, Amount(books, 9'000)),
                    "Repayment of line of credit");
    }
    if (bank > Level(books, 95'000, 45'000)) {
        return Move(books, date, "1020", "1045", Amount(books, 9'000), "Transfer to savings");
    }
    return false;
}

bool PayCard(Books& books, Date date) {
    const Currency owed = -books.Balance("2020");
    if (owed < books.Scaled(Dollars(900))) return false;
    return Move(books, date, "1020", "2020", std::min(owed, Amount(books, 1'500)),
                "Payment of corporate credit card");
}

bool MoveSmallChange(Books& books, Date date) {
    if (books.Balance("1010") < books.Scaled(Dollars(600))) {
        return Move(books, date, "1020", "1010", Amount(books, 260), "Replenishment of petty cash");
    }
    if (books.Balance("1045") > books.Scaled(Dollars(8'000)) && books.random.Chance(500)) {
        return Move(books, date, "1045", "1020", Amount(books, 1'200), "Transfer from savings");
    }
    return Move(books, date, "1020", "1045", Amount(books, 1'200), "Weekly transfer to savings");
}

}  // namespace

bool IsShortOfCash(const Books& books) {
    return books.Balance("1020") < Level(books, 26'000, 13'000);
}

bool MakeTransfer(Books& books, Date date) {
    if (books.Balance("1020") < Level(books, 36'000, 19'000)) return CoverShortage(books, date);
    return LevelForeignAccount(books, date) || UseSurplus(books, date) || PayCard(books, date) ||
           MoveSmallChange(books, date);
}

}  // namespace varnel::company::demo
