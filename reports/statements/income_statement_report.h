#pragma once

#include <optional>
#include <string>
#include <utility>

#include "reports/statements/statement_report.h"

namespace varnel::reports {

/// What income statements are, alone or with a comparison: revenue, expenses and other items of the
/// period and of the fiscal year so far, with the subtotals that the chart places, a total of each
/// section and the result.
///
/// Late-bound it has the properties `ProjIds` (comma-separated project ids; empty takes all), and
/// `CumulDateFrom` and `CumulDateTo`, the cumulative period; the zero date stands for one that was
/// not set, which is then the fiscal year up to the last date.
class IncomeStatementReport : public StatementReport {
  public:
    std::string IReport_ReportTitle() override;
    std::string IExcelAddInExport_ProjectIds() override { return selection_.project_ids; }
    void ActiveReport_ReportStart() override;

    /// What the host sets before the run.
    struct Selection {
        std::string project_ids = {};
        Date cumulative_from;
        Date cumulative_to;
    };
    Selection& GetSelection() { return selection_; }
    /// Sets all that a host can have set on `other`.
    void PrepareLike(IncomeStatementReport& other);

  protected:
    /// Printed lines, as a layout names their controls.
    struct Lines {
        StatementLine row, section_total, result;
        StatementLine final_rules;  // Under the last result.
    };

    /// Its lines come with SetLines, in the constructor. `more_columns` are read besides those
    /// that every income statement reads, each with ", " before it.
    IncomeStatementReport(const Layout& layout, std::int16_t title_text,
                          std::string_view more_columns);
    void SetLines(Lines lines);

    Sides AmountsOf(const StatementRow& row) override;
    bool IsCreditType(std::int32_t account_type) const override;
    virtual void SetPeriods();
    virtual void SetPageHeader();
    const BalanceScope& ReportPeriod() const { return period_; }
    /// A result is about to print under that caption, below the section of that type.
    virtual void OnResult(std::int32_t, const std::string&, const Sides&) {}

  private:
    std::string BuildStatement();
    void SetPageHeaderForProjStatement();
    std::string ProjectNames();
    void PlaceGroupHeader();
    Currency AmountOver(const BalanceScope& scope, std::int32_t account_id);
    Currency UnrealizedGainBy(Date date);
    /// Without a caption there is no result to show yet.
    void ShowResult(std::int16_t caption_text);

    void ghAcctType_Format();
    void gfAcctType_Format();

    Selection selection_;
    BalanceScope period_, cumulative_;
    Sides result_;
    /// The unrealized gain by a day, asked for once a run.
    std::optional<std::pair<Date, Currency>> unrealized_;

    std::string_view more_columns_;
    Lines lines_;
    Section& GroupHeader1 = SectionAt("GroupHeader1");
    Section& ghAcctType = SectionAt("ghAcctType");
    Section& gfAcctType = SectionAt("gfAcctType");
    Control& lblProjects = At("lblProjects");
    Control& fldProjects = At("fldProjects");
    Control& txtExchangeRate = At("txtExchangeRate");
    Control& lblDatePeriod = At("lblDatePeriod");
    Control& lblDateCul = At("lblDateCul");
    Control& lblAcctType = At("lblAcctType");
    Control& lblTypeCap = At("lblTypeCap");
    Control& lblGTot = At("lblGTot");
};

}  // namespace varnel::reports
