#pragma once

#include <optional>
#include <string_view>

#include "host/application.h"
#include "host/surface.h"

namespace varnel::framework {

/// Control of the note in a report's page footer.
inline constexpr std::string_view kItemAdjustmentNote = "lblWarningInvMaj";

/// The page footer's one control.
ControlLayout ItemAdjustmentNoteControl();

/// From when inventory adjustments reach the ledger, if the company posts them at all (setting
/// "ItemAdjustGL").
std::optional<Date> InitGLtAjust(Application& application);

/// Shows the page footer with host message 12802 when there is a start date and `date_to` is on or
/// after it, hides it otherwise.
void ShowItemAdjustmentNote(Application& application, Surface& surface, std::optional<Date> start,
                            Date date_to);

}  // namespace varnel::framework
