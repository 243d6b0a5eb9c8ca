#include "tests/journal/journal_run.h"

#include <utility>

namespace varnel::test {

RowSet JournalRows(const std::vector<JournalLine>& lines) {
    RowSet rows{{"InGLDetId", "ExCurrencyId", "SeqNo", "DetAmnt", "ForeignAmnt", "DetDate",
                 "DetDesc", "DetRef", "Source", "ExSrcKeyVal", "Remarks", "ExProjId", "GLAcctId",
                 "Descr", "ProjId", "InCurrencyId", "CurrencyCode", "CurrencyFullDescr"},
                {}};
    for (const auto& line : lines)
        rows.rows.push_back({static_cast<std::int32_t>(rows.rows.size() + 1), line.currency_id,
                             line.entry, line.amount, line.foreign, line.date, line.description,
                             line.reference, line.source, line.source_key, line.remarks,
                             line.project_id, line.account_number, line.account, line.project,
                             line.currency_id, line.currency_code, "full description"});
    return rows;
}

JournalRun::JournalRun(std::shared_ptr<IReport> tried) : ReportRun(std::move(tried)) {
    host->texts[5860] = "entries";
}

CollectedBands JournalRun::operator()(const std::vector<JournalLine>& lines) {
    host->database.Answer("FROM (((GLDet", JournalRows(lines));
    return Collect(*report->IReport_ReportDesigner());
}

}  // namespace varnel::test
