#include "reports/trial/account_lines.h"

#include "framework/cell_values.h"
#include "framework/procedure.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr Twips kGap = 60;

}  // namespace

AccountLines::AccountLines(Surface& surface, std::string_view foreign,
                           std::string_view foreign_caption)
    : running_{surface.At("txtBalance"), surface.At("lblBalanceType")},
      account_balance_{surface.At("txtBalanceTotal"), surface.At("lblBalanceTotalType")},
      total_balance_{surface.At("txtBalanceGrandTotal"), surface.At("lblBalanceGrandTotalType")},
      txtSeqNo(surface.At("txtSeqNo")),
      txtSource(surface.At("txtSource")),
      txtDetDate(surface.At("txtDetDate")),
      txtDetDesc(surface.At("txtDetDesc")),
      lblDescrCap(surface.At("lblDescrCap")),
      foreign_(surface.At(foreign)),
      foreign_caption_(surface.At(foreign_caption)),
      txtCurrencyCode(surface.At("txtCurrencyCode")),
      txtDebit(surface.At("txtDebit")),
      txtCredit(surface.At("txtCredit")),
      txtDebitTotal(surface.At("txtDebitTotal")),
      txtCreditTotal(surface.At("txtCreditTotal")),
      txtDebitGrandTotal(surface.At("txtDebitGrandTotal")),
      txtCreditGrandTotal(surface.At("txtCreditGrandTotal")) {}

void AccountLines::Resolve(const Columns& columns) {
    columns_ = {.id = columns.At("InGLDetId"),
                .number = columns.At("SeqNo"),
                .date = columns.At("DetDate"),
                .amount = columns.At("DetAmnt"),
                .foreign = columns.At("ForeignAmnt"),
                .currency_id = columns.At("GLDetExCurrencyId"),
                .source = columns.At("Source"),
                .source_key = columns.At("ExSrcKeyVal")};
}

void AccountLines::PlaceDescription(bool with_foreign, bool with_caption) {
    foreign_caption_.SetVisible(with_caption);
    const Twips right = (with_foreign ? foreign_ : txtDebit).Place().left - kGap;
    for (Control* control : {&txtDetDesc, &lblDescrCap})
        control->SetWidth(right - control->Place().left);
}

void AccountLines::Clear() {
    for (Control* control : {&txtDetDate, &txtSeqNo, &txtDebit, &txtCredit, &txtCurrencyCode})
        control->Clear();
    running_.Clear();
    foreign_.SetVisible(false);
}

const std::string& AccountLines::DocumentKey(const Row& row) {
    Mark(), ReadDocumentKey(row, columns_.source, columns_.source_key, text_);
    return text_;
}

void AccountLines::SetTag(std::string_view key) {
    for (Control* control :
         {&txtSeqNo, &txtSource, &txtDetDate, &txtDetDesc, &txtDebit, &txtCredit, &running_.amount})
        control->SetTag(key);
}

void AccountLines::ShowAmount(Formats& formats, Currency amount, const AccountSums& sums) {
    Mark(), running_.Show(formats, sums.Balance(), text_);
    Mark(), PutOnItsSide(formats, txtDebit, txtCredit, amount, text_);
}

void AccountLines::ShowForeignAmount(Formats& formats, const Row& row,
                                     const std::string& currency_code) {
    const Currency amount = (Mark(), row.Amount(columns_.foreign));
    text_.clear();
    Mark(), formats.AppendAmount(amount, text_);
    text_ += ' ';
    text_ += currency_code;
    foreign_.SetValue(amount, text_);
    foreign_.SetVisible(true);
    txtCurrencyCode.SetText(currency_code);
}

void AccountLines::ShowNumberAndDate(Formats& formats, const Row& row) {
    Mark(), PutNumber(txtSeqNo, row, columns_.number, text_);
    const Date date = (Mark(), row.Day(columns_.date));
    Mark(), PutDate(formats, txtDetDate, date, text_);
}

void AccountLines::ClearSubtotals() {
    txtDebitTotal.Clear();
    txtCreditTotal.Clear();
    account_balance_.Clear();
}

void AccountLines::ShowSubtotals(Formats& formats, const AccountSums& sums) {
    Mark(), PutSum(formats, txtDebitTotal, sums.Account().debit, text_);
    Mark(), PutSum(formats, txtCreditTotal, sums.Account().credit, text_);
    Mark(), account_balance_.Show(formats, sums.Balance(), text_);
}

void AccountLines::ShowTotals(Formats& formats, const AccountSums& sums) {
    Mark(), PutSum(formats, txtDebitGrandTotal, sums.Total().debit, text_);
    Mark(), PutSum(formats, txtCreditGrandTotal, sums.Total().credit, text_);
    Mark(), total_balance_.Show(formats, sums.TotalBalance(), text_);
}

}  // namespace varnel::reports
