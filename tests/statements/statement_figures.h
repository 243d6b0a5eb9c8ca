#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/application.h"
#include "tests/support/book_questions.h"

namespace varnel::test {

/// What a statement is asked for. The income statement has a second pair of dates; a zero date lets
/// it find its own.
struct StatementQuestion : Question {
    Date cumul_from{}, cumul_to{};
};

/// What a statement prints: amounts of the period, cumulative ones in the income statement, then
/// what they are compared with and the variance where they are.
struct PrintedStatement {
    /// Row of the chart; a heading or a text has no amounts.
    struct Row {
        int account;
        std::vector<std::optional<Units>> amounts;
        std::string key;
    };
    struct Section {
        /// Text numbers.
        int caption = 0;
        std::vector<Row> rows{};
        std::vector<Units> totals{};
        int result_caption = 0;
        std::vector<Units> results{};
    };
    std::vector<Section> sections{};
    /// Of the balance sheet, the second with its comparison.
    int closing_caption = 0;
    Units closing = 0, closing_compared = 0;
    /// The same with what the segments lack; empty without the adjusted balance sheet.
    std::vector<Units> adjusted{};

    /// 0 for an account that is not printed.
    Units Of(int account, std::size_t column = 0) const;
    const Section* Captioned(int number) const;
};

/// Runs the report over the company and reads what it prints.
PrintedStatement RunIncomeStatement(const std::shared_ptr<Application>& host,
                                    const StatementQuestion& question);
PrintedStatement RunBalanceSheet(const std::shared_ptr<Application>& host,
                                 const StatementQuestion& question);
PrintedStatement RunComparativeIncome(const std::shared_ptr<Application>& host,
                                      const StatementQuestion& question, bool with_budget);
PrintedStatement RunComparativeSheet(const std::shared_ptr<Application>& host,
                                     const StatementQuestion& question);

/// One piece each, to compare and to print.
std::vector<std::string> InWords(const PrintedStatement& statement);
std::string InWords(const StatementQuestion& question);

}  // namespace varnel::test
