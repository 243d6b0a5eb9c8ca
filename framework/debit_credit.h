#pragma once

#include <string>

#include "framework/known_sum.h"
#include "host/application.h"
#include "host/surface.h"

namespace varnel::framework {

/// Totals of a debit and a credit column; both are sums of positive amounts.
struct DebitCredit {
    KnownSum debit;
    KnownSum credit;

    /// A debit-positive amount, on its side.
    void Add(Currency amount) {
        if (amount > Currency())
            debit.Add(amount);
        else
            credit.Add(-amount);
    }
    /// For an amount that could not be worked out: it would be in one of them.
    void Lose() {
        debit.Lose();
        credit.Lose();
    }
    bool Known() const { return debit.Known() && credit.Known(); }
    bool IsZero() const { return debit.IsZero() && credit.IsZero(); }
    /// Whether the two are known not to agree.
    bool Differ() const { return Known() && debit.Value() != credit.Value(); }
};

/// Empty when it is not known.
void PutSum(Formats& formats, Control& control, const KnownSum& sum, std::string& scratch);

/// A debit-positive amount in its column, the other one empty; zero leaves both empty. `scratch`
/// saves allocations from row to row.
void PutOnItsSide(Formats& formats, Control& debit, Control& credit, Currency amount,
                  std::string& scratch);

/// Adds to the totals what makes debits equal credits, which need not agree under a segment filter,
/// and returns it, debit positive. Only of known totals.
Currency Adjust(DebitCredit& totals);

}  // namespace varnel::framework
