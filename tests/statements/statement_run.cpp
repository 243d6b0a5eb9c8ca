#include "tests/statements/statement_run.h"

namespace varnel::test {

namespace {

/// In the statements over the chart and in no other.
constexpr const char* kOfTheChart = "GroupType";

}  // namespace

StatementRun::StatementRun(std::shared_ptr<IReport> tried) : ReportRun(std::move(tried)) {
    host->company.type_classes[9] = 2;
    host->company.additional_income_types = "6,7";
    HaveFiscalYears({});
}

void StatementRun::HaveFiscalYears(const std::vector<std::pair<Date, Date>>& years) {
    RowSet rows{{"BegDate", "EndDate"}, {}};
    for (const auto& [first, last] : years) rows.rows.push_back({first, last});
    host->database.Answer("FiscalYearDet", std::move(rows));
}

void StatementRun::HoldForeignAmount() {
    host->database.Answer("AcctBalHome",
                          {{"ExCurrencyId", "ExChangeRate", "AcctBalForeign", "AcctBalHome"},
                           {{2, 1.2, Currency::FromWhole(100), Currency::FromWhole(120)}}});
}

void StatementRun::Prepare() {
    RowSet rows{
        {"InGLAcctId", "GLAcctId", "Descr", "Inactive", "AcctType", "GroupType", "ExCurrencyId"},
        {}};
    for (const auto& row : chart) {
        const std::string number = std::to_string(row.id);
        rows.rows.push_back({row.id == 0 ? Variant(Variant::Null{}) : Variant(row.id), number,
                             "Account " + number,
                             row.inactive ? Variant(true) : Variant(Variant::Null{}), row.type,
                             row.group_type, row.currency_id});
        host->company.account_types[row.id] = row.type;
        if (row.currency_id != 0) host->company.account_currencies[row.id] = row.currency_id;
    }
    host->database.Answer(kOfTheChart, std::move(rows));
}

CollectedBands StatementRun::operator()() {
    Prepare();
    return Collect(*report->IReport_ReportDesigner());
}

std::vector<std::string> StatementRun::Rows() { return test::Rows((*this)()); }

const RecordedCommand& StatementRun::ChartCommand() const {
    const RecordedCommand* found = nullptr;
    for (const auto& command : host->database.Commands())
        if (command->text.find(kOfTheChart) != std::string::npos) found = command.get();
    return *found;
}

CollectedBands AdjustmentIn(const CollectedBands& bands, int depth) {
    CollectedBands found;
    bool begun = false;  // The filter's own sub-report has no header.
    for (const auto& band : bands.bands) {
        begun = begun || (band.depth == 1 && band.section == "ReportHeader");
        if (!begun || band.depth != depth) continue;
        found.bands.push_back(band);
        found.bands.back().depth = 0;
    }
    return found;
}

std::vector<std::string> Rows(const CollectedBands& bands) {
    std::vector<std::string> rows;
    for (const auto& band : bands.Of("Detail")) {
        std::string& row = rows.emplace_back(band.Text("txtDescr").substr(8));
        for (const char* figure :
             {"txtTotal", "txtTotalCul", "txtTotalComp", "txtTotalDoll", "lblTotalDiff"})
            if (band.controls.contains(figure)) row += "|" + band.Text(figure);
    }
    return rows;
}

}  // namespace varnel::test
