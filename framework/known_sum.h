#pragma once

#include <utility>

#include "host/currency.h"

namespace varnel::framework {

/// A sum of a run that counts only while everything that belongs into it could be worked out:
/// rather than a wrong total none is shown.
class KnownSum {
  public:
    KnownSum() = default;
    explicit KnownSum(Currency value) : value_(value) {}
    static KnownSum Unknown() {
        KnownSum sum;
        sum.Lose();
        return sum;
    }

    void Add(Currency amount) {
        const bool known = std::exchange(known_, false);  // Stays so when the sum overflows.
        value_ += amount;
        known_ = known;
    }
    void Lose() { known_ = false; }

    bool Known() const { return known_; }
    /// False when it is not known.
    bool IsZero() const { return known_ && value_.IsZero(); }
    /// Only of a known sum.
    Currency Value() const { return value_; }

  private:
    Currency value_;
    bool known_ = true;
};

}  // namespace varnel::framework
