#include "tests/statements/statement_books.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "tests/support/book_questions.h"

namespace varnel::test {

namespace {

using company::demo::Random;

constexpr int kGroupTypes[] = {2, 2, 2, 2, 2, 4, 4, 6, 6, 1, 1, 3, 3, 3, 5, 5, 7, 0, 8};
// Every company has accounts to buy, to earn and to carry earnings.
constexpr int kFirstTypes[] = {1, 3, 3, 5};
constexpr int kRetained = 2, kCurrent = 3;

Units SomeCents(Random& random) {
    return random.Chance(30) ? 0 : 100 * random.Between(-500'000, 500'000);
}

std::vector<BookAccount> MakeChart(Random& random) {
    std::vector<BookAccount> accounts;
    const bool all_active = random.Chance(400);
    const int count = Small(random, 8, 30);
    for (const int type : kFirstTypes)
        accounts.push_back({.id = static_cast<int>(accounts.size()) + 1,
                            .number = {},
                            .type = type,
                            .currency_id = 0,
                            .inactive = !all_active && random.Chance(50)});
    for (int id = static_cast<int>(accounts.size()) + 1; id <= count; ++id)
        accounts.push_back({.id = id,
                            .number = {},
                            .type = Small(random, 1, 7),
                            .currency_id = random.Chance(350) ? Small(random, 1, kCurrencies) : 0,
                            .inactive = !all_active && random.Chance(150),
                            .gifi = {},
                            .group_type = random.Choose(kGroupTypes)});
    for (auto& account : accounts) {
        account.bank = account.currency_id != 0 && random.Chance(400);
        account.number = std::to_string(random.Between(10, 99)) + std::to_string(account.id);
    }
    return accounts;
}

bool CarriesEarnings(const BookAccount& account) {
    return account.id == kRetained || account.id == kCurrent;
}

// One of the posting accounts that will do, else null.
BookAccount* Pick(StatementBooks& books, Random& random,
                  const std::function<bool(const BookAccount&)>& will_do) {
    std::vector<BookAccount*> found;
    for (auto& account : books.accounts)
        if (account.IsPosting() && will_do(account)) found.push_back(&account);
    if (found.empty()) return nullptr;
    return random.Choose(std::span<BookAccount* const>(found));
}

// Mostly in the currency that it controls.
int PickControl(StatementBooks& books, Random& random, int currency_id) {
    BookAccount* const account = Pick(books, random, [](const auto& candidate) {
        return !candidate.IsOfTheYear() && !CarriesEarnings(candidate);
    });
    if (account == nullptr || random.Chance(300)) return 0;
    if (random.Chance(700)) account->currency_id = currency_id;
    return account->id;
}

void ChooseControls(StatementBooks& books, Random& random) {
    for (int currency = kHomeCurrency + 1; currency <= kCurrencies; ++currency)
        books.controls[currency] = {.receivable = PickControl(books, random, currency),
                                    .payable = PickControl(books, random, currency)};
    const int some_currency = Small(random, 1, kCurrencies);
    books.company_controls = {.receivable = PickControl(books, random, kHomeCurrency),
                              .payable = PickControl(books, random, some_currency)};
}

void ChooseUnrealized(StatementBooks& books, Random& random) {
    const bool of_the_year = !random.Chance(200);
    BookAccount* const account = Pick(books, random, [&](const auto& candidate) {
        return !CarriesEarnings(candidate) && candidate.IsOfTheYear() == of_the_year;
    });
    if (account == nullptr || random.Chance(200)) return;
    account->currency_id = 0;
    account->bank = false;
    books.unrealized = account->id;
}

// Foreign accounts at times hold nothing any more, but an amount at home is left.
void SettleForeignAmounts(StatementBooks& books, Random& random) {
    for (const auto& account : books.accounts) {
        if (!account.IsForeign() || !random.Chance(200)) continue;
        for (auto& line : books.lines)
            if (line.account_id == account.id) line.foreign = 0;
    }
}

void AddBudgets(StatementBooks& books, Random& random) {
    for (const auto& account : books.accounts) {
        if (!account.IsPosting() || !account.IsOfTheYear() || random.Chance(300)) continue;
        const Date first = SomeDay(books, random);
        const Date middle = first + Small(random, 0, 60), last = middle + Small(random, 1, 400);
        for (const auto& [from, to] : {std::pair(first, middle), std::pair(middle + 1, last)})
            books.budgets.push_back({account.id, from, to, 100 * random.Between(-900, 900)});
    }
}

std::string BudgetScript(const StatementBooks& books) {
    std::string script = ";DELETE FROM AcctBudget";
    for (const auto& budget : books.budgets)
        script += ";INSERT INTO AcctBudget (ExAcctId, BegDate, EndDate, BudgetAmnt) VALUES (" +
                  std::to_string(budget.account_id) + ",'" + budget.first.ToIso() + "','" +
                  budget.last.ToIso() + "'," +
                  Decimal(budget.a_day * (budget.last - budget.first + 1)) + ")";
    return script;
}

/// The first month of each year, and the rest of it.
constexpr const char* kFiscalPeriods =
    ";DELETE FROM FiscalYearDet;INSERT INTO FiscalYearDet (ExFiscalYearId, PeriodNo, BegDate, "
    "EndDate) SELECT InFiscalYearId, 1, BegDate, DATE(BegDate, '+1 month', '-1 day') FROM "
    "FiscalYear UNION ALL SELECT InFiscalYearId, 2, DATE(BegDate, '+1 month'), EndDate FROM "
    "FiscalYear";

std::string Parameter(const std::string& name, int account_id) {
    return "REPLACE INTO GLAccountParam VALUES ('Cie','" + name + "'," +
           std::to_string(account_id) + ");";
}

}  // namespace

std::vector<BookAccount> StatementBooks::Chart() const {
    auto chart = accounts;
    std::stable_sort(chart.begin(), chart.end(), [](const auto& a, const auto& b) {
        return SectionOf(a.type) < SectionOf(b.type);
    });
    return chart;
}

StatementBooks MakeStatementBooks(Random& random) {
    StatementBooks books;
    books.uses_foreign_currency = !random.Chance(100);
    books.accounts = MakeChart(random);
    books.years = MakeYears(random);
    books.retained_earnings = kRetained;
    books.current_earnings = kCurrent;
    ChooseControls(books, random);
    ChooseUnrealized(books, random);
    std::sort(books.accounts.begin(), books.accounts.end(),
              [](const auto& a, const auto& b) { return a.number < b.number; });
    AddEntries(books, random, kCurrencies, SomeCents);
    SettleForeignAmounts(books, random);
    AddBudgets(books, random);
    return books;
}

std::string ScriptOf(const StatementBooks& books) {
    std::string script = ScriptOf(static_cast<const Books&>(books)) + ";" +
                         Parameter("CustGLAR", books.company_controls.receivable) +
                         Parameter("SuppGLAP", books.company_controls.payable) +
                         "REPLACE INTO CompanySetting VALUES ('UseForeignCurrency','" +
                         (books.uses_foreign_currency ? "True" : "False") + "')" + kFiscalPeriods +
                         BudgetScript(books);
    for (int currency = kHomeCurrency; currency <= kCurrencies; ++currency)
        script += ";UPDATE WorldCurrency SET ARGLAccountId = " +
                  std::to_string(books.controls[currency].receivable) +
                  ", APGLAccountId = " + std::to_string(books.controls[currency].payable) +
                  " WHERE InCurrencyId = " + std::to_string(currency);
    return script;
}

}  // namespace varnel::test
