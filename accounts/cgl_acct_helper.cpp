#include "accounts/cgl_acct_helper.h"

#include "framework/ledger_balance_columns.h"
#include "framework/procedure.h"
#include "framework/query_runner.h"
#include "host/member_table.h"

namespace varnel {

namespace {

using framework::GuardFormB;
using framework::LedgerBalance;
using framework::Mark;
using Arguments = std::span<const Variant>;

constexpr std::string_view kClass = "CGLAcctHelper";
constexpr std::string_view kUnrealized = "GetPLUnrealOnExchangeRateAmount";

constexpr std::string_view kSelect =
    "SELECT GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, "
    "       GLDet.SeqNo, GLDet.DetDesc, GLDet.ExChangeRate, SUM(ForeignAmnt) As AcctBalForeign, "
    "       SUM(DetAmnt) As AcctBalHome, GLDet.ExProjId, WorldCurrency.CurrencyCode, "
    "WorldCurrency.Descr "
    "FROM (GLAcct "
    "INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) "
    "LEFT JOIN WorldCurrency on GLDet.ExCurrencyID = WorldCurrency.InCurrencyId "
    "WHERE ((ChqAcct<>0 AND GLAcct.ExCurrencyId <> ?) "
    "OR InGLAcctId IN ( ";

constexpr std::string_view kForeignUpTo =
    " )) "
    "AND GLDet.ExCurrencyId <> ? "
    "AND GLDet.DetDate <= ? ";

constexpr std::string_view kGroupBy =
    " GROUP BY GLAcct.InGLAcctId, WorldCurrency.CurrencyCode, WorldCurrency.Descr, "
    "       GLDet.ExCurrencyId, GLDet.DetDate, GLDet.SeqNo, GLDet.ExChangeRate, GLDet.DetDesc, "
    "GLDet.ExProjId";

std::string Statement(CurrencyInfo& info, const std::string& project_ids) {
    std::string statement(kSelect);
    Mark(), statement += info.GetCurrencies().GetAllARAPGLAccountUsed();
    statement += kForeignUpTo;
    if (!project_ids.empty()) statement += " AND ExProjId IN ( " + project_ids + " ) ";
    statement += kGroupBy;
    return statement;
}

Currency SumOfGains(Recordset& rows, CurrencyInfo& info, const RateCollection* rates,
                    const std::string& date) {
    framework::LedgerBalanceColumns columns;
    Mark(), columns.Resolve(rows.GetColumns());
    Currency total;
    for (; !(Mark(), rows.AtEnd()); (Mark(), rows.MoveNext())) {
        const LedgerBalance balance = (Mark(), columns.Read(rows.Current()));
        Mark(), total += EvaluateAtKeyedRate(info, rates, date, balance).gain;
    }
    return total;
}

Currency UnrealizedGain(Application& application, Date end_date, const RateCollection* rates,
                        const std::string& project_ids) {
    auto& info = (Mark(), application.CurrentContext().CurrentCompany().GetCurrencyInfo());
    const std::int32_t home_id = (Mark(), info.CieHomeCurrencyId());
    const std::string statement = Statement(info, project_ids);
    const Variant parameters[] = {home_id, home_id, end_date};
    const auto rows = (Mark(), framework::RunQuery(application, statement, parameters));
    // With one currency all is worth what was booked.
    if (!(Mark(), info.CieIsForeignCurrencyUsed())) return {};
    return SumOfGains(*rows, info, rates, end_date.ToIso());
}

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
        return UnrealizedGain(*Host(), end_date, exchange_rates.get(), ex_project_id);
    });
}

}  // namespace varnel
