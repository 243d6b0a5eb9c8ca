#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& TrialBalanceSummaryLayout();

}  // namespace varnel::reports
