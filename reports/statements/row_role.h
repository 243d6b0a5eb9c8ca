#pragma once

#include <cstdint>

namespace varnel::reports {

/// What a row of the chart is in a statement, by its `GroupType`.
enum class RowRole : std::uint8_t {
    kText,
    /// 2, 4 and 6: an account with amounts.
    kPosting,
    /// 1: heads a block of the first level.
    kHeading,
    /// 7: heads a block of the second level, in which those of the first stand.
    kOuterHeading,
    /// 3 and 5: print and end what was added up at their level.
    kSubtotal,
    kOuterSubtotal,
};

RowRole RoleOf(std::int32_t group_type);

constexpr bool IsHeading(RowRole role) {
    return role == RowRole::kHeading || role == RowRole::kOuterHeading;
}
constexpr bool IsSubtotal(RowRole role) {
    return role == RowRole::kSubtotal || role == RowRole::kOuterSubtotal;
}

/// A stable name for data exports: "account", "heading", "subtotal" or "text".
const char* NameOf(RowRole role);

}  // namespace varnel::reports
