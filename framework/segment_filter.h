#pragma once

#include <string>
#include <string_view>

#include "host/member_table.h"
#include "host/report.h"

namespace varnel::framework {

/// The segment condition on `column`, in parentheses: the listed segments, lines without one, or
/// both. Empty when the filter takes everything. The list goes in as it stands.
std::string SegmentClause(std::string_view column, std::string_view ids, bool also_none);

/// The condition on `column` that takes what the other leaves out: "NOT " before it. Empty when the
/// filter takes everything. Lines without a segment are in neither when segments are listed without
/// them, as SQL's three-valued logic has it.
std::string InverseSegmentClause(std::string_view column, std::string_view ids, bool also_none);

/// `ISegmentFilter`, once for all reports that have it.
class SegmentFilter : public ISegmentFilter {
  public:
    /// Adds its members, by the interface's names, to those of the report it is a part of.
    explicit SegmentFilter(MemberParts& members);

    void ISegmentFilter_SegmentFilter(const std::string& ids) override { ids_ = ids; }
    void ISegmentFilter_SegmentFilterDisplay(const std::string& text) override { display_ = text; }
    void ISegmentFilter_SegmentNoneFilter(bool also_none) override { also_none_ = also_none; }

  protected:
    const std::string& SegmentIds() const { return ids_; }
    bool TakesLinesWithoutSegment() const { return also_none_; }
    bool IsSegmentFiltered() const { return !ids_.empty() || also_none_; }
    std::string SegmentClauseOn(std::string_view column) const {
        return SegmentClause(column, ids_, also_none_);
    }
    std::string InverseSegmentClauseOn(std::string_view column) const {
        return InverseSegmentClause(column, ids_, also_none_);
    }
    const std::string& SegmentFilterDisplay() const { return display_; }

  private:
    std::string ids_;
    std::string display_;
    bool also_none_ = false;
};

}  // namespace varnel::framework
