#include "tests/exchange/unrealized_detail_run.h"

#include "tests/accounts/account_rows.h"

namespace varnel::test {

RowSet LineRows(const std::vector<ForeignLine>& lines) {
    RowSet set{{"InGLAcctId", "ExCurrencyId", "DetDate", "AcctBalForeign", "AcctBalHome", "DetDesc",
                "Source", "ExSrcKeyVal", "CurrencyCode", "Descr"},
               {}};
    for (const auto& line : lines)
        set.rows.push_back({1'060, 2, line.date, line.foreign, line.home, line.description,
                            line.source, line.source_key, "USD", "US dollar"});
    return set;
}

RowSet BalanceRows(const std::vector<BalanceRow>& rows) {
    RowSet set{{"InGLAcctId", "ExCurrencyId", "DetDate", "SeqNo", "DetDesc", "ExChangeRate",
                "AcctBalForeign", "AcctBalHome", "CurrencyCode", "Descr"},
               {}};
    for (const auto& row : rows)
        set.rows.push_back({1'060, row.currency_id, "2024-12-01", 7, "Sale", row.booked_rate,
                            Currency::Parse(row.foreign), Currency::Parse(row.home), "USD",
                            "US dollar"});
    return set;
}

DetailRun::DetailRun() : ReportRun(clsReport().UnRealExchProfitLossDetail()) {
    host->company.currency_info.records.pop_back();
    host->company.currency_info.rate_table[2][Date::ParseIso("2025-01-01")] = Rate::Parse("1.3725");
    host->database.Answer(kLoadAll, AccountRows({{1'060, "1060", "Bank USD"}}));
    Forward({});
    Designer().Put("GLAcctId", 1'060);
    Designer().Put("ExCurrencyId", 2);
}

CollectedBands DetailRun::operator()(const std::vector<ForeignLine>& lines) {
    host->database.Answer(kLinesStatement, LineRows(lines));
    return Collect(Designer());
}

void DetailRun::Forward(const std::vector<BalanceRow>& rows) {
    host->database.Answer(kBalanceStatement, BalanceRows(rows));
}

std::vector<RecordedCommand> DetailRun::Asked(const std::string& part) const {
    std::vector<RecordedCommand> asked;
    for (const auto& command : host->database.Commands())
        if (command->text.find(part) != std::string::npos) asked.push_back(*command);
    return asked;
}

namespace {

std::string Figures(const CollectedBand& band, const std::string& prefix) {
    std::string figures;
    for (const char* name : {"Foreign", "Home", "Revalued", "Gain"}) {
        const auto& text = band.Text(prefix + name);
        figures += (figures.empty() ? "" : " ") + (text.empty() ? "-" : text);
    }
    return figures;
}

}  // namespace

std::vector<std::string> DetailFigures(const CollectedBands& bands) {
    std::vector<std::string> lines;
    for (const auto& band : bands.Of("Detail")) lines.push_back(Figures(band, "txt"));
    return lines;
}

std::string ForwardFigures(const CollectedBands& bands) {
    const auto headers = bands.Of("ghGLAcct");
    return headers.empty() ? "" : Figures(headers.front(), "txtForward");
}

std::string FooterFigures(const CollectedBands& bands, const std::string& line) {
    const auto footers = bands.Of("ReportFooter");
    return footers.empty() ? "" : Figures(footers.front(), "txt" + line);
}

}  // namespace varnel::test
