#pragma once

#include <vector>

#include "framework/layout_parts.h"

namespace varnel::reports {

// Parts of the layouts of income statements.

/// Of the header of columns: projects, then rates, then captions with their dates under them.
inline constexpr Twips kProjectsTop = 40;
inline constexpr Twips kRatesTop = kProjectsTop + framework::kLineHeight;
inline constexpr Twips kCaptionsTop = kRatesTop + framework::kLineHeight + 60;
inline constexpr Twips kDatesTop = kCaptionsTop + framework::kLineHeight;

/// The header of columns, on every page; `date_lines` is how many lines dates take.
SectionLayout IncomeStatementHeader(std::vector<ControlLayout> captions, int date_lines);
/// The dates of a column, under its caption, in that many lines.
ControlLayout DateCaption(std::string_view name, const framework::ColumnPlace& place, int lines);

/// Heights of a section's footer: with its total alone, and with a result under it.
inline constexpr Twips kTotalHeight = 675;
inline constexpr Twips kResultHeight = 1'035;

}  // namespace varnel::reports
