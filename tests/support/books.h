#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "company/demo/random.h"
#include "host/date.h"

namespace varnel::test {

/// Ten-thousandths, debit positive: figures as plain integers, apart from the library's amounts.
using Units = std::int64_t;

/// Currency 1 is the home currency; the rates of the others in ten-thousandths, by id.
inline constexpr int kHomeCurrency = 1;
inline constexpr int kCurrencies = 3;
inline constexpr Units kRates[] = {0, 10'000, 13'725, 6'650};
/// Of account types 1 to 3, which accumulate, and 4 to 7, which begin anew each year.
inline constexpr int kFirstIncomeType = 4;
inline constexpr int kSegments = 3;
inline constexpr int kProjects = 2;

struct BookAccount {
    int id;
    std::string number;
    int type;
    /// 0 has none of its own, which is the home currency.
    int currency_id;
    bool inactive;
    std::string gifi{};
    int group_type = 2;
    bool bank = false;

    bool IsForeign() const { return currency_id > kHomeCurrency; }
    bool IsOfTheYear() const { return type >= kFirstIncomeType; }
    /// Others are headings, subtotals and texts of the statements.
    bool IsPosting() const { return group_type == 2 || group_type == 4 || group_type == 6; }
    std::string Name() const { return "Account " + std::to_string(id); }
};

struct BookLine {
    int entry;
    Date date;
    int account_id;
    Units amount, foreign;
    /// 0 where there is none.
    int currency_id, project_id, segment_id;

    /// The document that the line came from; a document may have several entries.
    std::string Source() const { return entry % 2 == 0 ? "GJ" : "INV"; }
    int SourceKey() const { return entry / 3; }
    std::string Key() const { return Source() + "|" + std::to_string(SourceKey()); }
};

struct BookYear {
    Date first, last;
};

/// A made-up company: entries balance, but seldom by segment, project or currency.
struct Books {
    /// In the order of their numbers, which is not that of their ids.
    std::vector<BookAccount> accounts;
    std::vector<BookLine> lines;
    /// In order; there may be gaps between them, and lines outside of all.
    std::vector<BookYear> years;
    /// Ids; 0 where the company has none.
    int retained_earnings = 0, current_earnings = 0, unrealized = 0;

    Date YearStart(Date day) const;
};

/// An amount of a line.
using MakeAmount = Units (*)(company::demo::Random&);
/// Mostly cents, now and then more decimals or nothing.
Units SomeAmount(company::demo::Random& random);

int Small(company::demo::Random& random, int low, int high);
std::vector<BookYear> MakeYears(company::demo::Random& random);
/// Adds balanced entries on posting accounts, in currencies up to `currencies`.
void AddEntries(Books& books, company::demo::Random& random, int currencies, MakeAmount amount);

/// A day of the years in which lines are; often one at the edge of a fiscal year.
Date SomeDay(const Books& books, company::demo::Random& random);
/// To the cent, half away from zero, at the currency's rate.
Units Revalued(Units foreign, int currency_id);
/// Statements that put these books into a database in place of others.
std::string ScriptOf(const Books& books);

}  // namespace varnel::test
