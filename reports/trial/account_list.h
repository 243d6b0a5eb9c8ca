#pragma once

#include <string>
#include <string_view>

#include "host/application.h"

namespace varnel::reports {

/// Whether a filter's criteria are nothing but internal account ids and commas.
bool IsIdList(std::string_view text);

/// The accounts that criteria mean, as a list of ids: a list as it stands, anything else as the
/// filter tool resolves it; no criteria, no list. Error 91 when that tool is not there, in the name
/// of `report`.
std::string AccountListOf(const std::string& criteria, FilterTool* tool, std::string_view report);

}  // namespace varnel::reports
