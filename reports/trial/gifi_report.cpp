#include "reports/trial/gifi_report.h"

#include <limits>

#include "framework/cell_values.h"
#include "framework/debit_credit.h"
#include "framework/exchange_rates_note.h"
#include "framework/filter_sort_subreport.h"
#include "framework/item_adjustment_note.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "reports/trial/gifi_report_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kCodes = 7630;

constexpr std::string_view kSelect =
    "SELECT GLAcct.InGLAcctId, GLAcct.GLAcctId, GLAcct.Descr, GLAcct.ExCurrencyId, "
    "GLAcct.AcctType, GLAcct.GIFIAcctId, WorldCurrency.CurrencyCode "
    "FROM GLAcct LEFT JOIN "
    "WorldCurrency ON GLAcct.ExCurrencyId = WorldCurrency.InCurrencyId "
    "WHERE (Inactive = 0 OR Inactive IS NULL) AND GIFIAcctId <> '' ";

}  // namespace

dsrGIFIReport::dsrGIFIReport()
    : TrialReport(GifiReportLayout(), {.title_text = 30007,
                                       .date_display = DateDisplay::kFromTo,
                                       .by_account_number = true,
                                       .by_fiscal_year = true}) {
    Handle("PageHeader_Format", &dsrGIFIReport::PageHeader_Format);
    Handle("ghGIFI_Format", &dsrGIFIReport::ghGIFI_Format);
    Handle("Detail_Format", &dsrGIFIReport::Detail_Format);
    Handle("gfGIFI_Format", &dsrGIFIReport::gfGIFI_Format);
    Handle("ReportFooter_Format", &dsrGIFIReport::ReportFooter_Format);
}

void dsrGIFIReport::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        total_ = {};
        count_ = 0;
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        const std::string statement = BuildStatement();
        StartAmounts(BalancePeriod());
        auto rows = (Mark(), RunQuery(App(), statement, {}));
        Mark(), ResolveColumns(rows->GetColumns());
        Data().Attach(std::move(rows));
        Mark(), At(kPeriodLabel).SetText(JournalPeriodCaption(App(), DateFrom(), DateTo()));
        const auto custom = Criteria();
        Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), custom, Tool());
        Mark(), ShowItemAdjustmentNote(App(), GetSurface(), adjustments_from, DateTo());
    });
}

// The code leads every ordering: it is what the lines are grouped by.
std::string dsrGIFIReport::BuildStatement() {
    if (FilterTool* const tool = Tool()) Mark(), tool->SetTables("GLAcct, WorldCurrency");
    const CustomCriteria custom = Criteria();
    return std::string(kSelect) + custom.AndClause() +
           custom.OrderClause(" ORDER BY GIFIAcctId, ", " ORDER BY GIFIAcctId, GLAcctId");
}

AccountAmounts::Period dsrGIFIReport::BalancePeriod() {
    const Date year_start = (Mark(), FiscalYearStart());
    return {.year_start = year_start,
            .to = DateTo(),
            .segment_clause = SegmentClauseOn("GLDet.ExSegmentId"),
            .project_ids = {}};
}

void dsrGIFIReport::ResolveColumns(const Columns& columns) {
    Amounts().Resolve(columns);
    number_ = columns.At("GLAcctId");
    description_ = columns.At("Descr");
}

void dsrGIFIReport::ShowDescription() {
    Mark(), ReadAccountCaption(CurrentRow(), number_, description_, UseAccountNumbers(), text_);
    txtDescr.SetText(text_);
}

void dsrGIFIReport::ShowKey(const std::string& key) {
    txtDescr.SetTag(key);
    txtAmount.SetTag(key);
}

void dsrGIFIReport::PageHeader_Format() {
    Mark(), ShowExchangeRatesNote(App(), GetSurface(), *this);
    ReplacePageHeaderControls(PageHeader);
}

void dsrGIFIReport::ghGIFI_Format() {
    total_ = {};
    if (count_ == std::numeric_limits<std::int32_t>::max())
        Raise(error_number::kOverflow, "Varnel", "There are more GIFI codes than can be counted");
    ++count_;
}

void dsrGIFIReport::Detail_Format() {
    if (EndOfData()) return;
    txtAmount.Clear();
    ShowDescription();
    ShowKey({});
    Currency amount;
    try {
        const TrialAccount account = (Mark(), Amounts().Read(CurrentRow()));
        ShowKey(Amounts().Key(account));
        Mark(), amount = Amounts().Amount(account);
        total_.Add(amount);
    } catch (...) {
        total_.Lose();
        throw;
    }
    if (amount.IsZero()) return Detail.Skip();
    Mark(), PutAmount(App().GetFormats(), txtAmount, amount, text_);
}

void dsrGIFIReport::gfGIFI_Format() { Mark(), PutSum(App().GetFormats(), txtTotal, total_, text_); }

void dsrGIFIReport::ReportFooter_Format() {
    Mark(), txtCount.SetValue(count_, std::to_string(count_) + " " + PlainText(App(), kCodes));
}

}  // namespace varnel::reports
