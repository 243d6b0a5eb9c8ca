#include "company/demo/rates.h"

#include "company/demo/calendar.h"

namespace varnel::company::demo {
namespace {

constexpr std::int64_t kMillionth = Rate::kScale / 1'000'000;

// Rates in millionths: `level` is both the start and what the walk returns to.
struct Walk {
    std::int64_t level, daily_reach;
};

std::vector<Rate> WalkRates(Random& random, Walk walk) {
    std::vector<Rate> rates;
    std::int64_t value = walk.level;
    Rate published;
    for (Date day = RateTable::Begin(); day <= RateTable::End(); day = day + 1) {
        if (IsBusinessDay(day) || rates.empty()) {
            value += (walk.level - value) / 90;
            value += random.Between(-walk.daily_reach, walk.daily_reach) +
                     random.Between(-walk.daily_reach, walk.daily_reach);
            const std::int64_t shown = random.Chance(150) ? value : (value + 50) / 100 * 100;
            published = Rate::FromScaled(shown * kMillionth);
        }
        rates.push_back(published);
    }
    return rates;
}

}  // namespace

RateTable::RateTable(Random& random) {
    rates_[kUsd] = WalkRates(random, {.level = 1'362'000, .daily_reach = 4'200});
    rates_[kEur] = WalkRates(random, {.level = 1'487'000, .daily_reach = 5'000});
}

Date RateTable::Begin() { return Date::FromYearMonthDay(2023, 12, 1); }
Date RateTable::End() { return Date::FromYearMonthDay(2026, 12, 31); }

Rate RateTable::On(int currency, Date date) const {
    if (currency == kHome) return kPar;
    return rates_[static_cast<std::size_t>(currency)].at(static_cast<std::size_t>(date - Begin()));
}

Rate RateTable::ForDocument(int currency, Date date) const {
    constexpr std::int64_t kFourDecimals = Rate::kScale / 10'000;
    const std::int64_t scaled = On(currency, date).Scaled();
    return Rate::FromScaled((scaled + kFourDecimals / 2) / kFourDecimals * kFourDecimals);
}

}  // namespace varnel::company::demo
