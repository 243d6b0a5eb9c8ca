#include "reports/exchange/rates_at_start.h"

namespace varnel::reports {

namespace {

constexpr Member<RatesAtStart> kMembers[] = {
    {"RatesPreset", [](RatesAtStart& r) -> Variant { return r.RatesPreset(); },
     [](RatesAtStart& r, const Variant& v) { r.RatesPreset(v.ToBool()); }},
};

}  // namespace

RatesAtStart::RatesAtStart(MemberParts& members) : RevaluedReport(members) {
    members.Add<RatesAtStart>(*this, kMembers);
}

void RatesAtStart::ConfigureRates(CurrencyInfo& info, Date date,
                                  std::span<const std::string> filter) {
    constexpr bool kUseRateTable = true;
    if (!rates_preset_) info.ConfigureExchangeRates(*this, date, kUseRateTable, filter);
}

}  // namespace varnel::reports
