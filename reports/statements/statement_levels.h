#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>

#include "framework/known_sum.h"
#include "reports/statements/row_role.h"

namespace varnel::reports {

/// The amounts that stand side by side on a line of a statement: period and cumulative, or a
/// balance, or either with its comparison. Sides that a statement does not have stay zero.
class Sides {
  public:
    static constexpr std::size_t kMost = 3;

    Sides() = default;
    Sides(std::initializer_list<Currency> amounts);

    const framework::KnownSum& operator[](std::size_t side) const { return sums_[side]; }
    void Put(std::size_t side, const framework::KnownSum& sum) { sums_[side] = sum; }
    /// Whether every one is known to be zero.
    bool AreZero() const;
    Sides Negated() const;
    /// `change` of each amount that is known; the others stay unknown.
    template <class Change>
    Sides Transformed(Change&& change) const {
        Sides changed = *this;
        for (auto& sum : changed.sums_)
            if (sum.Known()) sum = framework::KnownSum(change(sum.Value()));
        return changed;
    }
    void Add(const Sides& other);
    /// Adds them with the opposite sign.
    void Subtract(const Sides& other);
    void Lose();

  private:
    std::array<framework::KnownSum, kMost> sums_;
};

/// What a statement adds up while its rows go by: subtotals of two levels, which the chart itself
/// begins and prints, and the total of the section.
class StatementLevels {
  public:
    void Add(const Sides& amounts);
    /// For amounts that could not be worked out: they would be in all of them.
    void Lose();
    /// What a heading starts anew; nothing for other rows.
    void Begin(RowRole role);
    /// The subtotal that the row prints, which then starts anew.
    Sides TakeSubtotal(RowRole role);
    /// The section's total, which then starts anew.
    Sides TakeSection();

  private:
    Sides inner_, outer_, section_;
};

/// How deep rows stand in the blocks that headings open and subtotals close.
class StatementOutline {
  public:
    /// 0 to 2, for the next row in order.
    int DepthOf(RowRole role);

  private:
    bool in_outer_ = false;
    bool in_inner_ = false;
};

}  // namespace varnel::reports
