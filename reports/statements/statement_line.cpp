#include "reports/statements/statement_line.h"

#include "framework/debit_credit.h"

namespace varnel::reports {

void StatementLine::Clear() {
    for (Control* control : amounts) control->Clear();
}

void StatementLine::Show(Formats& formats, const Sides& sides, std::string& scratch) {
    for (std::size_t side = 0; side < amounts.size(); ++side)
        framework::PutSum(formats, *amounts[side], sides[side], scratch);
}

void StatementLine::SetVisible(bool visible) {
    for (Control* control : amounts) control->SetVisible(visible);
    SetRulesVisible(visible);
}

void StatementLine::SetBold(bool bold) {
    for (Control* control : amounts) control->SetBold(bold);
}

void StatementLine::SetRulesVisible(bool visible) {
    for (Control* rule : rules) rule->SetVisible(visible);
}

void StatementLine::SetTag(std::string_view tag) {
    for (Control* control : amounts) control->SetTag(tag);
}

}  // namespace varnel::reports
