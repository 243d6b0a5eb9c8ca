#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "host/application.h"
#include "host/surface.h"

namespace varnel::framework {

/// The block at the top of every page header: company, title and period on the left, run date and
/// page on the right. 900 twips high. `column_controls` are the report's own: its captions, placed
/// under the block by ReplacePageHeaderControls, and a rule.
///
/// Between block and captions stands the filter-and-sort sub-report, which takes no space when
/// there is nothing to say.
std::vector<ControlLayout> PageHeaderControls(std::vector<ControlLayout> column_controls);

/// Names of the block's controls.
inline constexpr std::string_view kHeaderBlock = "StandardHeader";
inline constexpr std::string_view kPeriodLabel = "lblDateFromDateTo";
inline constexpr std::string_view kFilterSubReport = "dsrFilterAndSortByInfoSubreport";
inline constexpr std::string_view kCaptionRule = "linCaptions";

/// Height of the block in the design.
inline constexpr Twips kHeaderBlockHeight = 900;

/// Makes the block higher, for a report with a line of its own in it, and moves the filter-and-sort
/// sub-report under it.
void SetHeaderBlockHeight(Surface& surface, Twips height);

/// Puts in company, title, run date and the page-number text.
void FillStandardHeader(Surface& surface, Application& application, const std::string& title);

/// Gap between the block and the captions, in twips.
inline constexpr Twips kCaptionGap = 90;

/// Moves the captions (and the rule at their foot) under the block, all to one top, and ends the
/// page header under them. A caption is what has a text number; the first one's height counts.
void ReplacePageHeaderControls(Section& page_header);

}  // namespace varnel::framework
