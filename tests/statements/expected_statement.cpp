#include "tests/statements/expected_statement.h"

#include <algorithm>
#include <functional>

#include "tests/statements/books_sums.h"

namespace varnel::test {

namespace {

using Amounts = std::vector<Units>;

void Add(Amounts& sums, const Amounts& amounts) {
    for (std::size_t i = 0; i < sums.size(); ++i) sums[i] += amounts[i];
}

Amounts Negated(Amounts amounts) {
    for (auto& amount : amounts) amount = -amount;
    return amounts;
}

/// Follows the chart row by row.
class Walk {
  public:
    using AmountsOf = std::function<Amounts(const BookAccount&)>;
    using KeyOf = std::function<std::string(const BookAccount&)>;

    Walk(std::size_t columns, bool include_zero, AmountsOf amounts, KeyOf key)
        : include_zero_(include_zero),
          amounts_(std::move(amounts)),
          key_(std::move(key)),
          none_(columns, 0) {}

    PrintedStatement::Section Section(const std::vector<BookAccount>& chart, int number,
                                      int caption) {
        PrintedStatement::Section section{.caption = caption, .totals = none_};
        for (const auto& account : chart)
            if (SectionOf(account.type) == number) AddRow(section, account);
        return section;
    }

  private:
    void AddRow(PrintedStatement::Section& section, const BookAccount& account) {
        if (account.IsPosting()) return AddPosting(section, account);
        PrintedStatement::Row row{account.id, {}, {}};
        const Amounts* subtotal = nullptr;
        if (account.group_type == 3) subtotal = &level1_;
        if (account.group_type == 5) subtotal = &level2_;
        for (std::size_t i = 0; i < none_.size(); ++i)
            row.amounts.push_back(subtotal ? std::optional(subtotal->at(i)) : std::nullopt);
        section.rows.push_back(std::move(row));
        const int group = account.group_type;
        if (group == 1 || group == 3 || group == 7) level1_ = none_;
        if (group == 5 || group == 7) level2_ = none_;
    }

    void AddPosting(PrintedStatement::Section& section, const BookAccount& account) {
        const Amounts amounts = amounts_(account);
        if (!include_zero_ && (account.inactive || amounts == none_)) return;
        section.rows.push_back({account.id, {amounts.begin(), amounts.end()}, key_(account)});
        for (auto* const sums : {&section.totals, &level1_, &level2_}) Add(*sums, amounts);
    }

    bool include_zero_;
    AmountsOf amounts_;
    KeyOf key_;
    Amounts none_;
    Amounts level1_ = none_, level2_ = none_;
};

bool HasSection(const std::vector<BookAccount>& chart, int number) {
    return std::any_of(chart.begin(), chart.end(),
                       [&](const auto& account) { return SectionOf(account.type) == number; });
}

std::string KeyOf(const StatementBooks& books, const BookAccount& account) {
    if (account.id == books.retained_earnings || account.id == books.current_earnings) return {};
    const bool unrealized = account.id == books.unrealized && books.uses_foreign_currency;
    return (unrealized ? "GLUnrealized|" : "") + std::to_string(account.id);
}

}  // namespace

PrintedStatement ExpectedIncomeStatement(const StatementBooks& books,
                                         const StatementQuestion& question) {
    const BookSums sums(books, question);
    const Date cumul_to = question.cumul_to == Date() ? question.to : question.cumul_to;
    const Date cumul_from =
        question.cumul_from == Date() ? books.YearStart(cumul_to) : question.cumul_from;
    const auto amounts = [&](const BookAccount& account) {
        const Amounts both{sums.Income(account, {question.from, question.to}),
                           sums.Income(account, {cumul_from, cumul_to})};
        return account.type == 4 ? Negated(both) : both;
    };
    Walk walk(2, question.include_zero, amounts,
              [&](const BookAccount& account) { return KeyOf(books, account); });
    PrintedStatement statement;
    Amounts result{0, 0};
    const auto chart = books.Chart();
    for (const auto& [number, caption, result_caption] :
         {std::tuple(4, 2674, 0), std::tuple(5, 2676, 2679), std::tuple(9, 2678, 2680)}) {
        if (!HasSection(chart, number)) continue;
        auto section = walk.Section(chart, number, caption);
        Add(result, number == 4 ? section.totals : Negated(section.totals));
        section.result_caption = result_caption;
        if (result_caption != 0) section.results = result;
        statement.sections.push_back(std::move(section));
    }
    return statement;
}

PrintedStatement ExpectedBalanceSheet(const StatementBooks& books,
                                      const StatementQuestion& question) {
    const BookSums sums(books, question);
    Units adjusted = 0;
    const auto amounts = [&](const BookAccount& account) {
        const Units adjustment = sums.Adjustment(account, question.to);
        const Amounts balance{sums.Balance(account, question.to) + adjustment};
        if (question.include_zero || !account.inactive) adjusted += adjustment;
        return account.type == 1 ? balance : Negated(balance);
    };
    Walk walk(1, question.include_zero, amounts,
              [&](const BookAccount& account) { return KeyOf(books, account); });
    PrintedStatement statement;
    const auto chart = books.Chart();
    for (const auto& [number, caption] :
         {std::pair(1, 2667), std::pair(2, 2669), std::pair(3, 2671)}) {
        if (!HasSection(chart, number)) continue;
        auto& section = statement.sections.emplace_back(walk.Section(chart, number, caption));
        if (number == 3) section.totals[0] += adjusted;
        if (number != 1) statement.closing += section.totals[0];
    }
    const bool balances = statement.sections.front().totals[0] == statement.closing;
    statement.closing_caption = balances || !question.IsFiltered() ? 2672 : 8324;
    return statement;
}

}  // namespace varnel::test
