#include "framework/cell_values.h"

namespace varnel::framework {

void PutDate(Formats& formats, Control& control, Date date, std::string& scratch) {
    scratch.clear();
    formats.AppendShortDate(date, scratch);
    control.SetValue(date, scratch);
}

void PutAmount(Formats& formats, Control& control, Currency amount, std::string& scratch) {
    scratch.clear();
    formats.AppendAmount(amount, scratch);
    control.SetValue(amount, scratch);
}

void PutAmountIn(CurrencyInfo& info, Control& control, Currency amount, std::int32_t currency_id,
                 std::string& scratch) {
    scratch.clear();
    info.FormatWorldCurrency(amount, currency_id, scratch);
    control.SetValue(amount, scratch);
}

void ReadDocumentKey(const Row& row, Column source, Column key, std::string& out) {
    out.clear();
    row.AppendText(source, out);
    out += '|';
    row.AppendText(key, out);
}

namespace {

/// Between the parts of `caption`, the second of which begins at `second`.
void SeparateParts(std::string& caption, std::size_t second) {
    if (second > 0 && second < caption.size()) caption.insert(second, " - ");
}

}  // namespace

std::string AccountCaption(std::string number, std::string_view description) {
    const std::size_t second = number.size();
    number += description;
    SeparateParts(number, second);
    return number;
}

void ReadAccountCaption(const Row& row, Column number, Column description, bool with_number,
                        std::string& out) {
    out.clear();
    if (with_number) row.AppendText(number, out);
    const std::size_t second = out.size();
    row.AppendText(description, out);
    SeparateParts(out, second);
}

void PutNumber(Control& control, const Row& row, Column column, std::string& scratch) {
    control.Clear();
    if (row.IsNull(column)) return;
    scratch.clear();
    row.AppendText(column, scratch);
    control.SetValue(row.Integer(column), scratch);
}

}  // namespace varnel::framework
