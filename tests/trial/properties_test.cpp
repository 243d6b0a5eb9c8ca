// What must hold of the figures of any company, over a thousand made-up ones. VARNEL_COMPANIES is
// their number and VARNEL_SEED the first of them, to see one that failed again.

#include <algorithm>
#include <cstdlib>
#include <functional>

#include "tests/support/book_companies.h"
#include "tests/trial/books_figures.h"
#include "tests/trial/trial_books.h"

namespace varnel::test {
namespace {

using company::demo::Random;

using Check =
    std::function<void(const Books&, const std::shared_ptr<Application>& host, Random& random)>;

void ForEveryCompany(const Check& check) {
    ForEverySeed([&](BookCompany& company, Random& random) {
        const Books books = MakeBooks(random);
        company.Put(ScriptOf(books));
        check(books, company.Host(), random);
    });
}

Question Anything(const Books& books, Random& random) {
    Question question = SomePeriod(books, random);
    if (random.Chance(600)) question = SomeSegments(question, random);
    question.revalue = random.Chance(400);
    question.foreign = random.Chance(400);
    question.include_zero = random.Chance(300);
    question.hide_inactive = random.Chance(300);
    if (random.Chance(300)) question.projects = SomeOf(2, random);
    if (random.Chance(300))
        question.accounts = SomeOf(static_cast<int>(books.accounts.size()), random);
    return question;
}

TEST(TrialFigures, AreThoseAddedUpFromTheLines) {
    ForEveryCompany([](const Books& books, const auto& host, Random& random) {
        Question question = Anything(books, random);
        SCOPED_TRACE(InWords(question));
        EXPECT_EQ(InWords(RunDetail(host, question)), InWords(ExpectedDetail(books, question)));
        question.projects.clear();
        EXPECT_EQ(InWords(RunSummary(host, question)), InWords(ExpectedSummary(books, question)));
        EXPECT_EQ(InWords(RunGifi(host, question)), InWords(ExpectedGifi(books, question)));
    });
}

TEST(TrialBalances, BalanceWithoutAFilterInAnyPeriod) {
    ForEveryCompany([](const Books& books, const auto& host, Random& random) {
        const Question question = SomePeriod(books, random);
        SCOPED_TRACE(InWords(question));
        const Summary summary = RunSummary(host, question);
        EXPECT_EQ(summary.debit, summary.credit);
        const Detail detail = RunDetail(host, question);
        EXPECT_EQ(detail.debit, detail.credit);
        EXPECT_EQ(detail.balance, 0);
        EXPECT_TRUE(summary.adjustment == 0 && detail.adjustment == 0);
    });
}

TEST(TrialBalances, AdjustASegmentedLedgerUntilItBalances) {
    ForEveryCompany([](const Books& books, const auto& host, Random& random) {
        Question question = SomeSegments(SomePeriod(books, random), random);
        question.also_without_segment |= question.segments.empty();
        question.revalue = random.Chance(300);
        SCOPED_TRACE(InWords(question));
        const Summary summary = RunSummary(host, question);
        EXPECT_EQ(summary.debit, summary.credit);
        const Detail detail = RunDetail(host, question);
        EXPECT_EQ(detail.debit, detail.credit);
    });
}

/// What holds of the balances of both reports that show how they came about.
class RunningBalances : public testing::TestWithParam<decltype(&RunDetail)> {};

INSTANTIATE_TEST_SUITE_P(Both, RunningBalances, testing::Values(RunDetail, RunLedger));

TEST_P(RunningBalances, CloseEachAccountAtItsLineOfTheSummary) {
    ForEveryCompany([](const Books& books, const auto& host, Random& random) {
        Question question = SomePeriod(books, random);
        if (random.Chance(700)) question = SomeSegments(question, random);
        question.include_zero = random.Chance(300);
        SCOPED_TRACE(InWords(question));
        const Summary summary = RunSummary(host, question);
        const Detail detail = GetParam()(host, question);
        for (const auto& account : books.accounts)
            EXPECT_EQ(detail.Of(account.number).closing, summary.Of(account.number))
                << account.number;
    });
}

// The last day of one period and the first of the next, both in the same fiscal year.
TEST_P(RunningBalances, OpenEachPeriodAtTheCloseOfTheOneBefore) {
    ForEveryCompany([](const Books& books, const auto& host, Random& random) {
        Question whole = SomePeriod(books, random);
        whole.from = std::max(whole.from, books.YearStart(whole.to));
        if (random.Chance(500)) whole = SomeSegments(whole, random);
        Question first = whole, second = whole;
        first.to = whole.from + static_cast<int>(random.Between(0, whole.to - whole.from));
        second.from = first.to + 1;
        if (second.from > second.to) return;
        SCOPED_TRACE(InWords(first) + "; " + InWords(second));
        const Detail before = GetParam()(host, first);
        const Detail after = GetParam()(host, second);
        const Detail both = GetParam()(host, whole);
        for (const auto& account : books.accounts) {
            EXPECT_EQ(before.Of(account.number).closing, after.Of(account.number).forward);
            EXPECT_EQ(before.Of(account.number).forward, both.Of(account.number).forward);
            EXPECT_EQ(after.Of(account.number).closing, both.Of(account.number).closing);
        }
    });
}

// A new fiscal year begins with nothing earned; what the old one earned is retained.
TEST_P(RunningBalances, OpenAFiscalYearWithTheEarningsOfTheOneBeforeRetained) {
    ForEveryCompany([](const Books& books, const auto& host, Random& random) {
        for (std::size_t year = 1; year < books.years.size(); ++year) {
            Question old, next;
            old.from = books.years[year - 1].first;
            old.to = books.years[year].first - 1;
            next.from = books.years[year].first;
            next.to = books.years[year].last;
            if (random.Chance(500)) old.segments = next.segments = SomeOf(3, random);
            SCOPED_TRACE(InWords(old) + "; " + InWords(next));
            const Detail before = GetParam()(host, old);
            const Detail after = GetParam()(host, next);
            Units earned = 0, retained = 0;
            for (const auto& account : books.accounts) {
                const Units closing = before.Of(account.number).closing;
                const Units opening = after.Of(account.number).forward;
                if (account.IsOfTheYear()) earned += closing;
                if (account.id == books.retained_earnings)
                    retained = opening - closing;
                else
                    EXPECT_EQ(opening, account.IsOfTheYear() ? 0 : closing) << account.number;
            }
            EXPECT_EQ(retained, earned);
        }
    });
}

TEST(Ledgers, AddUpToEveryLineOfThePeriodByAccountAndOverAllTypes) {
    ForEveryCompany([](const Books& books, const auto& host, Random& random) {
        Question question = SomePeriod(books, random);
        if (random.Chance(600)) question = SomeSegments(question, random);
        SCOPED_TRACE(InWords(question));
        Units debit = 0, credit = 0;
        for (const auto& line : books.lines)
            if (line.date >= question.from && line.date <= question.to && question.Takes(line))
                (line.amount > 0 ? debit : credit) += std::abs(line.amount);
        const Detail by_account = RunLedger(host, question);
        const DebitAndCredit all = RunGeneralLedger(host, 0, question);
        DebitAndCredit by_type;
        for (int type = 1; type <= 7; ++type) {
            const DebitAndCredit one = RunGeneralLedger(host, type, question);
            by_type.debit += one.debit;
            by_type.credit += one.credit;
        }
        for (const Units sum : {by_account.debit, all.debit, by_type.debit}) EXPECT_EQ(sum, debit);
        for (const Units sum : {by_account.credit, all.credit, by_type.credit})
            EXPECT_EQ(sum, credit);
    });
}

// The lines that a ledger opened by the key would list, up to the last day.
Units AddedUpBehind(const std::string& key, const Books& books, const Question& question) {
    const int id = std::stoi(key.substr(key.find('|') + 1));
    EXPECT_EQ(key.starts_with("GLUnrealized|"), id == books.unrealized) << key;
    const auto account = std::find_if(books.accounts.begin(), books.accounts.end(),
                                      [id](const auto& known) { return known.id == id; });
    const Date year_start = std::min(question.from, books.YearStart(question.to));
    Units sum = 0;
    for (const auto& line : books.lines) {
        const bool counts = !account->IsOfTheYear() || line.date >= year_start;
        if (line.account_id == id && counts && line.date <= question.to) sum += line.amount;
    }
    return sum;
}

TEST(TrialSummary, LeadsFromEachAccountToLinesThatAddUpToIt) {
    ForEveryCompany([](const Books& books, const auto& host, Random& random) {
        const Question question = SomePeriod(books, random);
        SCOPED_TRACE(InWords(question));
        std::size_t without_key = 0;
        const Summary summary = RunSummary(host, question);
        for (const auto& line : summary.lines) {
            if (line.key.empty())
                ++without_key;
            else
                EXPECT_EQ(line.amount, AddedUpBehind(line.key, books, question)) << line.account;
        }
        EXPECT_LE(without_key, 2U) << "only earnings lead nowhere";
    });
}

}  // namespace
}  // namespace varnel::test
