#include "accounts/cgl_acct_helper.h"

#include "accounts/unrealized_gain.h"
#include "framework/procedure.h"
#include "host/member_table.h"

namespace varnel {

namespace {

using framework::GuardFormB;
using Arguments = std::span<const Variant>;

constexpr std::string_view kClass = "CGLAcctHelper";
constexpr std::string_view kUnrealized = "GetPLUnrealOnExchangeRateAmount";

Variant CallInit(CGLAcctHelper& helper, Arguments a) {
    helper.Init(
        GuardFormB(kClass, "Init", [&] { return ObjectAs<Application>(ArgumentAt(a, 0)); }));
    return {};
}

struct UnrealizedArguments {
    Date end_date;
    bool reevaluate;
    std::shared_ptr<RateCollection> rates;
    std::string project_ids;
};

Variant CallUnrealized(CGLAcctHelper& helper, Arguments a) {
    const auto read = GuardFormB(kClass, kUnrealized, [&]() -> UnrealizedArguments {
        return {ArgumentAt(a, 0).ToDate(), ArgumentAt(a, 1).ToBool(),
                ObjectAs<RateCollection>(ArgumentAt(a, 2)), ArgumentAt(a, 3).ToText()};
    });
    return helper.GetPLUnrealOnExchangeRateAmount(read.end_date, read.reevaluate, read.rates,
                                                  read.project_ids);
}

constexpr Member<CGLAcctHelper> kMembers[] = {
    {"Init", nullptr, nullptr, CallInit},
    {kUnrealized, nullptr, nullptr, CallUnrealized},
};

}  // namespace

Variant CGLAcctHelper::Call(std::string_view name, std::span<const Variant> arguments) {
    return CallMember<CGLAcctHelper>(kMembers, *this, name, arguments);
}

void CGLAcctHelper::Init(std::shared_ptr<Application> main_app) { main_app_ = std::move(main_app); }

std::shared_ptr<Application> CGLAcctHelper::Host() const {
    auto host = main_app_ != nullptr ? main_app_ : RunningHost();
    if (host == nullptr)
        Raise(error_number::kObjectNotSet, "Varnel.CGLAcctHelper",
              "There is no application to ask; give one to Init first");
    return host;
}

Currency CGLAcctHelper::GetPLUnrealOnExchangeRateAmount(
    Date end_date, bool reevaluate, const std::shared_ptr<RateCollection>& exchange_rates,
    const std::string& ex_project_id) {
    return GuardFormB(kClass, kUnrealized, [&] {
        if (!reevaluate) return Currency();
        const UnrealizedScope scope{.to = end_date, .project_ids = ex_project_id};
        return UnrealizedGain(*Host(), scope, exchange_rates.get());
    });
}

}  // namespace varnel
