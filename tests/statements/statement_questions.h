#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "tests/statements/statement_books.h"
#include "tests/statements/statement_figures.h"
#include "tests/support/book_companies.h"

namespace varnel::test {

using StatementCheck =
    std::function<void(const StatementBooks& books, const std::shared_ptr<Application>& host,
                       company::demo::Random& random)>;

/// Makes up a company for each of so many seeds, see `ForEverySeed`.
void ForEveryCompany(std::uint64_t companies, const StatementCheck& check);

/// Any two periods, with accounts without amounts at times.
StatementQuestion SomeStatement(const Books& books, company::demo::Random& random);
/// The same of some segments at times, revalued or not.
StatementQuestion Anything(const Books& books, company::demo::Random& random);
/// A balance sheet that prints all that counts: inactive accounts are left out unless those
/// without amounts print.
StatementQuestion WholeBalanceSheet(const Books& books, company::demo::Random& random);

}  // namespace varnel::test
