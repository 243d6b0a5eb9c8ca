#include "company/services/balances.h"

#include "company/services/query.h"
#include "company/services/statement_amounts.h"

namespace varnel::company {

namespace {

bool IsOpen(const BalanceScope& scope) { return scope.from <= kOpenStart && scope.to >= kOpenEnd; }

// Without limits the dates stay out of the text: the index that is grouped by account then holds
// all that the query reads.
std::string QueryText(const BalanceScope& scope) {
    std::string where;
    const auto add = [&where](const std::string& condition) {
        where += (where.empty() ? " WHERE " : " AND ") + condition;
    };
    if (!IsOpen(scope)) add("GLDet.DetDate BETWEEN ? AND ?");
    if (!scope.segment_clause.empty()) add(scope.segment_clause);
    if (!scope.project_ids.empty()) add("GLDet.ExProjId IN (" + scope.project_ids + ")");
    return "SELECT GLDet.ExAcctId, SUM(GLDet.DetAmnt), SUM(GLDet.ForeignAmnt) FROM GLDet" + where +
           " GROUP BY GLDet.ExAcctId";
}

}  // namespace

std::size_t LedgerBalances::ScopeHash::operator()(const BalanceScope& scope) const {
    std::size_t hash = std::hash<std::string>()(scope.segment_clause);
    for (const std::size_t part : {std::hash<std::string>()(scope.project_ids),
                                   static_cast<std::size_t>(scope.from.DayNumber()),
                                   static_cast<std::size_t>(scope.to.DayNumber())})
        hash = hash * 31 + part;
    return hash;
}

LedgerBalances::Balances LedgerBalances::Read(const BalanceScope& scope) {
    const std::string text = QueryText(scope);
    const auto rows =
        IsOpen(scope) ? Query(database_, text) : Query(database_, text, {scope.from, scope.to});
    Balances balances;
    Balance total;
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        const Balance balance{row.Amount(Column{1}), row.Amount(Column{2})};
        balances[row.Integer(Column{0})] = balance;
        total.home += balance.home;
        total.foreign += balance.foreign;
    }
    balances[kEveryAccount] = total;
    return balances;
}

const LedgerBalances::Balances& LedgerBalances::BalancesOf(const BalanceScope& scope) {
    const auto known = scopes_.find(scope);
    if (known != scopes_.end()) return known->second;
    return scopes_.emplace(scope, Read(scope)).first->second;
}

Currency LedgerBalances::AccountBalance(std::int32_t account_id, const BalanceScope& scope,
                                        bool in_foreign_currency) {
    const Balances& balances = BalancesOf(scope);
    const auto found = balances.find(account_id);
    if (found == balances.end()) return {};
    return in_foreign_currency ? found->second.foreign : found->second.home;
}

Currency LedgerBalances::EarningsBefore(Date date, const BalanceScope& scope) {
    const BalanceScope before{kOpenStart, date - 1, scope.segment_clause, scope.project_ids};
    Currency earnings;
    for (const auto& [account_id, balance] : BalancesOf(before))
        if (accounts_.IsIncomeStatement(account_id)) earnings += balance.home;
    return earnings;
}

Currency LedgerBalances::StatementBalance(std::int32_t account_id, const BalanceScope& scope,
                                          IExchangeRates& rates) {
    return StatementAmounts(*this, accounts_, company_, scope, rates).Of(account_id);
}

}  // namespace varnel::company
