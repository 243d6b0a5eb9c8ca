#pragma once

#include <memory>
#include <string>

#include "framework/comparable_report.h"
#include "reports/statements/income_statement_report.h"

namespace varnel::reports {

/// Income statement, of the whole company or of projects.
///
/// Late-bound it has besides the calls `ComparativeForm` and `GetExcelAddInProject`.
class dsrIncomeStatement final : public IncomeStatementReport, public framework::ComparableReport {
  public:
    dsrIncomeStatement();

    std::string IExcelAddInExport_ExcelAddInTemplate() override {
        return GetSelection().project_ids.empty() ? "IncomeStatement" : "IncomeStatementProject";
    }
    void ActiveReport_ReportStart() override;

    /// A comparative income statement of its own that the host has nothing more to tell: it has
    /// been told what this one was, and is initialised.
    std::shared_ptr<IReport> ComparativeForm();
    /// The code of a project; empty when there is none of that id.
    std::string GetExcelAddInProject(std::int32_t project_id);

  protected:
    void OnAccount(std::int32_t account_id, const Sides& amounts) override;
    void OnResult(std::int32_t section_type, const std::string& caption,
                  const Sides& result) override;

  private:
    void IComparableReportActions(const std::string& key, const std::string& account,
                                  const std::string& description, const Sides& amounts);

    Control& txtDescr = At("txtDescr");
    Control& txtAcctNumber = At("txtAcctNumber");
};

}  // namespace varnel::reports
