#pragma once

#include "framework/layout_parts.h"

namespace varnel::reports {

// Where the columns of a balance sheet stand, alone and with its comparison. Under a segment filter
// the adjusted balance sheet goes on in the same columns, in the report footer below all else.

inline ControlLayout AdjustedSheet(Twips top) {
    return {.name = "dsrBalanceSheetAjust",
            .kind = ControlKind::kSubReport,
            .box = {0, top, framework::kLayoutWidth, 0},
            .stretch = Stretch::kWiden};
}

namespace balance_columns {

inline constexpr auto kDescription = framework::ColumnPlace::Left(0, 8'700, Stretch::kWiden);
inline constexpr auto kAmount = framework::ColumnPlace::Amount(8'800, 2'000);

}  // namespace balance_columns

namespace comparative_balance_columns {

inline constexpr auto kDescription = framework::ColumnPlace::Left(0, 4'640, Stretch::kWiden);
inline constexpr auto kAmount = framework::ColumnPlace::Amount(4'700, 1'640);
inline constexpr auto kComparison = framework::ColumnPlace::Amount(6'400, 1'640);
inline constexpr auto kVariance = framework::ColumnPlace::Amount(8'100, 1'640);
inline constexpr auto kPercent = framework::ColumnPlace::Amount(9'800, 1'000);

}  // namespace comparative_balance_columns

}  // namespace varnel::reports
