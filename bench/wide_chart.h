#pragma once

#include <string>

namespace varnel::bench {

/// Gives a demo company more than a thousand accounts: each of its accounts becomes eight, and the
/// lines are dealt out among them. Totals by document and day stay as they were.
void WidenChart(const std::string& company);

}  // namespace varnel::bench
