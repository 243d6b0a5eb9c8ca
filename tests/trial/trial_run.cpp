#include "tests/trial/trial_run.h"

namespace varnel::test {

namespace {

constexpr const char* kCodes[] = {"", "CAD", "USD", "EUR"};

Variant OrNull(bool present, Variant value) { return present ? value : Variant(Variant::Null{}); }

drivers::MemoryRecordset::Values AccountValues(const ChartAccount& account) {
    const bool has_currency = account.currency_id != 0;
    return {account.id,
            std::to_string(account.id),
            account.type,
            OrNull(has_currency, account.currency_id),
            "Account " + std::to_string(account.id),
            OrNull(account.inactive, true),
            OrNull(has_currency, kCodes[account.currency_id]),
            account.gifi};
}

const std::vector<std::string> kAccountColumns{"InGLAcctId",   "GLAcctId",  "AcctType",
                                               "ExCurrencyId", "Descr",     "Inactive",
                                               "CurrencyCode", "GIFIAcctId"};

}  // namespace

void TrialRun::Post(std::int32_t account_id, const char* date, const char* home,
                    const char* foreign, std::int32_t currency_id) {
    ReportRun::Post(account_id, date, home, foreign);
    line_currencies.push_back(currency_id);
}

Variant TrialRun::RemarkOf(std::int32_t line) const {
    const auto found = remarks.find(line);
    return found == remarks.end() ? Variant(Variant::Null{}) : Variant(found->second);
}

RowSet TrialRun::Accounts() const {
    RowSet rows{kAccountColumns, {}};
    for (const auto& account : chart) rows.rows.push_back(AccountValues(account));
    return rows;
}

// Joined as the statements join them: an account without lines has one row.
RowSet TrialRun::AccountsWithLines() const {
    RowSet rows{kAccountColumns, {}};
    for (const char* name :
         {"InGLDetId", "DetDate", "DetAmnt", "ForeignAmnt", "GLDetExCurrencyId", "Source",
          "ExSrcKeyVal", "DetDesc", "SeqNo", "DetRef", "Remarks", "GroupType"})
        rows.columns.push_back(name);
    for (const auto& account : chart) {
        const std::size_t before = rows.rows.size();
        for (std::size_t i = 0; i < host->company.ledger.size(); ++i) {
            const auto& line = host->company.ledger[i];
            if (line.account_id != account.id || line.date < from || line.date > to) continue;
            const auto number = static_cast<std::int32_t>(i + 1);
            auto values = AccountValues(account);
            for (const Variant& value :
                 {Variant(number), Variant(line.date), Variant(line.home), Variant(line.foreign),
                  Variant(line_currencies[i]), Variant("INV"), Variant(100 + number),
                  Variant("Sale"), Variant(number), Variant("R-" + std::to_string(number)),
                  RemarkOf(number), Variant(account.group_type)})
                values.push_back(value);
            rows.rows.push_back(std::move(values));
        }
        if (rows.rows.size() > before) continue;
        auto values = AccountValues(account);
        values.resize(rows.columns.size(), Variant::Null{});
        values.back() = account.group_type;
        rows.rows.push_back(std::move(values));
    }
    return rows;
}

void TrialRun::Prepare() {
    for (const auto& account : chart) host->company.account_types[account.id] = account.type;
    host->database.Answer("FROM GLAcct LEFT JOIN", Accounts());
    for (const char* joined : {"SubQuery", "LEFT JOIN GLDet ON"})
        host->database.Answer(joined, AccountsWithLines());
}

CollectedBands TrialRun::operator()() {
    Prepare();
    return Collect(*report->IReport_ReportDesigner());
}

}  // namespace varnel::test
