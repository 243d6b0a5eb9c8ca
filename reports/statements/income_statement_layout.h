#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& IncomeStatementLayout();

}  // namespace varnel::reports
