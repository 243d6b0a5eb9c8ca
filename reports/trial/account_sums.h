#pragma once

#include "framework/debit_credit.h"

namespace varnel::reports {

/// What the lines of an account come to, and those of all accounts: debits, credits and the
/// balance that runs from line to line. An amount is in all of them, and so is one that is lost.
class AccountSums {
  public:
    /// Before the first account.
    void Begin() { *this = {}; }
    void BeginAccount();

    /// What an account begins with: no debit or credit of the period.
    void BringForward(Currency amount);
    void LoseForward();
    void Add(Currency line);
    /// For a line, or for a report that could not start.
    void Lose();
    /// Makes debits equal credits and gives what it took, debit positive. Only of known totals.
    Currency AdjustTotals();

    const framework::DebitCredit& Account() const { return account_; }
    const framework::DebitCredit& Total() const { return total_; }
    const framework::KnownSum& Balance() const { return balance_; }
    const framework::KnownSum& TotalBalance() const { return total_balance_; }

  private:
    framework::DebitCredit account_, total_;
    framework::KnownSum balance_, total_balance_;
};

}  // namespace varnel::reports
