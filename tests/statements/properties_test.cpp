// What must hold of the statements of any company, over made-up ones: see `ForEverySeed`.

#include <gtest/gtest.h>

#include "tests/statements/books_sums.h"
#include "tests/statements/expected_statement.h"
#include "tests/statements/statement_questions.h"

namespace varnel::test {
namespace {

using company::demo::Random;
using Host = std::shared_ptr<Application>;

TEST(IncomeStatement, PrintsWhatTheLinesAddUpToRowByRow) {
    ForEveryCompany(1'000, [](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion question = Anything(books, random);
        if (question.cumul_to != Date() && random.Chance(500))
            question.projects = SomeOf(kProjects, random);
        SCOPED_TRACE(InWords(question));
        EXPECT_EQ(InWords(RunIncomeStatement(host, question)),
                  InWords(ExpectedIncomeStatement(books, question)));
    });
}

TEST(BalanceSheet, PrintsWhatTheLinesAddUpToRowByRow) {
    ForEveryCompany(1'000, [](const StatementBooks& books, const Host& host, Random& random) {
        const StatementQuestion question = Anything(books, random);
        SCOPED_TRACE(InWords(question));
        EXPECT_EQ(InWords(RunBalanceSheet(host, question)),
                  InWords(ExpectedBalanceSheet(books, question)));
    });
}

TEST(BalanceSheet, BalancesWithoutAFilterAtAnyDateRevaluedOrNot) {
    ForEveryCompany(1'000, [](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion question = WholeBalanceSheet(books, random);
        for (const bool revalue : {false, true}) {
            question.revalue = revalue;
            SCOPED_TRACE(InWords(question));
            const PrintedStatement sheet = RunBalanceSheet(host, question);
            EXPECT_EQ(sheet.sections.front().totals.front(), sheet.closing);
            EXPECT_EQ(sheet.closing_caption, 2672);
        }
    });
}

// Over a fiscal year, up to any day in it. What was posted to the accounts of earnings themselves
// is not the income statement's.
TEST(Statements, EarnWhatTheEarningsInEquityGrowBy) {
    ForEveryCompany(1'000, [](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion after = WholeBalanceSheet(books, random);
        after.from = books.YearStart(after.to);
        StatementQuestion before = after;
        before.to = after.from - 1;
        SCOPED_TRACE(InWords(after));
        const PrintedStatement opening = RunBalanceSheet(host, before);
        const PrintedStatement closing = RunBalanceSheet(host, after);
        Units growth = 0;
        for (const int id : {books.retained_earnings, books.current_earnings})
            growth += closing.Of(id) - opening.Of(id) +
                      BookSums(books, after).Booked(id, {after.from, after.to});
        const auto earned = RunIncomeStatement(host, after).sections.back().results;
        EXPECT_EQ(earned, (std::vector<Units>{growth, growth})) << "cumulative dates are its own";
    });
}

using Run = PrintedStatement (*)(const Host&, const StatementQuestion&);

// Every amount of the statement of the whole, account by account and total by total.
void ExpectParts(const PrintedStatement& whole, const std::vector<PrintedStatement>& parts,
                 const Books& books, std::size_t columns) {
    for (const auto& account : books.accounts) {
        if (!account.IsPosting()) continue;
        for (std::size_t column = 0; column < columns; ++column) {
            Units sum = 0;
            for (const auto& part : parts) sum += part.Of(account.id, column);
            EXPECT_EQ(whole.Of(account.id, column), sum) << account.Name();
        }
    }
    for (const auto& section : whole.sections) {
        std::vector<Units> sums(columns, 0);
        for (const auto& part : parts)
            for (std::size_t column = 0; column < columns; ++column)
                sums[column] += part.Captioned(section.caption)->totals[column];
        EXPECT_EQ(section.totals, sums) << section.caption;
    }
}

std::vector<PrintedStatement> RunSegments(Run run, const Host& host, StatementQuestion question) {
    std::vector<PrintedStatement> parts;
    for (int segment = 1; segment <= kSegments; ++segment) {
        question.segments = {segment};
        parts.push_back(run(host, question));
    }
    question.segments.clear();
    question.also_without_segment = true;
    parts.push_back(run(host, question));
    return parts;
}

TEST(Statements, OfTheSegmentsAndOfNoneAddUpToTheCompanys) {
    ForEveryCompany(250, [](const StatementBooks& books, const Host& host, Random& random) {
        const StatementQuestion question = SomeStatement(books, random);
        SCOPED_TRACE(InWords(question));
        ExpectParts(RunIncomeStatement(host, question),
                    RunSegments(RunIncomeStatement, host, question), books, 2);
        ExpectParts(RunBalanceSheet(host, question), RunSegments(RunBalanceSheet, host, question),
                    books, 1);
    });
}

}  // namespace
}  // namespace varnel::test
