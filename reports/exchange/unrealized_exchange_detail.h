#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "framework/custom_criteria.h"
#include "framework/report_base.h"
#include "framework/segment_filter.h"
#include "reports/exchange/rates_at_start.h"

namespace varnel::reports {

/// Unrealized exchange gain or loss of one account in one foreign currency: each ledger line of a
/// period, revalued at the rates of its last day, between the balance brought forward and the
/// closing one.
///
/// Late-bound properties: `ExCurrencyId` and `GLAcctId`, the internal ids of the currency and the
/// account.
class dsrUnRealExchProfitlossDetail final : public framework::ReportBase,
                                            public framework::SegmentFilter,
                                            public framework::FilterableReport,
                                            public RatesAtStart {
  public:
    dsrUnRealExchProfitlossDetail();

    std::int32_t ExCurrencyId() const { return ex_currency_id_; }
    void ExCurrencyId(std::int32_t currency_id) { ex_currency_id_ = currency_id; }
    std::int32_t GLAcctId() const { return gl_acct_id_; }
    void GLAcctId(std::int32_t account_id) { gl_acct_id_ = account_id; }

    void ActiveReport_ReportStart() override;

  private:
    /// What lines add up to, debit positive: `foreign` in the report's currency, the rest in home
    /// currency.
    struct Position {
        Currency foreign, home, revalued, gain;
        static Position Of(const framework::LedgerBalance& balance,
                           const framework::Revaluation& worth);
        Position operator+(const Position& other) const;
    };
    struct LineColumns {
        Column date, foreign, home, description, source, source_key;
        void Resolve(const Columns& columns);
    };
    struct AmountControls {
        Control &foreign, &home, &revalued, &gain;
        void Clear();
    };

    void ShowNames();
    void RequireRate();
    std::string BalanceStatement() const;
    std::string LinesStatement() const;
    /// The account's balance in the currency up to and with that day; none when it could not be
    /// had, which the user has been told.
    std::optional<Position> GetAccountBalance(Date up_to);
    Position SumBalances(Recordset& rows);
    std::optional<Position> BroughtForward();

    void ShowKey();
    void ShowDate(Control& control, Date date);
    void PutForeign(Control& control, Currency amount);
    void PutHome(Control& control, Currency amount);
    void PutPosition(AmountControls& controls, const std::optional<Position>& position);

    void PageHeader_Format();
    void ghGLAcct_Format();
    void Detail_Format();
    void ReportFooter_Format();

    std::int32_t ex_currency_id_ = 0;
    std::int32_t gl_acct_id_ = 0;

    LineColumns columns_;
    std::string currency_code_;
    std::optional<Position> forward_;
    /// The lines so far; none from the first that could not be revalued, as a total without it
    /// would be wrong.
    std::optional<Position> period_;
    std::string text_;  // Scratch for texts built row by row.

    Section& PageHeader = SectionAt("PageHeader");
    Control& txtForwardDate = At("txtForwardDate");
    Control& txtDate = At("txtDate");
    Control& txtDetDesc = At("txtDetDesc");
    AmountControls line_{At("txtForeign"), At("txtHome"), At("txtRevalued"), At("txtGain")};
    const std::array<Control*, 6> line_controls_{&txtDate,    &txtDetDesc,     &line_.foreign,
                                                 &line_.home, &line_.revalued, &line_.gain};
    AmountControls forward_line_{At("txtForwardForeign"), At("txtForwardHome"),
                                 At("txtForwardRevalued"), At("txtForwardGain")};
    AmountControls period_line_{At("txtPeriodForeign"), At("txtPeriodHome"),
                                At("txtPeriodRevalued"), At("txtPeriodGain")};
    AmountControls closing_line_{At("txtClosingForeign"), At("txtClosingHome"),
                                 At("txtClosingRevalued"), At("txtClosingGain")};
};

}  // namespace varnel::reports
