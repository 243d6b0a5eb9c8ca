#include "reports/statements/row_role.h"

namespace varnel::reports {

RowRole RoleOf(std::int32_t group_type) {
    switch (group_type) {
        case 1:
            return RowRole::kHeading;
        case 2:
        case 4:
        case 6:
            return RowRole::kPosting;
        case 3:
            return RowRole::kSubtotal;
        case 5:
            return RowRole::kOuterSubtotal;
        case 7:
            return RowRole::kOuterHeading;
        default:
            return RowRole::kText;
    }
}

const char* NameOf(RowRole role) {
    switch (role) {
        case RowRole::kPosting:
            return "account";
        case RowRole::kHeading:
        case RowRole::kOuterHeading:
            return "heading";
        case RowRole::kSubtotal:
        case RowRole::kOuterSubtotal:
            return "subtotal";
        case RowRole::kText:
            break;
    }
    return "text";
}

}  // namespace varnel::reports
