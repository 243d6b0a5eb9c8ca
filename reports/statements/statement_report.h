#pragma once

#include <optional>
#include <string>
#include <utility>

#include "framework/custom_criteria.h"
#include "framework/earnings_accounts.h"
#include "framework/excel_add_in_export.h"
#include "framework/report_base.h"
#include "framework/revalued_report.h"
#include "framework/segment_filter.h"
#include "reports/statements/statement_levels.h"
#include "reports/statements/statement_line.h"

namespace varnel::reports {

/// A row of the chart of accounts as a statement reads it.
struct StatementRow {
    RowRole role = RowRole::kText;
    /// None in a row that stands for no account.
    std::optional<std::int32_t> account_id;
    std::int32_t type = 0;
    bool inactive = false;
};

/// What the statements share: the interfaces they have besides `IReport`, and the rows of the
/// chart with headings, accounts and subtotals of two levels. A statement says where its amounts
/// come from and what its sections add up to.
///
/// Its layout has a Detail with `txtDescr`, a group `ghAcctType` with `lblAcctType`, and a rule
/// over each amount of the detail.
class StatementReport : public framework::ReportBase,
                        public framework::SegmentFilter,
                        public framework::FilterableReport,
                        public framework::RevaluedReport,
                        public framework::ExcelAddInExport,
                        public IReportConfig {
  public:
    void IReport_Initialize() override;
    /// Whether accounts without amounts print.
    void IReportConfig_ShowConfigurationScreen() override;

  protected:
    StatementReport(const Layout& layout, const Facts& facts);
    /// The line of amounts in the detail.
    void SetRowLine(StatementLine line) { line_ = std::move(line); }

    /// What the account's amounts are, debit positive and exact; they print with the sign of their
    /// section, to the cent. Only of rows with an account.
    virtual Sides AmountsOf(const StatementRow& row) = 0;
    /// The amounts of a row could not be worked out: no sum that they belong to is known.
    virtual void LoseAmounts() { levels_.Lose(); }
    /// Accounts of credit types print with the opposite sign.
    virtual bool IsCreditType(std::int32_t account_type) const = 0;
    /// The drill-down key of what an account is compared with.
    virtual std::string ComparisonKey(std::int32_t account_id) const {
        return std::to_string(account_id) + "|LastYear";
    }

    /// An account is about to print with these amounts, which have the sign they print with.
    virtual void OnAccount(std::int32_t, const Sides&) {}

    /// Sets all that a host can have set on `other`, whose rates and filter tool are then shared.
    void PrepareLike(StatementReport& other);

    /// Hands the rows of the query to the run and begins its totals.
    void StartRows(const std::string& statement);
    /// What the report shows whatever it adds up: filter, note on inventory adjustments.
    void ShowFilterAndNote(std::optional<Date> adjustments_from);
    /// The lines that the statement is about, in a period.
    BalanceScope Scope(Date from, Date to, const std::string& project_ids = {}) const;
    Currency StatementBalance(std::int32_t account_id, const BalanceScope& scope);
    Sides Rounded(const Sides& sides);

    /// Never in a company of one currency.
    bool IsUnrealized(std::int32_t account_id) const {
        return unrealized_account_id_ != 0 && account_id == unrealized_account_id_;
    }
    /// The type of the section that is being printed.
    std::int32_t SectionType() const { return section_type_; }
    /// Begins a section under that caption when there is a row; false at either end of the rows.
    bool BeginSection();
    StatementLevels& Levels() { return levels_; }
    /// Puts amounts into a line.
    void Show(StatementLine& line, const Sides& sides,
              VarianceSense sense = VarianceSense::kMoreIsBetter);

    void Detail_Format();

  private:
    /// Columns of the rows, found once a run.
    struct RowColumns {
        Column id, type, role, inactive;
        void Resolve(const Columns& columns);
        StatementRow Read(const Row& row) const;
    };

    void SetDetailControlsValue();
    void SetDetailControlsPosition();
    void ShowAccount();
    std::optional<Sides> CountAccount();
    void ShowKey();

    RowColumns columns_;
    StatementRow row_;  // The one that is being printed.
    StatementLine line_;
    StatementLevels levels_;
    StatementOutline outline_;
    framework::EarningsAccounts earnings_;
    std::int32_t unrealized_account_id_ = 0;
    std::int32_t section_type_ = 0;
    bool include_zero_balances_ = false;
    std::string text_;  // Scratch for texts built row by row.

    Section& Detail = SectionAt("Detail");
    Control& txtDescr = At("txtDescr");
    Control& txtRow = At("txtRow");
};

}  // namespace varnel::reports
