#include "reports/statements/statement_levels.h"

#include <algorithm>
#include <utility>

namespace varnel::reports {

using framework::KnownSum;

Sides::Sides(std::initializer_list<Currency> amounts) {
    std::ranges::transform(amounts, sums_.begin(),
                           [](Currency amount) { return KnownSum(amount); });
}

bool Sides::AreZero() const { return std::ranges::all_of(sums_, &KnownSum::IsZero); }

Sides Sides::Negated() const {
    return Transformed([](Currency amount) { return -amount; });
}

void Sides::Add(const Sides& other) {
    for (std::size_t side = 0; side < kMost; ++side) {
        if (other.sums_[side].Known())
            sums_[side].Add(other.sums_[side].Value());
        else
            sums_[side].Lose();
    }
}

void Sides::Subtract(const Sides& other) { Add(other.Negated()); }

void Sides::Lose() {
    for (auto& sum : sums_) sum.Lose();
}

void StatementLevels::Add(const Sides& amounts) {
    section_.Add(amounts);
    inner_.Add(amounts);
    outer_.Add(amounts);
}

void StatementLevels::Lose() {
    for (Sides* sides : {&section_, &inner_, &outer_}) sides->Lose();
}

void StatementLevels::Begin(RowRole role) {
    if (!IsHeading(role)) return;
    inner_ = {};
    if (role == RowRole::kOuterHeading) outer_ = {};
}

Sides StatementLevels::TakeSubtotal(RowRole role) {
    return std::exchange(role == RowRole::kSubtotal ? inner_ : outer_, {});
}

Sides StatementLevels::TakeSection() { return std::exchange(section_, {}); }

int StatementOutline::DepthOf(RowRole role) {
    if (role == RowRole::kOuterHeading || role == RowRole::kOuterSubtotal) {
        in_outer_ = role == RowRole::kOuterHeading;
        in_inner_ = false;
        return 0;
    }
    if (role == RowRole::kHeading || role == RowRole::kSubtotal) {
        in_inner_ = role == RowRole::kHeading;
        return in_outer_ ? 1 : 0;
    }
    return int{in_outer_} + int{in_inner_};
}

}  // namespace varnel::reports
