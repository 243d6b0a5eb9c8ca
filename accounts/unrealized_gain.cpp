#include "accounts/unrealized_gain.h"

#include "framework/ledger_balance_columns.h"
#include "framework/procedure.h"
#include "framework/query_runner.h"

namespace varnel {

namespace {

using framework::LedgerBalance;
using framework::Mark;

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

std::string Statement(CurrencyInfo& info, const UnrealizedScope& scope) {
    std::string statement(kSelect);
    Mark(), statement += info.GetCurrencies().GetAllARAPGLAccountUsed();
    statement += kForeignUpTo;
    if (!scope.project_ids.empty()) statement += " AND ExProjId IN ( " + scope.project_ids + " ) ";
    if (!scope.segment_clause.empty()) statement += " AND " + scope.segment_clause;
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

}  // namespace

Currency UnrealizedGain(Application& application, const UnrealizedScope& scope,
                        const RateCollection* rates) {
    auto& info = (Mark(), application.CurrentContext().CurrentCompany().GetCurrencyInfo());
    const std::int32_t home_id = (Mark(), info.CieHomeCurrencyId());
    const std::string statement = Statement(info, scope);
    const Variant parameters[] = {home_id, home_id, scope.to};
    const auto rows = (Mark(), framework::RunQuery(application, statement, parameters));
    // With one currency all is worth what was booked.
    if (!(Mark(), info.CieIsForeignCurrencyUsed())) return {};
    return SumOfGains(*rows, info, rates, scope.to.ToIso());
}

}  // namespace varnel
