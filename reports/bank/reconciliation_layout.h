#pragma once

#include <string_view>

#include "host/layout.h"

namespace varnel::reports {

/// The layout of both bank reconciliations, under the name of one.
Layout ReconciliationLayout(std::string_view name);

}  // namespace varnel::reports
