#pragma once

#include <cstdint>
#include <string>

#include "framework/earnings_accounts.h"
#include "framework/known_sum.h"
#include "framework/revalued_report.h"
#include "host/company.h"
#include "host/exchange_rates.h"
#include "host/row.h"

namespace varnel::reports {

/// An account as a trial balance reads it from the chart.
struct TrialAccount {
    std::int32_t id = 0;
    std::int32_t type = 0;
    /// The home currency when it has none of its own.
    std::int32_t currency_id = 0;
};

/// What trial balances and the GIFI report say an account's balance is, debit positive. Income
/// statement accounts count from the start of the year, all others from the beginning; retained
/// earnings carry the results of the years before; with revaluation foreign accounts count at the
/// rate of the day, and the unrealized account carries the difference.
class AccountAmounts {
  public:
    struct Period {
        /// From when income statement accounts count.
        Date year_start;
        Date to = kOpenEnd;
        /// Parenthesised condition on GLDet; empty takes all lines.
        std::string segment_clause;
        /// Comma-separated project ids; empty takes all lines.
        std::string project_ids;
    };

    /// Company and rates must outlive it; without rates nothing is revalued. Before Read comes
    /// Resolve.
    AccountAmounts(Company& company, IExchangeRates* rates,
                   const framework::EarningsAccounts& earnings, const Period& period);

    /// The columns InGLAcctId, AcctType and ExCurrencyId of the account.
    void Resolve(const Columns& columns);
    TrialAccount Read(const Row& row);

    std::int32_t HomeCurrencyId() const { return home_currency_id_; }
    bool IsRetainedEarnings(const TrialAccount& account) const {
        return account.id == earnings_.retained;
    }
    bool IsUnrealized(const TrialAccount& account) const {
        return account.id == unrealized_account_id_;
    }
    /// The account's balance as it prints. Of the unrealized account, with revaluation, it is minus
    /// the difference that the accounts asked for before it have made.
    Currency Amount(const TrialAccount& account);
    /// The same without that exception: what the ledger says, revalued where the account is
    /// foreign.
    Currency BalanceOf(const TrialAccount& account);
    /// The sum of the foreign amounts of its lines.
    Currency ForeignBalance(const TrialAccount& account);

    bool Revalues(std::int32_t currency_id) const {
        return Revalues() && currency_id != home_currency_id_;
    }
    /// What a foreign balance is worth at the rate of the day; the difference from what was booked
    /// goes into Difference.
    Currency Revalue(const framework::LedgerBalance& balance);
    /// Revalued minus booked, over all that was asked for so far. Not known after a balance that
    /// could not be revalued.
    const framework::KnownSum& Difference() const { return difference_; }
    /// For a foreign balance that could not be read.
    void LoseDifference() { difference_.Lose(); }
    /// What revaluation brings on the unrealized account: minus the difference. An error when that
    /// is not known.
    Currency Unrealized() const;

    /// The drill-down key of an account's line: its id, "GLUnrealized|" and the id, or nothing for
    /// earnings.
    std::string Key(const TrialAccount& account) const;

  private:
    bool Revalues() const { return rates_ != nullptr && rates_->IExchangeRates_Reevaluate(); }
    /// Since the start of the year or the beginning, by the account's type.
    const BalanceScope& ScopeOf(const TrialAccount& account);
    framework::LedgerBalance ForeignAndHome(const TrialAccount& account);

    Company& company_;
    IExchangeRates* rates_;
    framework::EarningsAccounts earnings_;
    std::int32_t unrealized_account_id_;
    std::int32_t home_currency_id_;
    BalanceScope since_beginning_, since_year_start_;
    Column id_, type_, currency_id_;
    framework::KnownSum difference_;
};

}  // namespace varnel::reports
