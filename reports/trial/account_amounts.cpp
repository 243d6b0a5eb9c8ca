#include "reports/trial/account_amounts.h"

#include "host/error.h"

namespace varnel::reports {

AccountAmounts::AccountAmounts(Company& company, IExchangeRates* rates,
                               const framework::EarningsAccounts& earnings, const Period& period)
    : company_(company),
      rates_(rates),
      earnings_(earnings),
      unrealized_account_id_(company.GetCurrencyInfo().UnrealizedGainLossAcctId()),
      home_currency_id_(company.GetCurrencyInfo().CieHomeCurrencyId()),
      since_beginning_{kOpenStart, period.to, period.segment_clause, period.project_ids},
      since_year_start_(since_beginning_) {
    since_year_start_.from = period.year_start;
}

void AccountAmounts::Resolve(const Columns& columns) {
    id_ = columns.At("InGLAcctId");
    type_ = columns.At("AcctType");
    currency_id_ = columns.At("ExCurrencyId");
}

// An account that cannot be read may be a foreign one.
TrialAccount AccountAmounts::Read(const Row& row) try {
    const std::int32_t currency_id = row.Integer(currency_id_);
    return {.id = row.Integer(id_),
            .type = row.Integer(type_),
            .currency_id = currency_id == 0 ? home_currency_id_ : currency_id};
} catch (...) {
    if (Revalues()) difference_.Lose();
    throw;
}

const BalanceScope& AccountAmounts::ScopeOf(const TrialAccount& account) {
    const bool of_the_year =
        company_.GetAccountTypes().Class(account.type) == AccountTypes::kIncomeStatementClass;
    return of_the_year ? since_year_start_ : since_beginning_;
}

Currency AccountAmounts::ForeignBalance(const TrialAccount& account) {
    return company_.Balances().AccountBalance(account.id, ScopeOf(account), true);
}

framework::LedgerBalance AccountAmounts::ForeignAndHome(const TrialAccount& account) try {
    const BalanceScope& scope = ScopeOf(account);
    auto& balances = company_.Balances();
    return {.currency_id = account.currency_id,
            .booked_rate = {},
            .foreign = balances.AccountBalance(account.id, scope, true),
            .home = balances.AccountBalance(account.id, scope, false)};
} catch (...) {
    difference_.Lose();
    throw;
}

Currency AccountAmounts::Revalue(const framework::LedgerBalance& balance) try {
    const auto worth = framework::EvaluateAtKeyedRate(company_.GetCurrencyInfo(), *rates_, balance);
    difference_.Add(worth.gain);
    return worth.revalued;
} catch (...) {
    difference_.Lose();
    throw;
}

Currency AccountAmounts::Unrealized() const {
    if (difference_.Known()) return -difference_.Value();
    throw Error(
        error_number::kOther, "Varnel",
        "The unrealized gain or loss cannot be worked out, because a foreign balance before "
        "it could not be revalued");
}

Currency AccountAmounts::BalanceOf(const TrialAccount& account) {
    if (IsRetainedEarnings(account)) {
        auto& balances = company_.Balances();
        return balances.AccountBalance(account.id, since_beginning_, false) +
               balances.EarningsBefore(since_year_start_.from, since_beginning_);
    }
    if (Revalues(account.currency_id)) return Revalue(ForeignAndHome(account));
    return company_.Balances().AccountBalance(account.id, ScopeOf(account), false);
}

Currency AccountAmounts::Amount(const TrialAccount& account) {
    const bool carries_difference =
        !IsRetainedEarnings(account) && IsUnrealized(account) && Revalues();
    return carries_difference ? Unrealized() : BalanceOf(account);
}

std::string AccountAmounts::Key(const TrialAccount& account) const {
    if (IsRetainedEarnings(account) || account.id == earnings_.current) return {};
    const std::string id = std::to_string(account.id);
    return IsUnrealized(account) ? "GLUnrealized|" + id : id;
}

}  // namespace varnel::reports
