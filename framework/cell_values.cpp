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

}  // namespace varnel::framework
