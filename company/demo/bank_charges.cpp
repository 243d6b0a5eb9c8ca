#include "company/demo/documents.h"

namespace varnel::company::demo {
namespace {

struct Charge {
    const char* description;
    const char* account;
    int usual_cents;  // received when negative
    bool home_only;
};

constexpr Charge kCharges[] = {
    {"Monthly service charge", "5490", 1'950, false},
    {"Wire transfer fee", "5490", 1'700, false},
    {"Cheque returned by the customer's bank – fee", "5490", 4'500, true},
    {"Merchant card fees", "5350", 5'800, true},
    {"Merchant card fees – web orders", "5350", 4'100, true},
    {"Interest earned", "5810", -2'600, false},
    {"Interest on line of credit", "5915", 3'900, true},
    {"Fee for stopped cheque", "5490", 1'250, true},
};

int PickCurrency(Random& random, const Charge& charge) {
    if (charge.home_only || random.Chance(650)) return kHome;
    return random.Chance(600) ? kUsd : kEur;
}

}  // namespace

bool MakeBankCharge(Books& books, Date date) {
    Random& random = books.random;
    const Charge& charge = random.Choose(kCharges);
    const bool credit_line_used = books.Balance("2310") < Currency();
    if (std::string_view(charge.account) == "5915" && !credit_line_used) return false;
    const int currency = PickCurrency(random, charge);
    const Rate rate = books.rates.ForDocument(currency, date);
    const Currency amount = Cents(random.About(charge.usual_cents, 60));
    Entry entry{.date = date, .source = "BRC", .key = books.NextBankDocument()};
    entry.description = charge.description;
    books.PickSegmentAndProject(entry);
    entry.AddForeign(Account(charge.account), currency, amount, rate);
    entry.AddForeign(BankAccount(currency), currency, -amount, rate);
    books.Post(entry);
    return true;
}

}  // namespace varnel::company::demo
