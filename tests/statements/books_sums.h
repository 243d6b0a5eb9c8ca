#pragma once

#include "tests/statements/statement_books.h"
#include "tests/statements/statement_figures.h"

namespace varnel::test {

struct Period {
    Date from = kOpenStart, to = kOpenEnd;
};

/// The accounts of the books added up line by line, debit positive, as a question wants them.
class BookSums {
  public:
    BookSums(const StatementBooks& books, const Question& question)
        : books_(books), question_(question) {}

    /// The lines as they were booked.
    Units Booked(int account_id, const Period& period) const;
    /// What all accounts of the income statement earned: a profit is negative.
    Units Earned(const Period& period) const;
    /// What the account is worth, but for the adjustment of receivables and payables.
    Units Worth(const BookAccount& account, const Period& period) const;
    /// On the income statement: without the unrealized gain, where it stands by itself.
    Units Income(const BookAccount& account, const Period& period) const;
    /// On the balance sheet of that day: with earnings, without the adjustment.
    Units Balance(const BookAccount& account, Date day) const;
    /// What a receivable or payable account in a foreign currency has gained by that day.
    Units Adjustment(const BookAccount& account, Date day) const;

  private:
    bool Revalues() const { return question_.revalue && books_.uses_foreign_currency; }
    bool IsControl(const BookAccount& account) const;
    Units Sum(Units BookLine::*amount, int account_id, const Period& period) const;
    Units GainOfOthers(Date day) const;
    Units Unrealized(Date day) const;

    const StatementBooks& books_;
    const Question& question_;
};

}  // namespace varnel::test
