#include "reports/statements/statement_report.h"

#include "framework/filter_sort_subreport.h"
#include "framework/gl_config.h"
#include "framework/item_adjustment_note.h"
#include "framework/query_runner.h"
#include "framework/styles.h"
#include "framework/texts.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr int kCents = 2;
constexpr Twips kIndent = 240;
/// Room under a subtotal, before what comes next.
constexpr Twips kSubtotalHeight = 300;
constexpr Twips kOuterSubtotalHeight = 380;

Twips HeightOf(RowRole role) {
    if (role == RowRole::kOuterSubtotal) return kOuterSubtotalHeight;
    return role == RowRole::kSubtotal ? kSubtotalHeight : kDetailHeight;
}

}  // namespace

StatementReport::StatementReport(const Layout& layout, const Facts& facts)
    : ReportBase(layout, facts),
      SegmentFilter(Members()),
      FilterableReport(Members()),
      RevaluedReport(Members()),
      ExcelAddInExport(Members()) {
    Handle("Detail_Format", &StatementReport::Detail_Format);
}

void StatementReport::IReport_Initialize() {
    Guard("IReport_Initialize", [&] {
        ReadHomeCurrency();
        Mark(), earnings_ = ReadEarningsAccounts(CurrentCompany());
    });
}

void StatementReport::PrepareLike(StatementReport& other) {
    IReport_Application(other.AppRef());
    IReport_DateFrom(other.DateFrom());
    IReport_DateTo(other.DateTo());
    IReport_DisplayForeignCurrency(other.DisplayForeignCurrency());
    SegmentFilter::operator=(other);
    FilterableReport::operator=(other);
    RevaluedReport::operator=(other);
    include_zero_balances_ = other.include_zero_balances_;
}

void StatementReport::IReportConfig_ShowConfigurationScreen() {
    Guard("IReportConfig_ShowConfigurationScreen", [&] {
        Mark(), include_zero_balances_ = AskIncludeZeroBalance(App(), include_zero_balances_);
    });
}

void StatementReport::RowColumns::Resolve(const Columns& columns) {
    id = columns.At("InGLAcctId");
    type = columns.At("AcctType");
    role = columns.At("GroupType");
    inactive = columns.At("Inactive");
}

StatementRow StatementReport::RowColumns::Read(const Row& row) const {
    StatementRow read{.role = RoleOf(row.Integer(role)),
                      .account_id = std::nullopt,
                      .type = row.Integer(type),
                      .inactive = row.Truth(inactive)};
    if (!row.IsNull(id)) read.account_id = row.Integer(id);
    return read;
}

void StatementReport::StartRows(const std::string& statement) {
    Mark(), earnings_ = ReadEarningsAccounts(CurrentCompany());
    auto& info = (Mark(), GetCurrencyInfo());
    const bool foreign_used = (Mark(), info.CieIsForeignCurrencyUsed());
    unrealized_account_id_ = foreign_used ? (Mark(), info.UnrealizedGainLossAcctId()) : 0;
    auto rows = (Mark(), RunQuery(App(), statement, {}));
    Mark(), columns_.Resolve(rows->GetColumns());
    Data().Attach(std::move(rows));
    levels_ = {};
}

void StatementReport::ShowFilterAndNote(std::optional<Date> adjustments_from) {
    const CustomCriteria custom{Criteria().criteria, {}};
    Mark(), FillFilterSubReport(GetSurface(), AppRef(), SegmentFilterDisplay(), custom, Tool());
    Mark(), ShowItemAdjustmentNote(App(), GetSurface(), adjustments_from, DateTo());
}

BalanceScope StatementReport::Scope(Date from, Date to, const std::string& project_ids) const {
    return {from, to, SegmentClauseOn("GLDet.ExSegmentId"), project_ids};
}

Currency StatementReport::StatementBalance(std::int32_t account_id, const BalanceScope& scope) {
    return CurrentCompany().Balances().StatementBalance(account_id, scope, *this);
}

Sides StatementReport::Rounded(const Sides& sides) {
    auto& info = GetCurrencyInfo();
    return sides.Transformed([&info](Currency amount) { return info.Round(amount, kCents); });
}

bool StatementReport::BeginSection() {
    section_type_ = 0;
    if (EndOfData()) return false;
    Mark(), section_type_ = columns_.Read(CurrentRow()).type;
    outline_ = {};
    return true;
}

void StatementReport::Show(StatementLine& line, const Sides& sides, VarianceSense sense) {
    line.Show(App().GetFormats(), sides, text_, sense);
}

// Earnings are more than the lines of their account.
void StatementReport::ShowKey() {
    if (!row_.account_id || earnings_.Hold(*row_.account_id)) return;
    const std::int32_t id = *row_.account_id;
    line_.SetTags((IsUnrealized(id) ? "GLUnrealized|" : "") + std::to_string(id),
                  ComparisonKey(id));
}

// With the sign they print with. Nothing when the account is left out.
std::optional<Sides> StatementReport::CountAccount() try {
    if (row_.inactive && !include_zero_balances_) return std::nullopt;
    Sides exact;
    if (row_.account_id) exact = AmountsOf(row_);
    if (IsCreditType(row_.type)) exact = exact.Negated();
    if (exact.AreZero() && !include_zero_balances_) return std::nullopt;
    const Sides amounts = Rounded(exact);
    levels_.Add(amounts);
    return amounts;
} catch (...) {
    LoseAmounts();
    throw;
}

void StatementReport::ShowAccount() {
    ShowKey();
    const auto amounts = (Mark(), CountAccount());
    if (!amounts) return Detail.Skip();
    if (row_.account_id) OnAccount(*row_.account_id, *amounts);
    Mark(), Show(line_, *amounts, SenseOf(row_.type));
}

// A row that cannot be read may be an account.
void StatementReport::SetDetailControlsValue() {
    Guard("SetDetailControlsValue", [&] {
        line_.Clear();
        line_.SetTags({}, {});
        row_ = {};
        try {
            Mark(), row_ = columns_.Read(CurrentRow());
        } catch (...) {
            LoseAmounts();
            throw;
        }
        txtRow.SetText(NameOf(row_.role));
        levels_.Begin(row_.role);
        if (IsSubtotal(row_.role)) {
            const Sides subtotal = levels_.TakeSubtotal(row_.role);
            Mark(), Show(line_, subtotal, SenseOf(row_.type));
        }
        if (row_.role == RowRole::kPosting) ShowAccount();
    });
}

void StatementReport::SetDetailControlsPosition() {
    Guard("SetDetailControlsPosition", [&] {
        const Box& designed = txtDescr.Design().box;
        const int depth = outline_.DepthOf(row_.role);
        const bool bold = depth == 0 && (IsHeading(row_.role) || IsSubtotal(row_.role));
        const Twips indent = kIndent * depth;
        const Twips right = txtDescr.Place().Right();
        txtDescr.SetLeft(designed.left + indent);
        txtDescr.SetWidth(right - txtDescr.Place().left);
        txtDescr.SetBold(bold);
        line_.SetBold(bold);
        line_.SetRulesVisible(IsSubtotal(row_.role));
        Detail.SetHeight(HeightOf(row_.role));
        if (IsHeading(row_.role)) Detail.KeepWithNext();
        if (IsSubtotal(row_.role)) Detail.KeepWithPrevious();
    });
}

void StatementReport::Detail_Format() {
    if (EndOfData()) return;
    SetDetailControlsValue();
    SetDetailControlsPosition();
}

}  // namespace varnel::reports
