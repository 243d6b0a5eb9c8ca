#pragma once

#include <memory>
#include <string>

#include "framework/custom_criteria.h"
#include "framework/designed_report.h"

namespace varnel::framework {

/// The lines in a page header that say what a report leaves out and how it is sorted: segments,
/// criteria, ordering. A line without text takes no space, and without any the whole takes none.
class dsrFilterAndSortByInfoSubreport final : public DesignedReport {
  public:
    struct Info {
        std::string segments;
        std::string criteria;
        std::string ordering;
    };

    dsrFilterAndSortByInfoSubreport(std::shared_ptr<Application> application, Info info);

    void ActiveReport_ReportStart() override;
    void ActiveReport_FetchData(bool& end_of_data) override;

  private:
    void Detail_Format();

    struct Line {
        Control& caption;
        Control& text;
    };
    Line BindLine(std::string_view caption, std::string_view text) {
        return {At(caption), At(text)};
    }
    /// Shows the line at `top` and returns where the next one goes.
    static Twips ShowLine(const Line& line, const std::string& text, Twips top);

    Info info_;
    bool delivered_ = false;
    Section& Detail = SectionAt("Detail");
    Line segments_ = BindLine("lblSegments", "txtSegments");
    Line criteria_ = BindLine("lblFilter", "txtFilter");
    Line ordering_ = BindLine("lblSortedBy", "txtSortedBy");
};

/// Puts the sub-report into the page header of `surface`, with the host's words for criteria and
/// ordering (the texts themselves when the host has no filter tool).
void FillFilterSubReport(Surface& surface, std::shared_ptr<Application> application,
                         const std::string& segments, const CustomCriteria& criteria,
                         FilterTool* tool);

}  // namespace varnel::framework
