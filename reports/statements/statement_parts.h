#pragma once

#include <string_view>
#include <vector>

#include "framework/layout_parts.h"

namespace varnel::reports {

// Parts that the layouts of statements have in common.

/// The header of a section of accounts, which comes again on each page that the section runs on to.
SectionLayout StatementSection(const framework::ColumnPlace& description);

/// A row of the chart: its description and, for data exports, what kind of row it is, then the
/// controls given.
SectionLayout StatementRows(const framework::ColumnPlace& description,
                            std::vector<ControlLayout> controls);
/// An amount of a row, and the rule that stands over a subtotal.
ControlLayout RowAmount(std::string_view name, const framework::ColumnPlace& place,
                        std::string_view column);
ControlLayout RowRule(std::string_view name, const framework::ColumnPlace& place);

/// A section's total under a rule: its caption and its amounts.
inline constexpr Twips kSectionRuleTop = 30;
inline constexpr Twips kSectionTotalTop = 60;
/// The line of a result or of a grand total under it, and the rules that close it.
inline constexpr Twips kResultRuleTop = 470;
inline constexpr Twips kResultTop = 505;
inline constexpr Twips kResultEndTop = 745;

ControlLayout SectionCaption(std::string_view name, const framework::ColumnPlace& place, Twips top);

/// The second of two rules that close a final amount lies this far under the first.
inline constexpr Twips kRuleGap = 40;

}  // namespace varnel::reports
