#include "tests/trial/books_figures.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <tuple>

namespace varnel::test {

namespace {

class Figures {
  public:
    /// Accounts of the year count from `income_start`.
    Figures(const Books& books, const Question& question, Date income_start)
        : books_(books), question_(question), income_start_(income_start) {}

    /// Of the lines up to that day.
    Units Foreign(const BookAccount& account, Date to) const {
        return Sum(&BookLine::foreign, account, Start(account), to);
    }
    Units Amount(const BookAccount& account, Date to) {
        if (account.id == books_.retained_earnings)
            return Sum(&BookLine::amount, account, kOpenStart, to) + EarlierEarnings();
        const Units booked = Sum(&BookLine::amount, account, Start(account), to);
        if (!question_.revalue || !account.IsForeign()) return booked;
        const Units worth = Revalued(Foreign(account, to), account.currency_id);
        difference_ += worth - booked;
        return worth;
    }
    bool CarriesDifference(const BookAccount& account) const {
        return account.id == books_.unrealized && question_.revalue;
    }
    Units LineAmount(const BookLine& line) {
        if (!question_.revalue || line.currency_id <= kHomeCurrency) return line.amount;
        const Units worth = Revalued(line.foreign, line.currency_id);
        difference_ += worth - line.amount;
        return worth;
    }
    std::string Key(const BookAccount& account) const {
        if (account.id == books_.retained_earnings || account.id == books_.current_earnings)
            return {};
        return (account.id == books_.unrealized ? "GLUnrealized|" : "") +
               std::to_string(account.id);
    }

    /// What revaluation has changed so far.
    Units Difference() const { return difference_; }

  private:
    Date Start(const BookAccount& account) const {
        return account.IsOfTheYear() ? income_start_ : kOpenStart;
    }
    Units Sum(Units BookLine::*amount, const BookAccount& account, Date from, Date to) const {
        Units sum = 0;
        for (const auto& line : books_.lines)
            if (line.account_id == account.id && line.date >= from && line.date <= to &&
                question_.Takes(line))
                sum += line.*amount;
        return sum;
    }
    Units EarlierEarnings() const {
        Units sum = 0;
        for (const auto& account : books_.accounts)
            if (account.IsOfTheYear())
                sum += Sum(&BookLine::amount, account, kOpenStart, income_start_ - 1);
        return sum;
    }

    const Books& books_;
    const Question& question_;
    Date income_start_;
    Units difference_ = 0;
};

// A period that begins before the last fiscal year it touches counts income from its first day.
Date TrialIncomeStart(const Books& books, const Question& question) {
    return std::min(books.YearStart(question.to), question.from);
}

template <class Totals>
void AddTo(Totals& totals, Units amount) {
    (amount > 0 ? totals.debit : totals.credit) += std::abs(amount);
}

// Makes debits equal credits, where there is a filter.
template <class Totals>
void Balance(Totals& totals, const Question& question) {
    if (question.IsFiltered()) totals.adjustment = totals.credit - totals.debit;
    AddTo(totals, totals.adjustment);
}

std::vector<Detail::Line> LinesOf(const Books& books, const Question& question, Figures& figures,
                                  const BookAccount& account) {
    std::vector<Detail::Line> lines;
    for (const auto& line : books.lines) {
        const bool in_period = line.date >= question.from && line.date <= question.to;
        if (line.account_id != account.id || !in_period || line.amount == 0 ||
            !question.Takes(line))
            continue;
        const bool foreign = question.foreign && line.currency_id > kHomeCurrency;
        lines.push_back({.date = line.date,
                         .entry = line.entry,
                         .amount = figures.LineAmount(line),
                         .key = account.id == books.unrealized ? figures.Key(account) : line.Key(),
                         .foreign = foreign ? line.foreign : 0});
    }
    std::sort(lines.begin(), lines.end(), [](const auto& a, const auto& b) {
        return std::tuple(a.date, a.entry, a.amount, a.foreign) <
               std::tuple(b.date, b.entry, b.amount, b.foreign);
    });
    return lines;
}

Detail::Account AccountOf(const Books& books, const Question& question, Figures& figures,
                          const BookAccount& account) {
    Detail::Account printed{.account = account.number, .key = figures.Key(account)};
    printed.forward = figures.Amount(account, question.from - 1);
    if (account.id == books.unrealized) printed.unrealized = -figures.Difference();
    printed.lines = LinesOf(books, question, figures, account);
    printed.closing = printed.forward + printed.unrealized;
    for (const auto& line : printed.lines) {
        AddTo(printed, line.amount);
        printed.closing += line.amount;
    }
    printed.has_footer = question.include_zero || printed.debit != 0 || printed.credit != 0 ||
                         printed.closing != 0 || figures.Difference() != 0;
    return printed;
}

bool IsPrinted(const Question& question, const Detail::Account& account, Units difference) {
    return question.include_zero || !account.lines.empty() || account.forward != 0 ||
           account.unrealized != 0 || difference != 0;
}

bool IsListed(const Question& question, const BookAccount& account) {
    return (question.accounts.empty() || Has(question.accounts, account.id)) &&
           !(question.hide_inactive && account.inactive);
}

}  // namespace

Summary ExpectedSummary(const Books& books, const Question& question) {
    Summary summary;
    Figures figures(books, question, TrialIncomeStart(books, question));
    for (const auto& account : books.accounts) {
        const Units amount = figures.CarriesDifference(account)
                                 ? -figures.Difference()
                                 : figures.Amount(account, question.to);
        AddTo(summary, amount);
        if (amount == 0 && (!question.include_zero || account.inactive)) continue;
        const bool foreign =
            question.foreign && account.IsForeign() && account.id != books.retained_earnings;
        summary.lines.push_back({account.number, amount, figures.Key(account),
                                 foreign ? figures.Foreign(account, question.to) : 0});
    }
    Balance(summary, question);
    return summary;
}

Detail ExpectedDetail(const Books& books, const Question& question) {
    Detail detail;
    Figures figures(books, question, TrialIncomeStart(books, question));
    for (const auto& account : books.accounts) {
        if (!IsListed(question, account)) continue;
        auto printed = AccountOf(books, question, figures, account);
        detail.debit += printed.debit;
        detail.credit += printed.credit;
        detail.balance += printed.closing;
        if (IsPrinted(question, printed, figures.Difference()))
            detail.accounts.push_back(std::move(printed));
    }
    Balance(detail, question);
    detail.balance += detail.adjustment;
    return detail;
}

Gifi ExpectedGifi(const Books& books, const Question& question) {
    std::map<std::string, std::vector<BookAccount>> coded;
    for (const auto& account : books.accounts)
        if (!account.inactive && !account.gifi.empty()) coded[account.gifi].push_back(account);
    Gifi gifi;
    Figures figures(books, question, books.YearStart(question.to));
    for (const auto& [code, accounts] : coded) {
        auto& printed = gifi.codes.emplace_back(Gifi::Code{.code = code});
        for (const auto& account : accounts) {
            const Units amount = figures.CarriesDifference(account)
                                     ? -figures.Difference()
                                     : figures.Amount(account, question.to);
            if (amount == 0) continue;
            printed.lines.push_back({account.number, amount, figures.Key(account)});
            printed.total += amount;
        }
    }
    gifi.count = static_cast<int>(gifi.codes.size());
    return gifi;
}

}  // namespace varnel::test
