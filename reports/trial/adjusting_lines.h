#pragma once

#include <initializer_list>
#include <string_view>

#include "host/surface.h"

namespace varnel::reports {

/// Shows the controls of a report footer's adjusting line, or hides them and moves what stands
/// below, down to the footer's end, up into their place. All tops and heights are those of the
/// design, so that it can be called again.
void ShowAdjustingLines(Section& report_footer, std::initializer_list<std::string_view> lines,
                        bool visible);

}  // namespace varnel::reports
