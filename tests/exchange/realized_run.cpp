#include "tests/exchange/realized_run.h"

#include "tests/accounts/account_rows.h"

namespace varnel::test {

RowSet PaymentRows(const std::vector<PaymentRow>& rows) {
    constexpr const char* kCodes[] = {"", "CAD", "USD", "JPY"};
    RowSet set{{"PmtAmnt", "PmtDisc", "ExchangeRate", "PmtRate", "CurrPmtType", "Source",
                "InInvoiId", "InPmtId", "ExCurrencyId", "ExGLAcctId", "PmtDate", "Name", "InvoiId",
                "ChqNo", "CurrencyCode", "Descr", "FullCurrencyDescr"},
               {}};
    for (const auto& row : rows) {
        const Variant code = row.currency_id < 4 ? Variant(kCodes[row.currency_id]) : Variant();
        set.rows.push_back({row.amount, row.discount, row.invoice_rate, row.payment_rate, row.type,
                            row.source, row.invoice_key, row.payment_key, row.currency_id,
                            row.account_id, row.date, row.name, row.invoice, row.cheque, code,
                            "Money", "full description"});
    }
    return set;
}

RealizedRun::RealizedRun() : ReportRun(clsReport().RealizedExchProfitLoss()) {
    auto& currencies = host->company.currency_info.records;
    currencies[1].ar_account_id = 1'201;
    currencies[1].ap_account_id = 2'101;
    currencies[2] = {.id = 3, .code = "JPY", .description = "Yen", .decimals = 0};
    host->company.account_params = {{"CustGLAR", 1'200}, {"SuppGLAP", 2'100}};
    host->texts[5846] = "Currency";
    host->database.Answer(kLoadAll, AccountRows({{1'060, "1060", "Bank"},
                                                 {1'200, "1200", "Receivables"},
                                                 {1'201, "1201", "Receivables USD"},
                                                 {2'100, "2100", "Payables"},
                                                 {2'101, "2101", "Payables USD"}}));
}

CollectedBands RealizedRun::operator()(const std::vector<PaymentRow>& rows) {
    host->database.Answer("FROM CurrPmtDet_View", PaymentRows(rows));
    return Collect(*report->IReport_ReportDesigner());
}

}  // namespace varnel::test
