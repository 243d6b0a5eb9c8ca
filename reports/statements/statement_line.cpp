#include "reports/statements/statement_line.h"

#include <cmath>
#include <utility>

#include "framework/cell_values.h"
#include "framework/debit_credit.h"

namespace varnel::reports {

namespace {

constexpr int kPercentDecimals = 2;
/// Nothing can be said in percent of zero.
constexpr std::string_view kNotAvailable = "NA";
/// Beyond it a percentage is a text alone, as data exports cannot hold it.
constexpr double kLargestPercent = 1e9;

void PutPercent(Formats& formats, Control& control, std::optional<double> percent,
                std::string& scratch) {
    if (!percent) return control.SetText(kNotAvailable);
    scratch.clear();
    formats.AppendNumber(*percent, kPercentDecimals, scratch);
    if (std::abs(*percent) > kLargestPercent) return control.SetText(scratch);
    constexpr std::int64_t kHundredth = Rate::kScale / 100;
    control.SetValue(Rate::FromScaled(std::llround(*percent * 100) * kHundredth), scratch);
}

}  // namespace

StatementLine::StatementLine(Controls controls)
    : controls_(std::move(controls)), figures_(controls_.amounts) {
    if (controls_.variance == nullptr) return;
    figures_.push_back(controls_.variance);
    figures_.push_back(controls_.percent);
}

void StatementLine::Clear() {
    for (Control* control : figures_) control->Clear();
}

void StatementLine::Show(Formats& formats, const Sides& sides, std::string& scratch,
                         VarianceSense sense) {
    const auto& amounts = controls_.amounts;
    for (std::size_t side = 0; side < amounts.size(); ++side)
        framework::PutSum(formats, *amounts[side], sides[side], scratch);
    if (controls_.variance != nullptr) ShowVariance(formats, sides, scratch, sense);
}

void StatementLine::ShowVariance(Formats& formats, const Sides& sides, std::string& scratch,
                                 VarianceSense sense) {
    const auto& current = sides[0];
    const auto& comparison = sides[controls_.amounts.size() - 1];
    controls_.variance->Clear();
    controls_.percent->Clear();
    if (!current.Known() || !comparison.Known()) return;
    const Variance variance = VarianceOf(current.Value(), comparison.Value(), sense);
    framework::PutAmount(formats, *controls_.variance, variance.amount, scratch);
    PutPercent(formats, *controls_.percent, variance.percent, scratch);
}

void StatementLine::SetVisible(bool visible) {
    for (Control* control : figures_) control->SetVisible(visible);
    SetRulesVisible(visible);
}

void StatementLine::SetBold(bool bold) {
    for (Control* control : figures_) control->SetBold(bold);
}

void StatementLine::SetRulesVisible(bool visible) {
    for (Control* rule : controls_.rules) rule->SetVisible(visible);
}

void StatementLine::SetTags(std::string_view tag, std::string_view comparison_tag) {
    for (Control* control : controls_.amounts) control->SetTag(tag);
    if (controls_.variance != nullptr) controls_.amounts.back()->SetTag(comparison_tag);
}

std::vector<Box> StatementLine::Columns() const {
    std::vector<Box> columns;
    for (const Control* control : figures_) columns.push_back(control->Place());
    return columns;
}

}  // namespace varnel::reports
