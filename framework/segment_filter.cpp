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

namespace {

constexpr Member<SegmentFilter> kMembers[] = {
    {"ISegmentFilter_SegmentFilter", nullptr,
     [](SegmentFilter& f, const Variant& v) { f.ISegmentFilter_SegmentFilter(v.ToText()); }},
    {"ISegmentFilter_SegmentFilterDisplay", nullptr,
     [](SegmentFilter& f, const Variant& v) { f.ISegmentFilter_SegmentFilterDisplay(v.ToText()); }},
    {"ISegmentFilter_SegmentNoneFilter", nullptr,
     [](SegmentFilter& f, const Variant& v) { f.ISegmentFilter_SegmentNoneFilter(v.ToBool()); }},
};

}  // namespace

std::string InverseSegmentClause(std::string_view column, std::string_view ids, bool also_none) {
    const std::string clause = SegmentClause(column, ids, also_none);
    return clause.empty() ? clause : "NOT " + clause;
}

SegmentFilter::SegmentFilter(MemberParts& members) { members.Add<SegmentFilter>(*this, kMembers); }

}  // namespace varnel::framework
