#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& ComparativeIncomeStatementLayout();

}  // namespace varnel::reports
