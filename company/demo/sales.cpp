#include <algorithm>
#include <vector>

#include "company/demo/documents.h"
#include "company/demo/names.h"

namespace varnel::company::demo {
namespace {

struct SoldLine {
    int line;
    Currency amount;  // in the invoice's currency
};

AccountIndex LineAccount(const char* first, int line) {
    return Account(std::string{first[0], first[1], static_cast<char>('0' + line), '0'});
}

// Quantities follow from what a line of the product is usually sold for; the dollar and euro lists
// are lower because the home price is.
SoldLine Sell(Random& random, const Product& product, int currency) {
    constexpr std::int64_t kUsualCents[] = {0,       336'000, 280'000, 210'000,
                                            308'000, 190'000, 395'000};
    constexpr std::int64_t kListPercent[] = {0, 100, 74, 68};
    const std::int64_t price = product.price_cents * kListPercent[currency] / 100;
    const std::int64_t usual = random.About(kUsualCents[product.line], 75);
    return {product.line, Cents(std::max<std::int64_t>(1, usual / product.price_cents) * price)};
}

std::vector<SoldLine> SellSome(Random& random, int currency) {
    std::vector<SoldLine> sold;
    for (std::int64_t i = random.Between(1, 3); i > 0; --i) {
        const SoldLine line = Sell(random, random.Choose(Products()), currency);
        if (std::ranges::none_of(sold, [&](const SoldLine& s) { return s.line == line.line; })) {
            sold.push_back(line);
        }
    }
    return sold;
}

void AddTaxes(Entry& entry, TaxZone zone, Currency net) {
    if (zone == TaxZone::kQuebec) {
        entry.Add("2210", -Share(net, 50, 1000));
        entry.Add("2220", -Share(net, 9975, 100'000));
    } else if (zone == TaxZone::kOntario) {
        entry.Add("2210", -Share(net, 130, 1000));
    }
}

void AddExtras(Entry& entry, Random& random, int currency, Rate rate) {
    if (random.Chance(350)) {
        entry.AddForeign(Account("4110"), currency, -Cents(random.About(14'000, 60)), rate);
    }
    if (currency == kHome && random.Chance(180)) {
        entry.Add("4120", -Cents(random.About(26'000, 70)));
    }
}

// The receivable is the first line; its amount is known when the others are.
void AddSaleLines(Entry& entry, Random& random, const Customer& customer, Rate rate,
                  const std::vector<SoldLine>& sold) {
    entry.AddForeign(ReceivableAccount(customer.currency), customer.currency, Currency(), rate);
    AddExtras(entry, random, customer.currency, rate);
    for (const SoldLine& line : sold) {
        entry.AddForeign(LineAccount("40", line.line), customer.currency, -line.amount, rate);
    }
    Currency net;
    for (const Line& line : entry.lines) net -= line.foreign;
    AddTaxes(entry, customer.zone, net);
    Currency gross;
    for (const Line& line : entry.lines) gross -= line.foreign;
    entry.lines.front().foreign = gross;
    entry.lines.front().amount = Multiply(gross, rate, 2);
    entry.RoundOffOnLastLine();
}

void AddCosts(Entry& entry, Random& random, Rate rate, const std::vector<SoldLine>& sold) {
    Currency total;
    for (const SoldLine& line : sold) {
        const Currency cost = Share(Multiply(line.amount, rate, 2), random.Between(545, 600), 1000);
        entry.Add(LineAccount("50", line.line), cost);
        total += cost;
    }
    entry.Add("1110", -total);
}

void PickCustomerSegment(Entry& entry, Random& random, const Customer& customer) {
    if (random.Chance(50)) {
        entry.segment = 0;
    } else if (random.Chance(850)) {
        entry.segment = customer.segment;
    }
}

}  // namespace

bool MakeSale(Books& books, Date date) {
    Random& random = books.random;
    const std::int64_t party = random.Between(0, std::ssize(Customers()) - 1);
    const Customer& customer = Customers()[static_cast<std::size_t>(party)];
    const Rate rate = books.rates.ForDocument(customer.currency, date);
    const auto sold = SellSome(random, customer.currency);
    Entry entry{.date = date, .source = "INV", .key = books.NextInvoice()};
    const std::string number = "F" + std::to_string(100'000 + entry.key);
    entry.description = "Invoice " + number + " – " + customer.name;
    entry.reference = number;
    books.PickSegmentAndProject(entry);
    PickCustomerSegment(entry, random, customer);
    AddSaleLines(entry, random, customer, rate, sold);
    const Currency gross = entry.lines.front().foreign;
    AddCosts(entry, random, rate, sold);
    books.Post(entry);
    books.Record(InvoiceRecord{entry.key, number, "INV", customer.name, customer.currency, rate,
                               entry.segment});
    books.receivables[static_cast<std::size_t>(customer.currency)].Add(
        {.invoice = entry.key,
         .party = static_cast<int>(party),
         .name = customer.name,
         .segment = entry.segment,
         .due = date + customer.days_to_pay,
         .rate = rate,
         .open = gross});
    return true;
}

}  // namespace varnel::company::demo
