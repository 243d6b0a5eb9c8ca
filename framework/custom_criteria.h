#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/member_table.h"
#include "host/report.h"

namespace varnel::framework {

/// A user's filter: the text before "|" and the text between it and the next "|", as they stand;
/// one of nothing but blanks is empty.
struct CustomCriteria {
    std::string criteria;
    std::string ordering;

    static CustomCriteria Split(std::string_view filter);
    /// " AND (" + criteria + ") ", or nothing.
    std::string AndClause() const;
    /// `leading_key` + ordering, or `default_order` when there is no ordering.
    std::string OrderClause(std::string_view leading_key, std::string_view default_order) const;
};

/// `IFilterableReport`, once for all reports that have it.
class FilterableReport : public IFilterableReport {
  public:
    /// Adds its members, by the interface's names, to those of the report it is a part of.
    explicit FilterableReport(MemberParts& members);

    void IFilterableReport_Filter(const std::string& filter) override { filter_ = filter; }
    void IFilterableReport_FilterTool(std::shared_ptr<FilterTool> tool) override {
        tool_ = std::move(tool);
    }

  protected:
    CustomCriteria Criteria() const { return CustomCriteria::Split(filter_); }
    /// All that stands between the bars of the filter, for reports that hand it on to the host;
    /// none without a filter.
    std::vector<std::string> FilterPieces() const;
    /// Null when the host has given none.
    FilterTool* Tool() const { return tool_.get(); }

  private:
    std::string filter_;
    std::shared_ptr<FilterTool> tool_;
};

}  // namespace varnel::framework
