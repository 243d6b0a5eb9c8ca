#pragma once

#include "host/report.h"
#include "tests/support/books.h"

namespace varnel::test {

/// What the reports of a company are asked for.
struct Question {
    Date from = kOpenStart, to = kOpenEnd;
    std::vector<int> segments{};
    bool also_without_segment = false;
    bool revalue = false, foreign = false;
    bool include_zero = false;
    /// All when empty; not every report asks for projects or single accounts.
    std::vector<int> projects{}, accounts{};
    bool hide_inactive = false;

    bool IsFiltered() const { return !segments.empty() || also_without_segment; }
    /// Whether the line is in the segments and projects; its date makes no difference.
    bool Takes(const BookLine& line) const;
};

Question SomePeriod(const Books& books, company::demo::Random& random);
/// The same with a segment filter, or with none at times.
Question SomeSegments(Question question, company::demo::Random& random);
std::vector<int> SomeOf(int highest, company::demo::Random& random);

bool Has(const std::vector<int>& ids, int id);
/// Separated by commas, as reports take them.
std::string Listed(const std::vector<int>& ids);
std::string InWords(const Question& question);
/// Joined by blanks.
std::string Words(std::initializer_list<std::string> words);
std::string Decimal(Units amount);

/// Puts the question to the report; its rates are those of the books.
void Configure(IReport& report, const std::shared_ptr<Application>& host, const Question& question);

}  // namespace varnel::test
