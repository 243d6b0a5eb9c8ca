#include <algorithm>
#include <string>

#include "company/demo/calendar.h"
#include "company/demo/documents.h"

namespace varnel::company::demo {
namespace {

struct Usual {
    const char* description;
    const char* debit;
    const char* credit;
    int usual_cents;
};

std::string MonthOf(Date date) { return date.ToIso().substr(0, 7); }

Entry Begin(Books& books, Date date, std::string description) {
    Entry entry{.date = date};
    entry.description = std::move(description);
    books.PickSegmentAndProject(entry);
    return entry;
}

// One entry in eight is shared with another segment, about a third of it.
void AddShared(Books& books, Entry& entry, const char* account, Currency amount) {
    if (!books.random.Chance(125)) return entry.Add(account, amount);
    const Currency other = Share(amount, 35, 100);
    entry.Add(account, amount - other);
    const int segment = entry.segment;
    entry.segment = 1 + segment % 5;
    entry.Add(account, other);
    entry.segment = segment;
}

// Found a few days late; never back into another month.
Date MaybeBackdated(Books& books, Date date) {
    if (!books.random.Chance(60)) return date;
    return std::max(MonthBegin(date), date - static_cast<int>(books.random.Between(1, 6)));
}

bool PostUsual(Books& books, Date date, const Usual& usual, Currency amount) {
    Entry entry = Begin(books, date, usual.description);
    AddShared(books, entry, usual.debit, amount);
    if (books.random.Chance(40)) entry.Add("5410", Currency());
    entry.Add(usual.credit, -amount);
    books.PostJournal(entry);
    return true;
}

Currency AboutUsual(Books& books, const Usual& usual) {
    return Cents(books.random.About(usual.usual_cents, 60));
}

}  // namespace

bool MakeCardStatement(Books& books, Date date) {
    constexpr const char* kSpentOn[] = {"5410", "5430", "5470", "5480", "5310", "5485",
                                        "5240", "5480", "5470", "5330", "5940"};
    Random& random = books.random;
    Entry entry = Begin(
        books, date,
        "Corporate card – purchases of week " + std::to_string(1 + (date.Civil().day - 1) / 7));
    for (std::int64_t i = random.Between(3, 7); i > 0; --i) {
        if (random.Chance(60)) entry.segment = static_cast<int>(random.Between(1, 5));
        const char* account = random.Choose(kSpentOn);
        entry.Add(account, Cents(random.About(9'500, 80)));
    }
    const Currency net = entry.Total();
    entry.Add("2215", Share(net, 50, 1000));
    entry.Add("2225", Share(net, 9975, 100'000));
    entry.BalanceOn("2020");
    books.PostJournal(entry);
    return true;
}

bool MakeAccrual(Books& books, Date date) {
    constexpr Usual kAccruals[] = {
        {"Accrued electricity", "5230", "2030", 24'000},
        {"Accrued courier invoices not yet received", "5330", "2030", 61'000},
        {"Accrued audit fee", "5450", "2030", 52'000},
        {"Accrued legal fees – lease renewal & trademark file", "5440", "2030", 70'000},
        {"Accrued warehouse overtime", "5130", "2030", 83'000},
    };
    const Usual& usual = books.random.Choose(kAccruals);
    Entry entry = Begin(books, MonthEnd(date), usual.description);
    const Currency amount = AboutUsual(books, usual);
    AddShared(books, entry, usual.debit, amount);
    entry.Add(usual.credit, -amount);
    books.PostJournal(entry);
    books.accruals_to_reverse.push_back(std::move(entry));
    return true;
}

void ReverseAccruals(Books& books, Date date) {
    for (Entry& entry : books.accruals_to_reverse) {
        entry.date = date;
        entry.description = "Reversal: " + entry.description;
        entry.reference.clear();
        entry.remarks.reset();
        for (Line& line : entry.lines) {
            line.amount = -line.amount;
            line.foreign = -line.foreign;
        }
        books.PostJournal(entry);
    }
    books.accruals_to_reverse.clear();
}

bool MakeAmortization(Books& books, Date date) {
    constexpr Usual kClasses[] = {{"", "5510", "1560", 34'000},
                                  {"", "5520", "1570", 26'000},
                                  {"", "5530", "1580", 20'000},
                                  {"", "5540", "1590", 30'000}};
    Entry entry = Begin(books, MonthEnd(date), "Amortization for " + MonthOf(date));
    for (const Usual& one : kClasses) {
        const Currency amount = Cents(books.random.About(one.usual_cents, 12));
        entry.Add(one.debit, amount);
        entry.Add(one.credit, -amount);
    }
    books.PostJournal(entry);
    return true;
}

bool MakePrepaidUse(Books& books, Date date) {
    constexpr Usual kPrepaid[] = {
        {"Insurance used in the month", "5260", "1210", 45'000},
        {"Trade-show fees used", "5320", "1230", 46'000},
        {"Packaging used, per count", "5340", "1130", 26'000},
    };
    const Usual& usual = books.random.Choose(kPrepaid);
    const Currency kept = books.Scaled(Cents(usual.usual_cents));
    const Currency usable = Share(books.Balance(usual.credit) - kept, 1, 2);
    if (usable < Dollars(20)) return false;
    return PostUsual(books, MonthEnd(date), usual, std::min(usable, AboutUsual(books, usual)));
}

bool MakeProvision(Books& books, Date date) {
    constexpr Usual kProvisions[] = {
        {"Provision for doubtful accounts", "5460", "1068", 13'000},
        {"Inventory count difference", "5095", "1110", 21'000},
        {"Inventory count difference – breakage in the boutique", "5095", "1110", 14'000},
    };
    const Usual& usual = books.random.Choose(kProvisions);
    const Currency amount = AboutUsual(books, usual);
    const bool found = usual.usual_cents == 21'000 && books.random.Chance(250);
    return PostUsual(books, MonthEnd(date), usual, found ? -amount : amount);
}

bool MakeLoanPayment(Books& books, Date date) {
    Entry entry = Begin(books, date, "Instalment on term loan");
    const Currency principal = Cents(70'000);
    if (-books.Balance("2510") < principal) return false;
    entry.Add("2510", principal);
    const Currency at_first = books.Scaled(Dollars(72'000));
    entry.Add("5910", Share(Cents(31'000), -books.Balance("2510").Scaled() / Currency::kScale,
                            at_first.Scaled() / Currency::kScale));
    entry.BalanceOn("1020");
    books.PostJournal(entry);
    return true;
}

bool MakeSundryEntry(Books& books, Date date) {
    constexpr Usual kSundry[] = {
        {"Goods returned by a customer, refunded", "4220", "1020", 29'000},
        {"Petty cash vouchers", "5480", "1010", 6'800},
        {"Petty cash vouchers – stamps & supplies", "5410", "1010", 5'400},
        {"Reclassification: catalogue printing coded to supplies", "5310", "5410", 7'500},
        {"Reclassification: travel coded to trade shows", "5470", "5320", 12'000},
        {"Goods used for demonstrations", "5310", "1110", 16'000},
        {"Commission received from a registry partner", "1020", "5820", 31'000},
        {"Travel float settled", "5470", "1070", 3'500},
        {"Travel float paid", "1070", "1020", 3'600},
        {"Goods received from customs", "1110", "1120", 1'400'000},
        {"Gift cards sold through a partner", "1020", "2330", 12'000},
        {"Gift cards redeemed", "2330", "4120", 11'000},
        {"Utilities correction", "5230", "5240", 4'200},
    };
    const Usual& usual = books.random.Choose(kSundry);
    const std::string_view credit = usual.credit, debit = usual.debit;
    Currency amount = AboutUsual(books, usual);
    if (credit == "1010" || credit == "1120" || credit == "1070" || credit == "5410") {
        amount = std::min(amount, books.Balance(usual.credit));
    }
    if (debit == "2330") amount = std::min(amount, -books.Balance(usual.debit));
    if (amount <= Currency()) return false;
    const bool through_bank = debit == "1020" || credit == "1020";
    return PostUsual(books, through_bank ? date : MaybeBackdated(books, date), usual, amount);
}

bool PayEndingContract(Books& books, Date date) {
    constexpr Usual kContract = {"Regional courier contract, last instalments", "5690", "1020", 0};
    return PostUsual(books, date, kContract, books.Scaled(Dollars(240)));
}

}  // namespace varnel::company::demo
