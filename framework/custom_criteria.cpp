#include "framework/custom_criteria.h"

#include "framework/texts.h"

namespace varnel::framework {

namespace {

std::string UnlessBlank(std::string_view part) {
    return std::string(Trimmed(part).empty() ? std::string_view() : part);
}

}  // namespace

CustomCriteria CustomCriteria::Split(std::string_view filter) {
    const auto bar = filter.find('|');
    if (bar == std::string_view::npos) return {UnlessBlank(filter), {}};
    const auto rest = filter.substr(bar + 1);
    return {UnlessBlank(filter.substr(0, bar)), UnlessBlank(rest.substr(0, rest.find('|')))};
}

std::string CustomCriteria::AndClause() const {
    return criteria.empty() ? std::string() : " AND (" + criteria + ") ";
}

std::string CustomCriteria::OrderClause(std::string_view leading_key,
                                        std::string_view default_order) const {
    return ordering.empty() ? std::string(default_order) : std::string(leading_key) + ordering;
}

namespace {

constexpr Member<FilterableReport> kMembers[] = {
    {"IFilterableReport_Filter", nullptr,
     [](FilterableReport& r, const Variant& v) { r.IFilterableReport_Filter(v.ToText()); }},
    {"IFilterableReport_FilterTool", nullptr,
     [](FilterableReport& r, const Variant& v) {
         r.IFilterableReport_FilterTool(ObjectAs<FilterTool>(v));
     }},
};

}  // namespace

std::vector<std::string> FilterableReport::FilterPieces() const {
    std::vector<std::string> pieces;
    if (filter_.empty()) return pieces;
    std::size_t from = 0;
    for (std::size_t bar; (bar = filter_.find('|', from)) != std::string::npos; from = bar + 1)
        pieces.push_back(filter_.substr(from, bar - from));
    pieces.push_back(filter_.substr(from));
    return pieces;
}

FilterableReport::FilterableReport(MemberParts& members) {
    members.Add<FilterableReport>(*this, kMembers);
}

}  // namespace varnel::framework
