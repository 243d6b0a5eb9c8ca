#include <algorithm>

#include "company/demo/calendar.h"
#include "company/demo/documents.h"
#include "company/demo/names.h"

namespace varnel::company::demo {
namespace {

// The inactive accounts among them come to nothing together: statements leave them out and balance.
struct Opening {
    const char* account;
    int dollars;  // of a company of the reference size, debit positive
};

constexpr Opening kOpenings[] = {
    {"1010", 800},     {"1020", 68'000},  {"1045", 42'000},  {"1068", -2'400},  {"1070", 1'500},
    {"1075", 1'840},   {"1110", 112'000}, {"1130", 1'500},   {"1140", -4'000},  {"1210", 2'400},
    {"1220", 1'800},   {"1230", 900},     {"1510", 64'000},  {"1520", 38'000},  {"1530", 46'000},
    {"1540", 72'000},  {"1560", -21'000}, {"1570", -17'000}, {"1580", -16'000}, {"1590", -18'000},
    {"1710", 8'500},   {"1720", 6'000},   {"2020", -1'600},  {"2110", -1'300},  {"2120", -1'450},
    {"2130", -1'200},  {"2140", -700},    {"2160", -3'200},  {"2210", -4'600},  {"2215", 2'100},
    {"2220", -3'100},  {"2225", 2'400},   {"2320", -2'100},  {"2330", -1'200},  {"2510", -72'000},
    {"2520", -25'000}, {"2900", -1'840},  {"3010", -30'000}, {"3020", -5'000},
};

struct OpenSide {
    int currency;
    int dollars;  // in the currency
};

// Unpaid invoices are in hundreds: at a rate of four decimals each is then exact to the cent.
Currency Hundreds(Currency amount) {
    return Dollars(std::max<std::int64_t>(1, amount.Scaled() / Dollars(100).Scaled()) * 100);
}

void AddOpenInvoice(Books& books, const char* source, const OpenItem& item, int currency) {
    const std::string number =
        (source == std::string_view("INV") ? "F" : "A") + std::to_string(90'000 + item.invoice);
    books.Record(InvoiceRecord{item.invoice, number, source, item.name, currency, item.rate, 0});
    const auto slot = static_cast<std::size_t>(currency);
    (source == std::string_view("INV") ? books.receivables : books.payables)[slot].Add(item);
}

template <class Parties>
std::size_t PickParty(Random& random, const Parties& parties, int currency) {
    std::size_t party;
    do {
        party = static_cast<std::size_t>(random.Between(0, std::ssize(parties) - 1));
    } while (parties[party].currency != currency);
    return party;
}

// Returns what the invoices come to.
template <class Parties>
Currency AddOpenInvoices(Books& books, const char* source, const Parties& parties, OpenSide side,
                         Rate rate) {
    const Currency wanted = books.Scaled(Dollars(side.dollars));
    const std::int64_t count = std::max<std::int64_t>(1, wanted.Scaled() / Dollars(4'500).Scaled());
    const Currency each = Hundreds(Share(wanted, 1, count));
    Currency total;
    for (std::int64_t i = 0; i < count; ++i) {
        const std::size_t party = PickParty(books.random, parties, side.currency);
        AddOpenInvoice(books, source,
                       {.invoice = books.NextInvoice(),
                        .party = static_cast<int>(party),
                        .name = parties[party].name,
                        .due = BooksBegin() + static_cast<int>(2 + i * 50 / count),
                        .rate = rate,
                        .open = each},
                       side.currency);
        total += each;
    }
    return total;
}

void AddForeignOpenings(Books& books, Entry& entry) {
    constexpr OpenSide kBanks[] = {{kUsd, 15'000}, {kEur, 9'500}};
    constexpr OpenSide kReceivable[] = {{kCad, 70'000}, {kUsd, 16'000}, {kEur, 9'000}};
    constexpr OpenSide kPayable[] = {{kCad, 27'000}, {kUsd, 14'000}, {kEur, 12'500}};
    const auto rate = [&](int currency) {
        return books.rates.ForDocument(currency, BooksBegin() - 1);
    };
    for (const auto [currency, dollars] : kBanks) {
        entry.AddForeign(BankAccount(currency), currency, books.Scaled(Dollars(dollars)),
                         rate(currency));
    }
    for (const OpenSide side : kReceivable) {
        entry.AddForeign(ReceivableAccount(side.currency), side.currency,
                         AddOpenInvoices(books, "INV", Customers(), side, rate(side.currency)),
                         rate(side.currency));
    }
    for (const OpenSide side : kPayable) {
        entry.AddForeign(PayableAccount(side.currency), side.currency,
                         -AddOpenInvoices(books, "PUR", Makers(), side, rate(side.currency)),
                         rate(side.currency));
    }
}

}  // namespace

void OpenBooks(Books& books) {
    Entry entry{.date = BooksBegin()};
    entry.description = "Opening balances at January 1, 2024";
    entry.reference = "OPEN";
    entry.remarks = "Carried over from the former accounting system after the audit of 2023.";
    for (const Opening& opening : kOpenings) {
        entry.Add(opening.account, books.Scaled(Dollars(opening.dollars)));
    }
    AddForeignOpenings(books, entry);
    entry.BalanceOn("3100");
    books.PostJournal(entry);
    books.BeginYear();
}

}  // namespace varnel::company::demo
