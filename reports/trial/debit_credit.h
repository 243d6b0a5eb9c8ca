#pragma once

#include <string>

#include "host/application.h"
#include "host/surface.h"

namespace varnel::reports {

/// Totals of a debit and a credit column; both are sums of positive amounts.
struct DebitCredit {
    Currency debit;
    Currency credit;

    /// A debit-positive amount, on its side.
    void Add(Currency amount) {
        if (amount > Currency())
            debit += amount;
        else
            credit -= amount;
    }
    Currency Difference() const { return debit - credit; }
};

/// A debit-positive amount in its column, the other one empty; zero leaves both empty. `scratch`
/// saves allocations from row to row.
void PutOnItsSide(Formats& formats, Control& debit, Control& credit, Currency amount,
                  std::string& scratch);

/// What makes debits equal credits, on its side, and into the totals: under a segment filter the
/// two need not agree.
void Adjust(Formats& formats, Control& debit, Control& credit, DebitCredit& totals,
            std::string& scratch);

}  // namespace varnel::reports
