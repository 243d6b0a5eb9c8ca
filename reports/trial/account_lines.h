#pragma once

#include <string>
#include <string_view>

#include "host/application.h"
#include "host/row.h"
#include "host/surface.h"
#include "reports/trial/account_sums.h"
#include "reports/trial/balance_controls.h"

namespace varnel::reports {

/// The ledger lines of accounts in print, for reports that list them under each account with a
/// running balance: what their layouts name alike, and the columns of the rows.
///
/// A row without a line stands for an account that has none.
class AccountLines {
  public:
    struct LineColumns {
        Column id, number, date, amount, foreign, currency_id, source, source_key;
    };

    /// The control of amounts in foreign currency and its caption go by the report's own names.
    AccountLines(Surface& surface, std::string_view foreign, std::string_view foreign_caption);

    void Resolve(const Columns& columns);
    const LineColumns& At() const { return columns_; }
    bool IsLine(const Row& row) const { return !row.IsNull(columns_.id); }

    /// The description ends where the foreign amounts begin, or without them the debits.
    void PlaceDescription(bool with_foreign, bool with_caption);

    /// Takes out what was there of the line before, but for the texts that rows fill by themselves.
    void Clear();
    /// The drill-down key of the document that posted the line, good until the next call.
    const std::string& DocumentKey(const Row& row);
    void SetTag(std::string_view key);
    /// After it was added up.
    void ShowAmount(Formats& formats, Currency amount, const AccountSums& sums);
    void ShowForeignAmount(Formats& formats, const Row& row, const std::string& currency_code);
    void ShowNumberAndDate(Formats& formats, const Row& row);

    void ClearSubtotals();
    void ShowSubtotals(Formats& formats, const AccountSums& sums);
    void ShowTotals(Formats& formats, const AccountSums& sums);

  private:
    LineColumns columns_;
    std::string text_;  // Scratch for texts built row by row.

    BalanceControls running_, account_balance_, total_balance_;
    Control &txtSeqNo, &txtSource, &txtDetDate, &txtDetDesc, &lblDescrCap;
    Control &foreign_, &foreign_caption_, &txtCurrencyCode;
    Control &txtDebit, &txtCredit, &txtDebitTotal, &txtCreditTotal;
    Control &txtDebitGrandTotal, &txtCreditGrandTotal;
};

}  // namespace varnel::reports
