#pragma once

#include <vector>

#include "framework/layout_parts.h"

namespace varnel::reports {

// Parts of the layouts of reports that list the lines of accounts.

struct AmountColumns {
    framework::ColumnPlace debit, credit, balance, type;
    /// Of what a line of totals is called.
    framework::ColumnPlace caption;
};

/// The group footer `gfAccount`: a rule over each amount, and the amounts.
SectionLayout AccountSubtotal(const AmountColumns& columns);
/// The last line of the report, under thick rules.
std::vector<ControlLayout> GrandTotals(const AmountColumns& columns, Twips top);

}  // namespace varnel::reports
