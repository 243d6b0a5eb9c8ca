#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& ComparativeBalanceSheetLayout();

}  // namespace varnel::reports
