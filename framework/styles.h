#pragma once

#include "host/layout.h"

namespace varnel::framework {

/// Type of the printed pages: one family, few sizes. Sizes in twips.
inline constexpr TextStyle kBody = {.size = 170};
inline constexpr TextStyle kBodyBold = {.size = 170, .bold = true};
inline constexpr TextStyle kQuiet = {.size = 160, .ink = Ink::kMuted};
inline constexpr TextStyle kRemark = {.size = 160, .italic = true, .ink = Ink::kMuted};
inline constexpr TextStyle kCaption = {.size = 150, .bold = true, .ink = Ink::kMuted};
inline constexpr TextStyle kHeading = {.size = 180, .bold = true};
inline constexpr TextStyle kTitle = {.size = 320, .bold = true, .ink = Ink::kAccent};
inline constexpr TextStyle kCompany = {.size = 190, .bold = true};
inline constexpr TextStyle kPeriod = {.size = 190};
inline constexpr TextStyle kHairline = {.ink = Ink::kRule};
inline constexpr TextStyle kTotalLine = {.ink = Ink::kText};

/// Width that layouts are designed for.
inline constexpr Twips kLayoutWidth = 10'800;

/// Thickness of rules.
inline constexpr Twips kThin = 8;
inline constexpr Twips kThick = 20;

/// Heights of sections, where the report has no reason for another.
inline constexpr Twips kDetailHeight = 240;
inline constexpr Twips kGroupHeight = 300;
inline constexpr Twips kPageFooterHeight = 300;
inline constexpr Twips kReportFooterHeight = 600;

}  // namespace varnel::framework
