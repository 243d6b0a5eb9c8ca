#include "tests/support/book_questions.h"

#include <algorithm>

#include "host/exchange_rates.h"

namespace varnel::test {

using company::demo::Random;

bool Question::Takes(const BookLine& line) const {
    const bool in_segment =
        !IsFiltered() ||
        (line.segment_id == 0 ? also_without_segment : Has(segments, line.segment_id));
    return in_segment && (projects.empty() || Has(projects, line.project_id));
}

std::vector<int> SomeOf(int highest, Random& random) {
    std::vector<int> ids;
    for (int id = 1; id <= highest; ++id)
        if (random.Chance(400)) ids.push_back(id);
    return ids;
}

Question SomePeriod(const Books& books, Random& random) {
    Question question;
    const Date a = SomeDay(books, random);
    const Date b = SomeDay(books, random);
    if (!random.Chance(100)) question.from = std::min(a, b);
    if (!random.Chance(100)) question.to = std::max(a, b);
    return question;
}

Question SomeSegments(Question question, Random& random) {
    question.segments = SomeOf(kSegments + 1, random);
    question.also_without_segment = random.Chance(500);
    return question;
}

bool Has(const std::vector<int>& ids, int id) {
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

std::string Listed(const std::vector<int>& ids) {
    std::string text;
    for (const int id : ids) text += (text.empty() ? "" : ",") + std::to_string(id);
    return text;
}

std::string Words(std::initializer_list<std::string> words) {
    std::string text;
    for (const auto& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

std::string Decimal(Units amount) { return Currency::FromScaled(amount).ToText(2); }

std::string InWords(const Question& question) {
    return Words({question.from.ToIso(), "to", question.to.ToIso(), "segments",
                  Listed(question.segments), question.also_without_segment ? "and none" : "",
                  question.revalue ? "revalued" : "", question.foreign ? "foreign" : "",
                  question.include_zero ? "with zeros" : "", "projects", Listed(question.projects),
                  "accounts", Listed(question.accounts),
                  question.hide_inactive ? "active only" : ""});
}

void Configure(IReport& report, const std::shared_ptr<Application>& host,
               const Question& question) {
    report.IReport_Application(host);
    report.IReport_DateFrom(question.from);
    report.IReport_DateTo(question.to);
    report.IReport_DisplayForeignCurrency(question.foreign);
    report.IReport_Initialize();
    auto& segments = dynamic_cast<ISegmentFilter&>(report);
    segments.ISegmentFilter_SegmentFilter(Listed(question.segments));
    segments.ISegmentFilter_SegmentNoneFilter(question.also_without_segment);
    auto* const options = dynamic_cast<IReportConfig*>(&report);
    if (options != nullptr && question.include_zero)
        options->IReportConfig_ShowConfigurationScreen();
    auto* const rates = dynamic_cast<IExchangeRates*>(&report);
    if (rates == nullptr) return;
    const auto collection = std::make_shared<RateCollection>();
    for (int currency = kHomeCurrency + 1; currency <= kCurrencies; ++currency)
        collection->Set(currency, Rate::FromScaled(kRates[currency] * (Rate::kScale / 10'000)));
    rates->IExchangeRates_ExchangeRates(collection);
    rates->IExchangeRates_Reevaluate(question.revalue);
}

}  // namespace varnel::test
