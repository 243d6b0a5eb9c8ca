#pragma once

#include "host/layout.h"

namespace varnel::reports {

/// Designed in the columns of the comparative style, `balance_columns.h`; a run moves them to those
/// of its balance sheet.
const Layout& BalanceSheetAjustLayout();

}  // namespace varnel::reports
