// What must hold of the comparative statements and of sheets of some segments, of any company.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "tests/statements/statement_questions.h"

namespace varnel::test {
namespace {

using company::demo::Random;
using Host = std::shared_ptr<Application>;

/// Each is asked for several statements, whose rows by themselves are tried on more.
constexpr std::uint64_t kCompared = 250;

Date YearBefore(Date day) {
    const auto [year, month, in_month] = day.Civil();
    return Date::FromYearMonthDay(year - 1, month, in_month);
}

/// The question of the year before, within the fiscal years that it touches.
StatementQuestion LastYear(const StatementBooks& books, StatementQuestion question) {
    const Date from = YearBefore(question.from), to = YearBefore(question.to);
    question.from = from;
    question.to = to;
    bool touched = false;
    const auto touch = [&](Date first, Date last) {
        if (last < from || first > to) return;
        if (!touched) question.from = std::max(from, first);
        question.to = std::min(to, last);
        touched = true;
    };
    for (const auto& year : books.years) {
        const auto [number, month, day] = year.first.Civil();
        const Date second = Date::FromYearMonthDay(number, month + 1, 1);
        touch(year.first, second - 1);
        touch(second, year.last);
    }
    return question;
}

/// Rows and totals of one column are those of the other statement's; a row that is not in a
/// statement stands for nothing.
void ExpectColumn(const PrintedStatement& compared, std::size_t column,
                  const PrintedStatement& plain, std::size_t plain_column, const Books& books) {
    for (const auto& account : books.accounts)
        EXPECT_EQ(compared.Of(account.id, column), plain.Of(account.id, plain_column))
            << account.Name() << ", column " << column;
    ASSERT_EQ(compared.sections.size(), plain.sections.size());
    for (std::size_t i = 0; i < plain.sections.size(); ++i) {
        const auto &section = compared.sections[i], &other = plain.sections[i];
        EXPECT_EQ(section.totals[column], other.totals[plain_column]) << section.caption;
        EXPECT_EQ(section.result_caption, other.result_caption);
        ASSERT_EQ(section.results.empty(), other.results.empty());
        if (other.results.empty()) continue;
        EXPECT_EQ(section.results[column], other.results[plain_column]) << section.caption;
    }
}

/// The last column is the first less the one before it, the other way round of expenses.
void ExpectVariances(const PrintedStatement& statement) {
    const auto variance = [](const auto& amounts) {
        return amounts.front() - amounts[amounts.size() - 2];
    };
    for (const auto& section : statement.sections) {
        const int sign = section.caption == 2676 || section.caption == 2678 ? -1 : 1;
        for (const auto& row : section.rows) {
            std::vector<Units> amounts;
            for (const auto& amount : row.amounts) amounts.push_back(amount.value_or(0));
            EXPECT_EQ(amounts.back(), sign * variance(amounts)) << row.account;
        }
        EXPECT_EQ(section.totals.back(), sign * variance(section.totals)) << section.caption;
        if (section.results.empty()) continue;
        EXPECT_EQ(section.results.back(), variance(section.results)) << section.caption;
    }
}

// The unrealized account is not revalued in the comparison, so it takes no part.
TEST(ComparativeIncome, IsTheStatementBesideThatOfTheYearBefore) {
    ForEveryCompany(kCompared, [](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion question = Anything(books, random);
        question.revalue = question.revalue && books.unrealized == 0;
        SCOPED_TRACE(InWords(question));
        const auto compared = RunComparativeIncome(host, question, false);
        const auto plain = RunIncomeStatement(host, question);
        ExpectColumn(compared, 0, plain, 0, books);
        ExpectColumn(compared, 1, plain, 1, books);
        ExpectColumn(compared, 2, RunIncomeStatement(host, LastYear(books, question)), 0, books);
        ExpectVariances(compared);
    });
}

/// Revenue turned to positive.
Units BudgetOf(const StatementBooks& books, const BookAccount& account,
               const StatementQuestion& question) {
    Units sum = 0;
    for (const auto& budget : books.budgets)
        for (Date day = budget.first; day <= budget.last; day = day + 1)
            if (budget.account_id == account.id && day >= question.from && day <= question.to)
                sum += budget.a_day;
    return account.type == 4 ? -sum : sum;
}

TEST(ComparativeIncome, HasTheBudgetOfEachDayOfThePeriod) {
    ForEveryCompany(kCompared, [](const StatementBooks& books, const Host& host, Random& random) {
        const StatementQuestion question = Anything(books, random);
        SCOPED_TRACE(InWords(question));
        const auto compared = RunComparativeIncome(host, question, true);
        const auto plain = RunIncomeStatement(host, question);
        ExpectColumn(compared, 0, plain, 0, books);
        ExpectVariances(compared);
        std::map<int, Units> totals;
        for (const auto& account : books.accounts) {
            if (!account.IsPosting() || !account.IsOfTheYear()) continue;
            if (account.inactive && !question.include_zero) continue;
            const Units budget = BudgetOf(books, account, question);
            EXPECT_EQ(compared.Of(account.id, 2), budget) << account.Name();
            totals[SectionOf(account.type)] += budget;
        }
        for (const auto& [type, caption] : {std::pair(4, 2674), {5, 2676}, {9, 2678}})
            if (const auto* const section = compared.Captioned(caption)) {
                EXPECT_EQ(section->totals[2], totals[type]) << caption;
            }
    });
}

TEST(ComparativeSheet, IsTheSheetBesideThatOfTheYearBefore) {
    ForEveryCompany(kCompared, [](const StatementBooks& books, const Host& host, Random& random) {
        const StatementQuestion question = Anything(books, random);
        SCOPED_TRACE(InWords(question));
        const auto compared = RunComparativeSheet(host, question);
        const auto plain = RunBalanceSheet(host, question);
        const auto before = RunBalanceSheet(host, LastYear(books, question));
        ExpectColumn(compared, 0, plain, 0, books);
        ExpectColumn(compared, 1, before, 0, books);
        ExpectVariances(compared);
        EXPECT_EQ(compared.closing, plain.closing);
        EXPECT_EQ(compared.closing_compared, before.closing);
        EXPECT_EQ(compared.closing_caption, plain.closing_caption);
    });
}

TEST(AdjustedSheet, BringsTheSegmentsToTheirAssetsInEveryFormAndStyle) {
    ForEveryCompany(kCompared, [](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion question = WholeBalanceSheet(books, random);
        static_cast<Question&>(question) = SomeSegments(question, random);
        for (const bool revalue : {false, true}) {
            question.revalue = revalue;
            SCOPED_TRACE(InWords(question));
            const auto plain = RunBalanceSheet(host, question);
            const auto compared = RunComparativeSheet(host, question);
            if (!question.IsFiltered()) {
                EXPECT_TRUE(plain.adjusted.empty() && compared.adjusted.empty());
                continue;
            }
            const auto& assets = compared.sections.front().totals;
            EXPECT_EQ(plain.adjusted, plain.sections.front().totals);
            EXPECT_EQ(compared.adjusted, (std::vector{assets[0], assets[1]}));
        }
    });
}

}  // namespace
}  // namespace varnel::test
