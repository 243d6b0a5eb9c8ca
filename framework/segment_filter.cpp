#include "framework/segment_filter.h"

namespace varnel::framework {

std::string SegmentClause(std::string_view column, std::string_view ids, bool also_none) {
    if (ids.empty() && !also_none) return {};
    const std::string name(column);
    std::string clause = "(";
    if (!ids.empty()) clause += name + " IN (" + std::string(ids) + ")";
    if (!ids.empty() && also_none) clause += " OR ";
    if (also_none) clause += name + " IS NULL";
    return clause + ")";
}

}  // namespace varnel::framework
