#include <vector>

#include "company/demo/documents.h"
#include "company/demo/names.h"

namespace varnel::company::demo {
namespace {

constexpr Currency kNoLimit = Dollars(1'000'000'000);

struct Settlement {
    OpenItem item;
    Currency paid, discount;
};

// One payment in one currency of several invoices. Money comes in (+1) or goes out (-1).
struct Payment {
    Entry entry;
    int type;
    int direction;
    int currency;
    Rate rate;
    AccountIndex control;
    const char* discount_account;
    std::vector<Settlement> settled;
};

// Every invoice is settled at its own rate, the bank and discounts are at the day's; what is left
// between them is the realized exchange difference.
void AddLines(Payment& payment) {
    Entry& entry = payment.entry;
    const auto signed_amount = [&](Currency amount) {
        return payment.direction > 0 ? amount : -amount;
    };
    Currency paid;
    for (const Settlement& s : payment.settled) paid += s.paid;
    entry.segment = payment.settled.front().item.segment;
    entry.AddForeign(BankAccount(payment.currency), payment.currency, signed_amount(paid),
                     payment.rate);
    for (const Settlement& s : payment.settled) {
        entry.segment = s.item.segment;
        entry.AddForeign(payment.control, payment.currency, -signed_amount(s.paid + s.discount),
                         s.item.rate);
        if (s.discount.IsZero()) continue;
        entry.AddForeign(Account(payment.discount_account), payment.currency,
                         signed_amount(s.discount), payment.rate);
    }
    entry.BalanceOn("5920");
}

void PostPayment(Books& books, Payment& payment) {
    Entry& entry = payment.entry;
    AddLines(payment);
    entry.key = books.NextPayment();
    books.Record(PaymentRecord{entry.key, payment.type, entry.date, entry.reference, payment.rate,
                               BankAccount(payment.currency)});
    for (const Settlement& s : payment.settled) {
        const bool null_discount = s.discount.IsZero() && books.random.Chance(120);
        books.RecordApplied(entry.key, s.item.invoice, s.paid,
                            null_discount ? std::nullopt : std::optional(s.discount));
    }
    books.Post(entry);
}

Currency DiscountOf(Random& random, const OpenItem& item) {
    return random.Chance(180) ? Share(item.open, 2, 100) : Currency();
}

// Now and then only a part arrives, and the rest stays due.
Settlement Settle(Random& random, OpenItems& items, const OpenItem& item, Date date) {
    if (!random.Chance(50)) {
        const Currency discount = DiscountOf(random, item);
        return {item, item.open - discount, discount};
    }
    const Currency part = Share(item.open, 60, 100);
    OpenItem rest = item;
    rest.open -= part;
    rest.due = date + 25;
    items.Add(rest);
    return {item, part, Currency()};
}

// The currency whose invoices are looked at first changes, so that none waits for the others.
std::vector<OpenItem> TakeReceivables(Books& books, Date date, std::size_t most, int& currency) {
    const std::int64_t first = books.random.Between(0, kCurrencies - 1);
    for (std::int64_t i = 0; i < kCurrencies; ++i) {
        currency = 1 + static_cast<int>((first + i) % kCurrencies);
        auto taken =
            books.receivables[static_cast<std::size_t>(currency)].TakeDue(date, most, kNoLimit);
        if (!taken.empty()) return taken;
    }
    return {};
}

std::vector<OpenItem> TakePayables(Books& books, Date date, int& currency) {
    const std::int64_t first = books.random.Between(0, kCurrencies - 1);
    for (std::int64_t i = 0; i < kCurrencies; ++i) {
        currency = 1 + static_cast<int>((first + i) % kCurrencies);
        const Currency kept = books.Scaled(Dollars(currency == kHome ? 14'000 : 600));
        const Currency limit = books.OwnBalance(BankAccount(currency)) - kept;
        auto taken = books.payables[static_cast<std::size_t>(currency)].TakeDue(
            date, static_cast<std::size_t>(books.random.Between(1, 4)), limit);
        if (!taken.empty()) return taken;
    }
    return {};
}

/// Money that comes in, at the day's rate, without what it settles yet.
Payment FromCustomer(const Books& books, const char* source, int type, int currency, Date date) {
    return {.entry = {.date = date, .source = source},
            .type = type,
            .direction = 1,
            .currency = currency,
            .rate = books.rates.ForDocument(currency, date),
            .control = ReceivableAccount(currency),
            .discount_account = "4210",
            .settled = {}};
}

}  // namespace

bool MakeCustomerPayment(Books& books, Date date) {
    int currency = kHome;
    const auto most = static_cast<std::size_t>(books.random.Between(1, 2));
    const auto taken = TakeReceivables(books, date, most, currency);
    if (taken.empty()) return false;
    Payment payment = FromCustomer(books, "PMT", 1, currency, date);
    payment.entry.description = std::string("Payment received – ") + taken.front().name;
    if (books.random.Chance(750)) {
        payment.entry.reference = std::to_string(books.random.Between(100, 9'999));
    }
    OpenItems& items = books.receivables[static_cast<std::size_t>(currency)];
    for (const OpenItem& item : taken) {
        payment.settled.push_back(Settle(books.random, items, item, date));
    }
    PostPayment(books, payment);
    return true;
}

bool MakeDeposit(Books& books, Date date) {
    int currency = kHome;
    auto taken = TakeReceivables(books, date, 1, currency);
    if (taken.empty()) return false;
    OpenItems& items = books.receivables[static_cast<std::size_t>(currency)];
    for (std::int64_t more = books.random.Between(1, 3); more > 0; --more) {
        for (const OpenItem& item : items.TakeDue(date, 1, kNoLimit)) taken.push_back(item);
    }
    Payment payment = FromCustomer(books, "DEP", 3, currency, date);
    payment.entry.description =
        "Deposit of " + std::to_string(taken.size()) + (taken.size() == 1 ? " cheque" : " cheques");
    payment.entry.reference = "D" + date.ToIso();
    for (const OpenItem& item : taken) payment.settled.push_back({item, item.open, Currency()});
    PostPayment(books, payment);
    return true;
}

bool MakeCheque(Books& books, Date date) {
    int currency = kHome;
    const auto taken = TakePayables(books, date, currency);
    if (taken.empty()) return false;
    Payment payment{.entry = {.date = date, .source = "CDI"},
                    .type = 2,
                    .direction = -1,
                    .currency = currency,
                    .rate = books.rates.ForDocument(currency, date),
                    .control = PayableAccount(currency),
                    .discount_account = "5093",
                    .settled = {}};
    payment.entry.description = std::string("Cheque – ") + taken.front().name;
    payment.entry.reference = std::to_string(4'000 + books.NextBankDocument());
    for (const OpenItem& item : taken) {
        const Currency discount = DiscountOf(books.random, item);
        payment.settled.push_back({item, item.open - discount, discount});
    }
    PostPayment(books, payment);
    return true;
}

}  // namespace varnel::company::demo
