#include "reports/statements/income_statement_report.h"

#include <algorithm>

#include "accounts/unrealized_gain.h"
#include "framework/cell_values.h"
#include "framework/item_adjustment_note.h"
#include "framework/period_caption.h"
#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "reports/statements/income_statement_parts.h"
#include "reports/statements/statement_rates.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int32_t kRevenue = 4;
constexpr std::int32_t kExpense = 5;
constexpr std::int32_t kOther = 9;

constexpr std::int16_t kByProject = 2098;
constexpr std::int16_t kProjects = 5861;

constexpr Twips kSectionHeaderHeight = 570;

struct SectionEnd {
    std::int32_t type;
    std::int16_t total_text;
    std::int16_t result_text;  // 0 shows no result.
    Twips height;
};

constexpr SectionEnd kSectionEnds[] = {{kRevenue, 2674, 0, kTotalHeight},
                                       {kExpense, 2676, 2679, kResultHeight},
                                       {kOther, 2678, 2680, kResultHeight}};

constexpr std::string_view kColumns = "SELECT InGLAcctId, GLAcctId, Descr, Inactive, ";
constexpr std::string_view kOrder = "ORDER BY AcctType, GLAcctId";

constexpr Member<IncomeStatementReport> kMembers[] = {
    {"ProjIds", [](IncomeStatementReport& r) -> Variant { return r.GetSelection().project_ids; },
     [](IncomeStatementReport& r, const Variant& v) { r.GetSelection().project_ids = v.ToText(); }},
    {"CumulDateTo",
     [](IncomeStatementReport& r) -> Variant { return r.GetSelection().cumulative_to; },
     [](IncomeStatementReport& r, const Variant& v) {
         r.GetSelection().cumulative_to = v.ToDate();
     }},
    {"CumulDateFrom",
     [](IncomeStatementReport& r) -> Variant { return r.GetSelection().cumulative_from; },
     [](IncomeStatementReport& r, const Variant& v) {
         r.GetSelection().cumulative_from = v.ToDate();
     }},
};

}  // namespace

IncomeStatementReport::IncomeStatementReport(const Layout& layout, std::int16_t title_text,
                                             std::string_view more_columns)
    : StatementReport(
          layout,
          {.title_text = title_text, .date_display = DateDisplay::kFromTo, .by_fiscal_year = true}),
      more_columns_(more_columns) {
    Members().Add<IncomeStatementReport>(*this, kMembers);
    Handle("ghAcctType_Format", &IncomeStatementReport::ghAcctType_Format);
    Handle("gfAcctType_Format", &IncomeStatementReport::gfAcctType_Format);
}

void IncomeStatementReport::SetLines(Lines lines) {
    lines_ = std::move(lines);
    SetRowLine(lines_.row);
}

void IncomeStatementReport::PrepareLike(IncomeStatementReport& other) {
    StatementReport::PrepareLike(other);
    selection_ = other.selection_;
}

std::string IncomeStatementReport::IReport_ReportTitle() {
    std::string title = StatementReport::IReport_ReportTitle();
    Guard("IReport_ReportTitle", [&] {
        if (!selection_.project_ids.empty()) Mark(), title += " - " + PlainText(App(), kByProject);
    });
    return title;
}

// A report that could not start knows no total.
void IncomeStatementReport::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        Levels().Lose();
        result_.Lose();
        unrealized_.reset();
        const auto adjustments_from = (Mark(), InitGLtAjust(App()));
        const std::string statement = BuildStatement();
        SetPeriods();
        const bool by_project = !selection_.project_ids.empty();
        lblProjects.SetVisible(by_project);
        fldProjects.SetVisible(by_project);
        StartRows(statement);
        result_ = {};
        SetPageHeader();
        if (by_project) SetPageHeaderForProjStatement();
        PlaceGroupHeader();
        ShowFilterAndNote(adjustments_from);
    });
}

std::string IncomeStatementReport::BuildStatement() {
    if (FilterTool* const tool = Tool()) Mark(), tool->SetTables("GLAcct");
    const std::string types = (Mark(), CurrentCompany().GetAccountTypes().AdditionalIncomeTypes());
    const std::string columns(kColumns), more(more_columns_);
    std::string statement = "SELECT * FROM (  " + columns + "AcctType, GroupType" + more +
                            "   FROM GLAcct   WHERE AcctType IN (4,5)   UNION ALL   " + columns +
                            "9 AS AcctType, GroupType" + more +
                            "   FROM GLAcct   WHERE AcctType IN (" + types + ") ) AS GLAcct ";
    const CustomCriteria custom = Criteria();
    if (!custom.criteria.empty()) statement += " WHERE (" + custom.criteria + ") ";
    return statement.append(kOrder);
}

void IncomeStatementReport::SetPeriods() {
    const auto& [projects, from, to] = selection_;
    period_ = Scope(DateFrom(), DateTo(), projects);
    cumulative_ = Scope(from == Date() ? (Mark(), FiscalYearStart()) : from,
                        to == Date() ? DateTo() : to, projects);
}

void IncomeStatementReport::SetPageHeader() {
    Guard("SetPageHeader", [&] {
        Mark(), lblDatePeriod.SetText(StatementPeriodCaption(App(), period_.from, period_.to));
        At(kPeriodLabel).SetText(lblDatePeriod.Text());
        Mark(), lblDateCul.SetText(StatementPeriodCaption(App(), cumulative_.from, cumulative_.to));
        Mark(), txtExchangeRate.SetText(StatementRatesText(App(), *this));
        Mark(), ReplacePageHeaderControls(SectionAt("PageHeader"));
    });
}

void IncomeStatementReport::SetPageHeaderForProjStatement() {
    Guard("SetPageHeaderForProjStatement", [&] {
        Mark(), lblProjects.SetText(PlainText(App(), kProjects));
        Mark(), fldProjects.SetText(ProjectNames());
    });
}

std::string IncomeStatementReport::ProjectNames() {
    const std::string statement =
        "SELECT * FROM ProjInfo WHERE InProjId IN(" + selection_.project_ids + ")";
    const auto rows = (Mark(), RunQuery(App(), statement, {}));
    const Column code = (Mark(), rows->GetColumns().At("ProjId"));
    const Column description = (Mark(), rows->GetColumns().At("Descr"));
    std::string names, name;
    for (; !rows->AtEnd(); (Mark(), rows->MoveNext())) {
        ReadAccountCaption(rows->Current(), code, description, true, name);
        names += (names.empty() ? "" : ", ") + name;
    }
    return names;
}

// Projects and rates take a line where there are any, captions where they are wanted; what stands
// below follows.
void IncomeStatementReport::PlaceGroupHeader() {
    const bool has_rates = !txtExchangeRate.Text().empty();
    txtExchangeRate.SetVisible(has_rates);
    const Twips captions_top = txtExchangeRate.Design().box.Bottom();
    Twips up = fldProjects.Visible() ? 0 : fldProjects.Design().box.height;
    txtExchangeRate.SetTop(txtExchangeRate.Design().box.top - up);
    if (!has_rates) up += txtExchangeRate.Design().box.height;
    const bool has_captions = !IReport_NoHeaders();
    for (auto& control : GroupHeader1.Controls()) {
        if (control.Design().box.top < captions_top) continue;
        control.SetTop(control.Design().box.top - up);
        control.SetVisible(has_captions);
    }
    GroupHeader1.SetHeight((has_captions ? GroupHeader1.Design().height : captions_top) - up);
}

bool IncomeStatementReport::IsCreditType(std::int32_t account_type) const {
    return account_type == kRevenue;
}

Sides IncomeStatementReport::AmountsOf(const StatementRow& row) {
    return {AmountOver(period_, *row.account_id), AmountOver(cumulative_, *row.account_id)};
}

// The unrealized account carries what is not booked besides what is.
Currency IncomeStatementReport::AmountOver(const BalanceScope& scope, std::int32_t account_id) {
    const Currency booked = StatementBalance(account_id, scope);
    if (!IsUnrealized(account_id) || !IExchangeRates_Reevaluate()) return booked;
    return booked - UnrealizedGainBy(scope.to);
}

Currency IncomeStatementReport::UnrealizedGainBy(Date date) {
    if (!unrealized_ || unrealized_->first != date) {
        const UnrealizedScope scope{date, period_.project_ids, period_.segment_clause};
        const auto rates = IExchangeRates_ExchangeRates();
        unrealized_ = {date, UnrealizedGain(App(), scope, rates.get())};
    }
    return unrealized_->second;
}

void IncomeStatementReport::ghAcctType_Format() {
    lblAcctType.Clear();
    lblAcctType.SetVisible(true);
    ghAcctType.SetHeight(kSectionHeaderHeight);
    if (!BeginSection()) return;
    auto& types = (Mark(), CurrentCompany().GetAccountTypes());
    Mark(), lblAcctType.SetText(types.Caption(SectionType(), 0));
}

void IncomeStatementReport::ShowResult(std::int16_t caption_text) {
    const bool shown = caption_text != 0;
    lblGTot.SetVisible(shown);
    lblGTot.Clear();
    lines_.result.SetVisible(shown);
    lines_.result.Clear();
    lines_.final_rules.SetRulesVisible(shown && Data().Rows()->AtEnd());
    if (!shown) return;
    Mark(), lblGTot.SetText(PlainText(App(), caption_text));
    OnResult(SectionType(), lblGTot.Text(), result_);
    Mark(), Show(lines_.result, result_);
}

// What a section's footer says, and how high it is, goes by the section's type. A section that
// could not be told leaves no result.
void IncomeStatementReport::gfAcctType_Format() {
    const Sides total = Levels().TakeSection();
    lblTypeCap.Clear();
    lines_.section_total.Clear();
    ShowResult(0);
    const auto* const end = std::ranges::find(kSectionEnds, SectionType(), &SectionEnd::type);
    if (end == std::end(kSectionEnds)) return result_.Lose();
    if (end->type == kRevenue)
        result_.Add(total);
    else
        result_.Subtract(total);
    gfAcctType.SetHeight(end->height);
    Mark(), lblTypeCap.SetText(PlainText(App(), end->total_text));
    Mark(), Show(lines_.section_total, total, SenseOf(end->type));
    ShowResult(end->result_text);
}

}  // namespace varnel::reports
