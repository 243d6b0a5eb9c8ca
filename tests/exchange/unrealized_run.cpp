#include "tests/exchange/unrealized_run.h"

#include "tests/accounts/account_rows.h"

namespace varnel::test {

RowSet ForeignRows(const std::vector<ForeignRow>& rows) {
    constexpr const char* kCodes[] = {"", "CAD", "USD", "EUR"};
    RowSet set{{"InGLAcctId", "GLAcctId", "ExCurrencyId", "DetDate", "SeqNo", "DetDesc",
                "ExChangeRate", "AcctBalForeign", "AcctBalHome", "CurrencyCode", "Descr"},
               {}};
    for (const auto& row : rows) {
        const auto entry = static_cast<std::int32_t>(set.rows.size() + 1);
        const char* code = kCodes[row.currency_id];
        set.rows.push_back({row.account_id, std::to_string(row.account_id), row.currency_id,
                            "2025-01-15", entry, "Sale", row.booked_rate,
                            Currency::Parse(row.foreign), Currency::Parse(row.home), code,
                            std::string("Money ") + code});
    }
    return set;
}

UnrealizedRun::UnrealizedRun() : ReportRun(clsReport().UnRealExchProfitLoss()) {
    auto& currencies = host->company.currency_info;
    const auto start = Date::ParseIso("2025-01-01");
    currencies.rate_table[2][start] = Rate::Parse("1.3725");
    currencies.rate_table[3][start] = Rate::Parse("1.47");
    currencies.control_account_ids = "1200,2100";
    host->company.other_revalued_account_ids = "1500";
    host->texts[2710] = "Subtotal:";
    host->texts[5914] = "Exchange rates ({0})";
    host->database.Answer(kLoadAll, AccountRows({{1'060, "1060", "Bank USD"},
                                                 {1'065, "1065", "Bank EUR"},
                                                 {1'200, "1200", "Receivables"}}));
}

CollectedBands UnrealizedRun::operator()(const std::vector<ForeignRow>& rows) {
    host->database.Answer("SUM(ForeignAmnt)", ForeignRows(rows));
    return Collect(*report->IReport_ReportDesigner());
}

}  // namespace varnel::test
