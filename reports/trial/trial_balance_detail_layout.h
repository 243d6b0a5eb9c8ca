#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& TrialBalanceDetailLayout();

}  // namespace varnel::reports
