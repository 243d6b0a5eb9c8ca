#include "reports/trial/account_list.h"

#include "framework/procedure.h"
#include "host/error.h"

namespace varnel::reports {

using framework::Mark;

bool IsIdList(std::string_view text) {
    return text.find_first_not_of("0123456789, ") == std::string_view::npos;
}

std::string AccountListOf(const std::string& criteria, FilterTool* tool, std::string_view report) {
    if (IsIdList(criteria)) return criteria;
    if (tool == nullptr)
        Raise(error_number::kObjectNotSet, std::string(report),
              "There is no filter tool to find the accounts of \"" + criteria + "\"");
    return Mark(), tool->ResolveAccounts(criteria);
}

}  // namespace varnel::reports
