#pragma once

#include "tests/support/books.h"

namespace varnel::test {

/// A made-up company whose chart is laid out for statements: headings, subtotals of both levels and
/// texts wherever they fell. Amounts are whole cents. Types 6 and 7 are other items.
struct StatementBooks : Books {
    /// Receivable and payable accounts; 0 where there is none.
    struct Controls {
        int receivable = 0, payable = 0;
        bool Has(int account_id) const { return account_id == receivable || account_id == payable; }
    };

    /// So much a day, which a period cut anywhere has exactly.
    struct Budget {
        int account_id;
        Date first, last;
        Units a_day;
    };

    bool uses_foreign_currency = true;
    std::vector<Budget> budgets;
    /// The company's own, and those of each currency by its id.
    Controls company_controls, controls[kCurrencies + 1];

    /// As the statements print them: by section, then by number.
    std::vector<BookAccount> Chart() const;
};

/// Where the statements print accounts of a type.
inline int SectionOf(int type) { return type >= 6 ? 9 : type; }

StatementBooks MakeStatementBooks(company::demo::Random& random);
/// Statements that put these books into a database in place of others.
std::string ScriptOf(const StatementBooks& books);

}  // namespace varnel::test
