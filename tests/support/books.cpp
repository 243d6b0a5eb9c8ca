#include "tests/support/books.h"

#include <span>

#include "host/currency.h"

namespace varnel::test {

namespace {

using company::demo::Random;

// An id of 1 to `highest`, or 0 for none.
int IdOrNone(Random& random, int highest) {
    return random.Chance(400) ? 0 : Small(random, 1, highest);
}

std::vector<const BookAccount*> PostingAccounts(const Books& books) {
    std::vector<const BookAccount*> posting;
    for (const auto& account : books.accounts)
        if (account.IsPosting()) posting.push_back(&account);
    return posting;
}

// Of the whole entry at times, else of each line by itself.
class Segments {
  public:
    explicit Segments(Random& random)
        : random_(random), shared_(random.Chance(300)), id_(IdOrNone(random, kSegments)) {}
    int Next() { return shared_ ? id_ : IdOrNone(random_, kSegments); }

  private:
    Random& random_;
    bool shared_;
    int id_;
};

void AddEntry(Books& books, Random& random, int entry, int currencies, MakeAmount some_amount) {
    const auto accounts = PostingAccounts(books);
    const Date date = SomeDay(books, random);
    Segments segments(random);
    Units left = 0;
    const int lines = Small(random, 2, 5);
    for (int i = 1; i <= lines; ++i) {
        const BookAccount& account = *random.Choose(std::span<const BookAccount* const>(accounts));
        const Units amount = i < lines ? some_amount(random) : -left;
        left += amount;
        int currency = account.currency_id;
        if (random.Chance(100)) currency = Small(random, 0, currencies);
        books.lines.push_back({.entry = entry,
                               .date = date,
                               .account_id = account.id,
                               .amount = amount,
                               .foreign = currency > kHomeCurrency ? some_amount(random) : 0,
                               .currency_id = currency,
                               .project_id = IdOrNone(random, kProjects),
                               .segment_id = segments.Next()});
    }
}

std::string Decimal(Units amount) { return Currency::FromScaled(amount).ToText(); }
std::string OrNull(int id) { return id == 0 ? "NULL" : std::to_string(id); }
std::string Quoted(const std::string& text) { return "'" + text + "'"; }

std::string AccountValues(const BookAccount& account) {
    // Both ways to say no.
    const std::string active = account.id % 2 == 0 ? "0" : "NULL";
    const std::string no_gifi = account.id % 2 == 0 ? "''" : "NULL";
    return std::to_string(account.id) + "," + Quoted(account.number) + "," +
           Quoted(account.Name()) + "," + std::to_string(account.type) + "," +
           std::to_string(account.group_type) + "," + (account.bank ? "1," : "0,") +
           (account.inactive ? "1" : active) + "," +
           (account.gifi.empty() ? no_gifi : Quoted(account.gifi)) + "," +
           (account.id % 3 == 0 ? std::to_string(account.currency_id)
                                : OrNull(account.currency_id));
}

std::string LineValues(const BookLine& line) {
    const bool no_amount = line.amount == 0 && line.entry % 2 == 0;
    return std::to_string(line.account_id) + "," + OrNull(line.currency_id) + "," +
           std::to_string(line.entry) + "," + Quoted(line.date.ToIso()) + "," +
           (no_amount ? "NULL" : Decimal(line.amount)) + "," +
           (line.foreign == 0 ? "NULL" : Decimal(line.foreign)) + "," + Quoted(line.Source()) +
           "," + std::to_string(line.SourceKey()) + "," + OrNull(line.project_id) + "," +
           OrNull(line.segment_id);
}

std::string YearValues(const BookYear& year) {
    return Quoted(year.first.ToIso()) + "," + Quoted(year.last.ToIso());
}

// One statement for all rows of a table, after those that were there are gone.
template <class Row>
std::string Replace(const std::string& table, const std::string& columns,
                    const std::vector<Row>& rows, std::string (&values)(const Row&)) {
    std::string script = "DELETE FROM " + table + ";";
    for (const auto& row : rows) {
        script +=
            &row == &rows.front() ? "INSERT INTO " + table + " (" + columns + ") VALUES (" : ",(";
        script += values(row) + ")";
    }
    return script + ";";
}

}  // namespace

Date Books::YearStart(Date day) const {
    Date start = Date::FromYearMonthDay(day.Civil().year, 1, 1);
    for (const auto& year : years) {
        if (year.first > day) break;
        start = year.first;
    }
    return start;
}

int Small(Random& random, int low, int high) { return static_cast<int>(random.Between(low, high)); }

Units SomeAmount(Random& random) {
    if (random.Chance(30)) return 0;
    if (random.Chance(30)) return random.Between(-99'999, 99'999);
    return 100 * random.Between(-500'000, 500'000);
}

std::vector<BookYear> MakeYears(Random& random) {
    constexpr int kMonths[] = {12, 12, 12, 6, 13};
    std::vector<BookYear> years;
    int month = Small(random, 1, 30);
    for (int count = Small(random, 0, 4); count > 0; --count) {
        const auto first = Date::FromYearMonthDay(2021, month, 1);
        month += random.Choose(kMonths);
        years.push_back({first, Date::FromYearMonthDay(2021, month, 1) - 1});
        if (random.Chance(100)) ++month;
    }
    return years;
}

Date SomeDay(const Books& books, Random& random) {
    if (!books.years.empty() && random.Chance(300)) {
        const auto last = static_cast<std::int64_t>(books.years.size()) - 1;
        const auto& year = books.years[static_cast<std::size_t>(random.Between(0, last))];
        return (random.Chance(500) ? year.first : year.last) + Small(random, -1, 1);
    }
    return Date::FromYearMonthDay(2021, 1, 1) + Small(random, 0, 5 * 365);
}

void AddEntries(Books& books, Random& random, int currencies, MakeAmount amount) {
    const int entries = Small(random, 0, 20);
    for (int entry = 1; entry <= entries; ++entry)
        AddEntry(books, random, entry, currencies, amount);
}

Units Revalued(Units foreign, int currency_id) {
    // A product of ten-thousandths has eight decimals.
    constexpr Units kCent = 1'000'000;
    const Units product = foreign * kRates[currency_id];
    return (product + (product < 0 ? -kCent / 2 : kCent / 2)) / kCent * 100;
}

std::string ScriptOf(const Books& books) {
    return Replace(
               "GLAcct",
               "InGLAcctId, GLAcctId, Descr, AcctType, GroupType, ChqAcct, Inactive, GIFIAcctId, "
               "ExCurrencyId",
               books.accounts, AccountValues) +
           Replace("GLDet",
                   "ExAcctId, ExCurrencyId, SeqNo, DetDate, DetAmnt, ForeignAmnt, Source, "
                   "ExSrcKeyVal, ExProjId, ExSegmentId",
                   books.lines, LineValues) +
           Replace("FiscalYear", "BegDate, EndDate", books.years, YearValues) +
           "REPLACE INTO GLAccountParam VALUES ('Cie','GLRtainEarn'," +
           std::to_string(books.retained_earnings) + "),('Cie','GLCurntEarn'," +
           std::to_string(books.current_earnings) + "),('Cie','UnrealizedGainLoss'," +
           std::to_string(books.unrealized) + ")";
}

}  // namespace varnel::test
