#pragma once

#include "tests/statements/statement_books.h"
#include "tests/statements/statement_figures.h"

namespace varnel::test {

/// What the statements should print of these books, worked out line by line and row by row in
/// plain integers.
PrintedStatement ExpectedIncomeStatement(const StatementBooks& books,
                                         const StatementQuestion& question);
PrintedStatement ExpectedBalanceSheet(const StatementBooks& books,
                                      const StatementQuestion& question);

}  // namespace varnel::test
