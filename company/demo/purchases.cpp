#include "company/demo/documents.h"
#include "company/demo/names.h"

namespace varnel::company::demo {
namespace {

constexpr int kFirstServiceParty = 1000;

struct Bill {
    Entry entry;
    int party;
    const char* name;
    int currency;
    int days_to_pay;
    Rate rate;
};

void AddInputTaxes(Entry& entry, Currency net) {
    entry.Add("2215", Share(net, 50, 1000));
    entry.Add("2225", Share(net, 9975, 100'000));
}

// Books the bill whose cost lines are there: the payable, the invoice, what is to be paid.
void PostBill(Books& books, Bill& bill) {
    Entry& entry = bill.entry;
    Currency gross;
    for (const Line& line : entry.lines) gross += line.foreign;
    entry.AddForeign(PayableAccount(bill.currency), bill.currency, -gross, bill.rate);
    entry.lines.front().amount -= entry.Total();
    entry.source = "PUR";
    entry.key = books.NextInvoice();
    const std::string number =
        std::to_string(books.random.Between(1'000, 99'999)) + "-" + std::to_string(entry.key);
    entry.description = std::string("Supplier invoice – ") + bill.name;
    entry.reference = books.random.Chance(60) ? "" : number;
    books.Post(entry);
    books.Record(InvoiceRecord{entry.key, number, "PUR", bill.name, bill.currency, bill.rate,
                               entry.segment});
    books.payables[static_cast<std::size_t>(bill.currency)].Add(
        {.invoice = entry.key,
         .party = bill.party,
         .name = bill.name,
         .segment = entry.segment,
         .due = entry.date + bill.days_to_pay,
         .rate = bill.rate,
         .open = gross});
}

void BuyGoods(Books& books, Date date) {
    Random& random = books.random;
    const std::int64_t party = random.Between(0, std::ssize(Makers()) - 1);
    const Maker& maker = Makers()[static_cast<std::size_t>(party)];
    Bill bill{.entry = {.date = date},
              .party = static_cast<int>(party),
              .name = maker.name,
              .currency = maker.currency,
              .days_to_pay = maker.days_to_pay,
              .rate = books.rates.ForDocument(maker.currency, date)};
    books.PickSegmentAndProject(bill.entry);
    const bool shipped = maker.currency != kHome && random.Chance(150) &&
                         books.Balance("1120") < books.Scaled(Dollars(9'000));
    const Currency net = Cents(random.About(maker.currency == kHome ? 690'000 : 500'000, 85));
    bill.entry.AddForeign(Account(shipped ? "1120" : "1110"), maker.currency, net, bill.rate);
    if (random.Chance(300)) {
        bill.entry.AddForeign(Account("5090"), maker.currency, Cents(random.About(16'000, 70)),
                              bill.rate);
    }
    if (maker.currency == kHome) AddInputTaxes(bill.entry, net);
    PostBill(books, bill);
}

const ServiceSupplier& PickService(Random& random, std::size_t& place) {
    int all = 0;
    for (const ServiceSupplier& supplier : ServiceSuppliers()) all += supplier.weight;
    std::int64_t left = random.Between(0, all - 1);
    place = 0;
    while (left >= ServiceSuppliers()[place].weight) left -= ServiceSuppliers()[place++].weight;
    return ServiceSuppliers()[place];
}

void BuyService(Books& books, Date date) {
    Random& random = books.random;
    std::size_t place = 0;
    const ServiceSupplier& supplier = PickService(random, place);
    Bill bill{.entry = {.date = date},
              .party = kFirstServiceParty + static_cast<int>(place),
              .name = supplier.name,
              .currency = kHome,
              .days_to_pay = 26,
              .rate = kPar};
    books.PickSegmentAndProject(bill.entry);
    const Currency net = Cents(random.About(supplier.usual_amount * 100, 40));
    const Currency second = random.Chance(150) ? Share(net, 30, 100) : Currency();
    bill.entry.Add(supplier.account, net - second);
    if (!second.IsZero()) {
        if (random.Chance(600)) bill.entry.segment = static_cast<int>(random.Between(1, 5));
        bill.entry.Add(supplier.account, second);
    }
    AddInputTaxes(bill.entry, net);
    PostBill(books, bill);
}

}  // namespace

bool MakePurchase(Books& books, Date date) {
    const bool low = books.Balance("1110") < books.Scaled(Dollars(112'000));
    if (books.random.Chance(low ? 780 : 40)) {
        BuyGoods(books, date);
    } else {
        BuyService(books, date);
    }
    return true;
}

}  // namespace varnel::company::demo
