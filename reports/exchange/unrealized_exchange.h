#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "accounts/cgl_accts.h"
#include "framework/custom_criteria.h"
#include "framework/ledger_balance_columns.h"
#include "framework/report_base.h"
#include "framework/segment_filter.h"
#include "reports/exchange/rates_at_start.h"

namespace varnel::reports {

/// Unrealized exchange gain or loss: what the foreign balances of bank, receivable, payable and
/// other revalued accounts are worth at the rates of a closing date, by currency and account, and
/// how far that is from what was booked.
class dsrUnRealExchProfitloss final : public framework::ReportBase,
                                      public framework::SegmentFilter,
                                      public framework::FilterableReport,
                                      public RatesAtStart {
  public:
    dsrUnRealExchProfitloss();

    void ActiveReport_ReportStart() override;
    void ActiveReport_Terminate() override;

  private:
    /// In home currency. What they stand for is worth an unknown amount when a balance could not
    /// be valued: then none of them is shown, rather than a wrong one.
    struct Totals {
        Currency booked;
        Currency revalued;
        Currency gain;
        bool known = true;
        void Add(const Totals& part);
    };
    struct TotalControls {
        Control& booked;
        Control& revalued;
        Control& gain;
    };

    std::string BuildStatement();
    void AddBalance();
    void AddAccount(const Totals& account);
    void PutAmount(Control& control, Currency amount, std::int32_t currency_id);
    void PutTotals(const TotalControls& controls, const Totals& totals);
    void SetAccountKey();

    void PageHeader_Format();
    void ghCurrency_Format();
    void ghAccountType_Format();
    void Detail_Format();
    void gfAccountType_Format();
    void gfCurrency_Format();
    void ReportFooter_Format();

    std::int32_t currency_id_ = 0;
    std::int32_t account_id_ = 0;
    framework::LedgerBalanceColumns columns_;
    Column account_column_;
    std::optional<framework::Revaluer> revaluer_;
    std::optional<CGLAccts> accounts_;
    Currency account_foreign_;
    Totals account_;
    Totals currency_;
    Totals report_;
    std::string text_;  // Scratch for texts built account by account.

    Section& PageHeader = SectionAt("PageHeader");
    Section& ghAccountType = SectionAt("ghAccountType");
    Section& Detail = SectionAt("Detail");
    Control& txtAccount = At("txtAccount");
    Control& txtForeign = At("txtForeign");
    Control& txtCode = At("txtCode");
    TotalControls account_totals_{At("txtBooked"), At("txtRevalued"), At("txtGain")};
    Control& txtCurrencyTotal = At("txtCurrencyTotal");
    TotalControls currency_totals_{At("txtBookedTotal"), At("txtRevaluedTotal"),
                                   At("txtGainTotal")};
    Control& txtRatesDate = At("txtRatesDate");
    Control& txtGainGrandTotal = At("txtGainGrandTotal");
};

}  // namespace varnel::reports
