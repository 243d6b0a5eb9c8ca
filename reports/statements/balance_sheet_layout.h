#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& BalanceSheetLayout();

}  // namespace varnel::reports
