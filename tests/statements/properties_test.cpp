// What must hold of the statements of any company, over a thousand made-up ones. VARNEL_COMPANIES
// is their number and VARNEL_SEED the first of them, to see one that failed again.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

#include "tests/statements/books_sums.h"
#include "tests/statements/expected_statement.h"
#include "tests/support/book_companies.h"

namespace varnel::test {
namespace {

using company::demo::Random;
using Host = std::shared_ptr<Application>;
using Check = std::function<void(const StatementBooks&, const Host& host, Random& random)>;

void ForEveryCompany(const Check& check) {
    ForEverySeed([&](BookCompany& company, Random& random) {
        const StatementBooks books = MakeStatementBooks(random);
        company.Put(ScriptOf(books));
        company.Reopen();
        check(books, company.Host(), random);
    });
}

StatementQuestion SomeStatement(const Books& books, Random& random) {
    StatementQuestion question{SomePeriod(books, random)};
    if (random.Chance(600)) {
        const Question other = SomePeriod(books, random);
        question.cumul_from = other.from;
        question.cumul_to = other.to;
    }
    question.include_zero = random.Chance(300);
    return question;
}

StatementQuestion Anything(const Books& books, Random& random) {
    StatementQuestion question = SomeStatement(books, random);
    if (random.Chance(500)) static_cast<Question&>(question) = SomeSegments(question, random);
    question.revalue = random.Chance(500);
    question.foreign = random.Chance(500);
    return question;
}

// Inactive accounts count in a statement only where they are printed.
StatementQuestion WholeBalanceSheet(const Books& books, Random& random) {
    StatementQuestion question{SomePeriod(books, random)};
    const bool all_active = std::none_of(books.accounts.begin(), books.accounts.end(),
                                         [](const auto& account) { return account.inactive; });
    question.include_zero = !all_active || random.Chance(300);
    return question;
}

TEST(IncomeStatement, PrintsWhatTheLinesAddUpToRowByRow) {
    ForEveryCompany([](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion question = Anything(books, random);
        if (question.cumul_to != Date() && random.Chance(500))
            question.projects = SomeOf(kProjects, random);
        SCOPED_TRACE(InWords(question));
        EXPECT_EQ(InWords(RunIncomeStatement(host, question)),
                  InWords(ExpectedIncomeStatement(books, question)));
    });
}

TEST(BalanceSheet, PrintsWhatTheLinesAddUpToRowByRow) {
    ForEveryCompany([](const StatementBooks& books, const Host& host, Random& random) {
        const StatementQuestion question = Anything(books, random);
        SCOPED_TRACE(InWords(question));
        EXPECT_EQ(InWords(RunBalanceSheet(host, question)),
                  InWords(ExpectedBalanceSheet(books, question)));
    });
}

TEST(BalanceSheet, BalancesWithoutAFilterAtAnyDateRevaluedOrNot) {
    ForEveryCompany([](const StatementBooks& books, const Host& host, Random& random) {
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

TEST(BalanceSheet, SaysUnderASegmentFilterWhetherItsSectionsBalance) {
    int balanced = 0, unbalanced = 0;
    ForEveryCompany([&](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion question = WholeBalanceSheet(books, random);
        question.segments = {Small(random, 1, kSegments + 1)};
        question.also_without_segment = random.Chance(200);
        question.revalue = random.Chance(500);
        SCOPED_TRACE(InWords(question));
        const PrintedStatement sheet = RunBalanceSheet(host, question);
        Units difference = sheet.Captioned(2667)->totals[0] - sheet.Captioned(2671)->totals[0];
        if (const auto* const owed = sheet.Captioned(2669)) difference -= owed->totals[0];
        EXPECT_EQ(sheet.closing_caption, difference == 0 ? 2672 : 8324);
        (difference == 0 ? balanced : unbalanced) += 1;
    });
    EXPECT_TRUE(HasFailure() || (balanced > 0 && unbalanced > 0)) << balanced << " balanced";
}

// Over a fiscal year, up to any day in it. What was posted to the accounts of earnings themselves
// is not the income statement's.
TEST(Statements, EarnWhatTheEarningsInEquityGrowBy) {
    ForEveryCompany([](const StatementBooks& books, const Host& host, Random& random) {
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
    ForEveryCompany([](const StatementBooks& books, const Host& host, Random& random) {
        const StatementQuestion question = SomeStatement(books, random);
        SCOPED_TRACE(InWords(question));
        ExpectParts(RunIncomeStatement(host, question),
                    RunSegments(RunIncomeStatement, host, question), books, 2);
        ExpectParts(RunBalanceSheet(host, question), RunSegments(RunBalanceSheet, host, question),
                    books, 1);
    });
}

TEST(IncomeStatement, OfTwoProjectsAddsUpThoseOfEach) {
    ForEveryCompany([](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion question = Anything(books, random);
        question.revalue = false;
        std::vector<PrintedStatement> parts;
        for (int project = 1; project <= kProjects; ++project) {
            question.projects = {project};
            parts.push_back(RunIncomeStatement(host, question));
        }
        question.projects = {2, 1};
        SCOPED_TRACE(InWords(question));
        ExpectParts(RunIncomeStatement(host, question), parts, books, 2);
    });
}

// A ledger opened by the key lists the account's lines of the statement's dates.
void ExpectLinesBehindKeys(const StatementBooks& books, const StatementQuestion& question,
                           const PrintedStatement& statement, const Period& period) {
    const BookSums sums(books, question);
    std::map<std::string, const BookAccount*> accounts;
    for (const auto& account : books.accounts) {
        const bool unrealized = account.id == books.unrealized && books.uses_foreign_currency;
        accounts[(unrealized ? "GLUnrealized|" : "") + std::to_string(account.id)] = &account;
    }
    for (const auto& section : statement.sections) {
        for (const auto& row : section.rows) {
            if (row.key.empty()) continue;
            ASSERT_TRUE(accounts.contains(row.key)) << row.key;
            const BookAccount& account = *accounts[row.key];
            EXPECT_EQ(account.id, row.account);
            const bool turned = account.type >= 2 && account.type <= 4;
            EXPECT_EQ(row.amounts[0], (turned ? -1 : 1) * sums.Booked(account.id, period));
        }
    }
}

// Rows that lead nowhere: of posting accounts, by id.
std::vector<int> WithoutKey(const Books& books, const PrintedStatement& statement) {
    std::vector<int> ids;
    for (const auto& section : statement.sections)
        for (const auto& row : section.rows)
            for (const auto& account : books.accounts)
                if (account.id == row.account && account.IsPosting() && row.key.empty())
                    ids.push_back(row.account);
    std::sort(ids.begin(), ids.end());
    return ids;
}

TEST(Statements, LeadFromEachAccountToLinesThatAddUpToIt) {
    ForEveryCompany([](const StatementBooks& books, const Host& host, Random& random) {
        StatementQuestion question = Anything(books, random);
        question.revalue = false;
        question.include_zero = true;
        SCOPED_TRACE(InWords(question));
        const PrintedStatement income = RunIncomeStatement(host, question);
        ExpectLinesBehindKeys(books, question, income, {question.from, question.to});
        EXPECT_EQ(WithoutKey(books, income), std::vector<int>{});
        const PrintedStatement sheet = RunBalanceSheet(host, question);
        ExpectLinesBehindKeys(books, question, sheet, {kOpenStart, question.to});
        EXPECT_EQ(WithoutKey(books, sheet),
                  (std::vector{books.retained_earnings, books.current_earnings}));
    });
}

}  // namespace
}  // namespace varnel::test
