#pragma once

#include <string_view>
#include <vector>

#include "host/layout.h"

namespace varnel::reports {

/// Entries with their lines and totals, under the name of the report that prints them;
/// `page_header` are controls of its own, before the captions of the columns.
Layout EntryLayout(std::string_view name, std::vector<ControlLayout> page_header = {});

}  // namespace varnel::reports
