#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "accounts/cgl_accts.h"
#include "framework/custom_criteria.h"
#include "framework/report_base.h"
#include "framework/segment_filter.h"
#include "reports/exchange/realized_gain.h"

namespace varnel::reports {

/// Realized exchange gain or loss: every payment of a period that was applied to an invoice in a
/// foreign currency, by currency and kind of payment, with what it gained between the invoice's
/// rate and its own.
class dsrRealizedExchProfitloss final : public framework::ReportBase,
                                        public framework::SegmentFilter,
                                        public framework::FilterableReport {
  public:
    dsrRealizedExchProfitloss();

    void ActiveReport_ReportStart() override;
    void ActiveReport_Terminate() override;

  private:
    /// Of one kind of payment in one currency: paid in that currency, gained in home currency.
    struct Totals {
        Currency paid;
        Currency gain;
    };
    struct PaymentColumns {
        Column amount, discount, invoice_rate, payment_rate, type, source, invoice_id, payment_id,
            currency_id, account_id, date, currency_code;
        void Resolve(const Columns& columns);
    };

    std::string BuildStatement();
    void LoadAccounts();
    std::int32_t ControlAccountId();
    void ShowKeys();
    AppliedPayment ReadPayment();
    void ShowDate();
    void PutRate(Control& control, Rate rate);
    /// In the general currency format.
    void PutHome(Control& control, Currency amount);

    void PageHeader_Format();
    void ghCurrency_Format();
    void ghCurrPmtType_Format();
    void Detail_Format();
    void gfCurrPmtType_Format();
    void ReportFooter_Format();

    PaymentColumns columns_;
    std::optional<CGLAccts> accounts_;
    /// None from the first payment that could not be worked out: a total without it is wrong. The
    /// report's: none before there are rows, too.
    std::optional<Totals> group_;
    std::optional<Currency> report_gain_;
    std::int32_t currency_id_ = 0;
    std::int32_t payment_type_ = 0;
    bool foreign_used_ = false;
    std::string text_;  // Scratch for texts built row by row.

    Section& PageHeader = SectionAt("PageHeader");
    Section& ghCurrency = SectionAt("ghCurrency");
    Control& txtCurrency = At("txtCurrency");
    Control& txtAccount = At("txtAccount");
    Control& txtPmtDate = At("txtPmtDate");
    Control& txtName = At("txtName");
    Control& txtInvoiId = At("txtInvoiId");
    Control& txtChqNo = At("txtChqNo");
    Control& txtExchangeRate = At("txtExchangeRate");
    Control& txtPmtRate = At("txtPmtRate");
    Control& txtPaid = At("txtPaid");
    Control& txtGain = At("txtGain");
    Control& txtPaidTotal = At("txtPaidTotal");
    Control& txtGainTotal = At("txtGainTotal");
    Control& txtGainGrandTotal = At("txtGainGrandTotal");
};

}  // namespace varnel::reports
