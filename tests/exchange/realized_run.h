#pragma once

#include <vector>

#include "framework/cls_report.h"
#include "tests/support/report_run.h"

namespace varnel::test {

/// A payment applied to an invoice, as the realized report's query gives it.
struct PaymentRow {
    std::int32_t type = 1;
    Variant amount = Currency::FromWhole(1'000);
    Variant discount = Currency();
    Variant invoice_rate = "1.35";
    Variant payment_rate = "1.3725";
    std::int32_t currency_id = 2;
    Variant source = "INV";
    Variant invoice_key = 71;
    Variant payment_key = 9;
    Variant account_id = Variant::Null{};
    Variant date = "2025-01-15";
    Variant name = "Harbour Lane";
    Variant invoice = "F100";
    Variant cheque = "1207";
};

RowSet PaymentRows(const std::vector<PaymentRow>& rows);

inline PaymentRow Paid(const char* amount, std::int32_t type = 1, std::int32_t currency_id = 2) {
    PaymentRow row;
    row.type = type;
    row.amount = Currency::Parse(amount);
    row.currency_id = currency_id;
    return row;
}

/// The realized report. USD has accounts 1201 and 2101; 3 is JPY here, without decimals or accounts
/// of its own; the company's are 1200 and 2100, deposits go to 1060.
class RealizedRun : public ReportRun {
  public:
    RealizedRun();
    /// Runs the same report object again with each call.
    CollectedBands operator()(const std::vector<PaymentRow>& rows);
};

}  // namespace varnel::test
