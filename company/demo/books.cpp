#include "company/demo/books.h"

#include "company/demo/names.h"
#include "host/error.h"

namespace varnel::company::demo {

Books::Books(Database& database, std::int64_t lines_wanted, std::uint64_t seed)
    : random(seed),
      rates(random),
      lines_wanted_(lines_wanted),
      insert_line_(database,
                   "INSERT INTO GLDet VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      insert_journal_(database, "INSERT INTO GJTrxHdr VALUES (?, ?, ?, ?)"),
      insert_invoice_(database, "INSERT INTO Invoice VALUES (?, ?, ?, ?, ?, ?, ?)"),
      insert_payment_(database, "INSERT INTO Pmt VALUES (?, ?, ?, ?, ?, ?)"),
      insert_applied_(database, "INSERT INTO PmtDet VALUES (?, ?, ?, ?, ?)") {}

Currency Books::Scaled(Currency reference) const {
    constexpr std::int64_t kReferenceLines = 12'000;
    return Share(reference, lines_wanted_, kReferenceLines);
}

void Books::BeginYear() { year_begin_ = home_; }

Currency Books::ProfitBeforeTaxes() const {
    static const AccountIndex taxes = Account("5960");
    Currency profit;
    for (AccountIndex i = 0; i < kChartRows; ++i) {
        if (IsIncomeStatement(i) && i != taxes) profit -= home_[i] - year_begin_[i];
    }
    return profit;
}

void Books::PickSegmentAndProject(Entry& entry) {
    if (!random.Chance(40)) {
        entry.segment = static_cast<int>(random.Between(1, std::ssize(Segments())));
    }
    if (random.Chance(120)) {
        entry.project = static_cast<int>(random.Between(1, std::ssize(Projects())));
    }
}

void Books::Post(const Entry& entry) {
    if (!entry.Total().IsZero()) {
        throw Error(error_number::kOther, "demo company",
                    "the entry \"" + entry.description + "\" of " + entry.date.ToIso() +
                        " is out of balance by " + entry.Total().ToText());
    }
    ++entries_;
    for (const Line& line : entry.lines) {
        const bool own_is_home = kChart[line.account].currency <= kHome;
        home_[line.account] += line.amount;
        own_[line.account] += own_is_home ? line.amount : line.foreign;
        WriteLine(entry, line);
    }
}

void Books::WriteLine(const Entry& entry, const Line& line) {
    const ChartRow& row = kChart[line.account];
    Tick tick;
    if (row.bank) {
        tick = reconciliations_.Mark(line.account, entry.source, entry.date,
                                     row.currency == kHome ? line.amount : line.foreign, random);
    }
    const bool plain = entry.plain_home_lines && line.currency == kHome;
    insert_line_.Run(++lines_, AccountId(line.account), line.currency, entries_, entry.date,
                     line.amount, plain ? std::nullopt : std::optional(line.foreign), line.rate,
                     entry.description, entry.reference, entry.source, entry.key, entry.remarks,
                     KeyOrNull(line.project), KeyOrNull(line.segment), tick.conciliated,
                     tick.history);
}

void Books::PostJournal(Entry& entry) {
    entry.source = "GJ";
    entry.key = ++journals_;
    if (!entry.remarks && random.Chance(70)) {
        entry.remarks = random.Choose(RemarkTexts());
    } else if (!entry.remarks && random.Chance(50)) {
        entry.remarks = "";
    }
    entry.plain_home_lines = random.Chance(80);
    if (entry.reference.empty() && random.Chance(700)) {
        entry.reference = "J" + std::to_string(20'000 + journals_);
    }
    insert_journal_.Run(entry.key, entry.date, entry.description, entry.reference);
    Post(entry);
}

void Books::Record(const InvoiceRecord& invoice) {
    insert_invoice_.Run(invoice.id, invoice.number, invoice.source, invoice.name, invoice.currency,
                        invoice.rate, KeyOrNull(invoice.segment));
}

void Books::Record(const PaymentRecord& payment) {
    insert_payment_.Run(payment.id, payment.type, payment.date, payment.cheque, payment.rate,
                        AccountId(payment.bank));
}

void Books::RecordApplied(std::int64_t payment, std::int64_t invoice, Currency amount,
                          std::optional<Currency> discount) {
    insert_applied_.Run(++applied_, payment, invoice, amount, discount);
}

}  // namespace varnel::company::demo
