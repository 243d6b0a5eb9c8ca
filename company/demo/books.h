#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "company/demo/chart.h"
#include "company/demo/database.h"
#include "company/demo/entry.h"
#include "company/demo/open_items.h"
#include "company/demo/random.h"
#include "company/demo/rates.h"
#include "company/demo/reconciliation.h"

namespace varnel::company::demo {

struct InvoiceRecord {
    std::int64_t id;
    const std::string& number;
    const char* source;
    const char* name;
    int currency;
    Rate rate;
    int segment;
};

struct PaymentRecord {
    std::int64_t id;
    int type;  // 1 customer payment, 2 cheque to a supplier, 3 deposit
    Date date;
    const std::string& cheque;
    Rate rate;
    AccountIndex bank;
};

/// The company's books while they are being kept: balances so far, unpaid invoices, and the tables
/// that entries and documents are written to at once.
class Books {
  public:
    Books(Database& database, std::int64_t lines_wanted, std::uint64_t seed);

    Random random;
    RateTable rates;
    std::array<OpenItems, kCurrencies + 1> receivables, payables;  // by currency
    std::vector<Entry> accruals_to_reverse;

    /// An amount that grows with the company: `reference` is that of one of 12,000 lines.
    Currency Scaled(Currency reference) const;
    Currency Balance(AccountIndex account) const { return home_[account]; }
    Currency Balance(const char* account) const { return home_[Account(account)]; }
    /// In the account's own currency.
    Currency OwnBalance(AccountIndex account) const { return own_[account]; }
    /// Income less expenses of the calendar year that is being posted to, before income taxes.
    Currency ProfitBeforeTaxes() const;
    void BeginYear();

    /// The next document of a kind of document.
    std::int64_t NextInvoice() { return ++invoices_; }
    std::int64_t NextPayment() { return ++payments_; }
    std::int64_t NextBankDocument() { return ++bank_documents_; }

    /// A segment and now and then a project for a new entry that has no other reason for one.
    void PickSegmentAndProject(Entry& entry);
    /// Numbers the entry and writes it. It must balance.
    void Post(const Entry& entry);
    /// The same for a journal entry (source GJ), with its header and now and then remarks.
    void PostJournal(Entry& entry);
    void Record(const InvoiceRecord& invoice);
    void Record(const PaymentRecord& payment);
    void RecordApplied(std::int64_t payment, std::int64_t invoice, Currency amount,
                       std::optional<Currency> discount);

    std::int64_t Lines() const { return lines_; }
    const Reconciliations& BankReconciliations() const { return reconciliations_; }

  private:
    void WriteLine(const Entry& entry, const Line& line);

    std::int64_t lines_wanted_;
    Reconciliations reconciliations_;
    std::array<Currency, kChartRows> home_, own_, year_begin_;
    std::int64_t lines_ = 0, entries_ = 0, journals_ = 0, invoices_ = 0, payments_ = 0,
                 applied_ = 0, bank_documents_ = 0;
    Statement insert_line_, insert_journal_, insert_invoice_, insert_payment_, insert_applied_;
};

}  // namespace varnel::company::demo
