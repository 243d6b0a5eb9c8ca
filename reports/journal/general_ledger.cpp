#include "reports/journal/general_ledger.h"

#include <charconv>

#include "framework/standard_header.h"
#include "framework/styles.h"
#include "framework/texts.h"
#include "reports/journal/entry_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kTitle = 30013;
constexpr std::int16_t kAccountTypes = 30047;
constexpr Twips kTypeLineHeight = 220;

std::vector<ControlLayout> TypeControls() {
    return {
        {.name = "lblType", .kind = ControlKind::kLabel, .box = {}, .text = "0", .visible = false},
        {.name = "lblAcctType",
         .kind = ControlKind::kLabel,
         .box = {0, kHeaderBlockHeight, kLayoutWidth, kTypeLineHeight},
         .style = kQuiet,
         .visible = false,
         .stretch = Stretch::kWiden}};
}

const Layout& LedgerLayout() {
    static const Layout layout = EntryLayout("dsrGeneralLedger", TypeControls());
    return layout;
}

std::int32_t NumberIn(std::string_view text) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

}  // namespace

dsrGeneralLedger::dsrGeneralLedger()
    : EntryReport(LedgerLayout(), kTitle), ComparableReport(Members(), ObjectName()) {}

void dsrGeneralLedger::BeginRun() { account_type_ = NumberIn(At("lblType").Text()); }

void dsrGeneralLedger::ShowSelection() {
    Guard("IComparableReportActions", [&] { Mark(), StartComparing(App()); });
    Guard("ShowAccountType", [&] { ShowAccountType(); });
}

// The line that says whose lines they are takes its room in the page header only when it is there.
void dsrGeneralLedger::ShowAccountType() {
    const bool one_type = account_type_ != 0;
    Control& types = At("lblAcctType");
    types.SetVisible(one_type);
    types.Clear();
    SetHeaderBlockHeight(GetSurface(), kHeaderBlockHeight + (one_type ? kTypeLineHeight : 0));
    if (!one_type) return;
    auto& account_types = (Mark(), CurrentCompany().GetAccountTypes());
    const std::string caption = (Mark(), account_types.Caption(account_type_, 0));
    Mark(), types.SetText(PlainText(App(), kAccountTypes) + ": " + caption);
}

std::string dsrGeneralLedger::Condition() {
    std::string condition = "WHERE GLDet.DetDate BETWEEN ? AND ? ";
    if (account_type_ != 0)
        condition += " AND GLAcct.AcctType = " + std::to_string(account_type_) + " ";
    return condition;
}

void dsrGeneralLedger::LineAdded(std::optional<Currency> amount) {
    if (Compares()) Guard("IComparableReportActions", [&] { AddComparableLine(amount); });
}

void dsrGeneralLedger::AddComparableLine(std::optional<Currency> amount) {
    const Row& row = CurrentRow();
    const LineColumns& at = LineAt();
    const auto text = [&row](Column column) {
        std::string value;
        row.AppendText(column, value);
        return value;
    };
    auto& values = NewComparableRow();
    Mark(), values.Add("entry", row.Integer(at.seq_no)).Add("source", text(at.source));
    if (!row.IsNull(at.date)) Mark(), values.Add("date", row.Day(at.date));
    values.Add("account", text(at.account_number)).Add("description", text(at.description));
    values.Add("reference", text(at.reference)).Add("project", text(at.project));
    values.Add("remarks", text(at.remarks));
    if (ShowsForeignAmount()) {
        Mark(), values.Add("foreign", row.Amount(at.foreign_amount));
        values.Add("currency", text(at.currency_code));
    }
    values.Add("amount", amount ? KnownSum(*amount) : KnownSum::Unknown());
    Mark(), AddComparableRow(text(at.id));
}

std::string_view dsrGeneralLedger::DefaultOrder() const {
    return " ORDER BY GLDet.SeqNo, GLDet.InGLDetId";
}

}  // namespace varnel::reports
