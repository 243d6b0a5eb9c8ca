#include "tests/trial/trial_run.h"

#include <algorithm>

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

TrialRun::TrialRun(std::shared_ptr<IReport> tried) : report(std::move(tried)) {
    auto& company = host->company;
    company.settings["UseAccountNumbers"] = "True";
    company.account_params = {{"GLRtainEarn", kRetainedEarnings},
                              {"GLCurntEarn", kCurrentEarnings}};
    for (const char* start : {"2024-01-01", "2025-01-01"})
        company.fiscal_year_starts.push_back(Date::ParseIso(start));
    company.currency_info.unrealized_account_id = kUnrealized;
    company.currency_info.records.push_back({.id = 2, .code = "USD", .description = "US dollar"});
    company.currency_info.records.push_back({.id = 3, .code = "EUR", .description = "Euro"});
    report->IReport_Application(host);
    report->IReport_DateFrom(from);
    report->IReport_DateTo(to);
    report->IReport_Initialize();
}

void TrialRun::Post(std::int32_t account_id, const char* date, const char* home,
                    const char* foreign, std::int32_t currency_id) {
    host->company.ledger.push_back({.account_id = account_id,
                                    .date = Date::ParseIso(date),
                                    .home = Currency::Parse(home),
                                    .foreign = Currency::Parse(foreign)});
    line_currencies.push_back(currency_id);
}

void TrialRun::Revalue() {
    auto& rates = dynamic_cast<IExchangeRates&>(*report);
    const auto collection = std::make_shared<RateCollection>();
    collection->Set(2, Rate::Parse("1.2345"));
    collection->Set(3, Rate::Parse("1.5555"));
    rates.IExchangeRates_ExchangeRates(collection);
    rates.IExchangeRates_Reevaluate(true);
}

void TrialRun::FilterSegments(const std::string& ids, bool also_none) {
    auto& segments = dynamic_cast<ISegmentFilter&>(*report);
    segments.ISegmentFilter_SegmentFilter(ids);
    segments.ISegmentFilter_SegmentNoneFilter(also_none);
    segments.ISegmentFilter_SegmentFilterDisplay("Shop");
}

void TrialRun::Filter(const std::string& filter, const std::shared_ptr<FilterTool>& tool) {
    auto& filtered = dynamic_cast<IFilterableReport&>(*report);
    filtered.IFilterableReport_Filter(filter);
    filtered.IFilterableReport_FilterTool(tool);
}

void TrialRun::IncludeZeroBalances() {
    host->use_dialog = [](Form& form) {
        form.CheckBoxes()[0]->checked = true;
        form.CloseBox();
    };
    dynamic_cast<IReportConfig&>(*report).IReportConfig_ShowConfigurationScreen();
}

RowSet TrialRun::Accounts() const {
    RowSet rows{kAccountColumns, {}};
    for (const auto& account : chart) rows.rows.push_back(AccountValues(account));
    return rows;
}

// Joined as the statement of the detail joins them: an account without lines has one row.
RowSet TrialRun::AccountsWithLines() const {
    RowSet rows{kAccountColumns, {}};
    for (const char* name : {"InGLDetId", "DetDate", "DetAmnt", "ForeignAmnt", "GLDetExCurrencyId",
                             "Source", "ExSrcKeyVal", "DetDesc", "SeqNo"})
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
                  Variant("Sale"), Variant(number)})
                values.push_back(value);
            rows.rows.push_back(std::move(values));
        }
        if (rows.rows.size() > before) continue;
        auto values = AccountValues(account);
        values.resize(rows.columns.size(), Variant::Null{});
        rows.rows.push_back(std::move(values));
    }
    return rows;
}

void TrialRun::Prepare() {
    for (const auto& account : chart) host->company.account_types[account.id] = account.type;
    host->database.Answer("FROM GLAcct LEFT JOIN", Accounts());
    host->database.Answer("SubQuery", AccountsWithLines());
}

CollectedBands TrialRun::operator()() {
    Prepare();
    return Collect(*report->IReport_ReportDesigner());
}

std::vector<std::string> Shown(const CollectedBands& bands, const std::string& section,
                               const std::vector<std::string>& controls) {
    std::vector<std::string> shown;
    for (const auto& band : bands.Of(section)) {
        std::string& line = shown.emplace_back();
        for (const auto& name : controls) {
            if (&name != &controls.front()) line += '|';
            if (band[name].visible) line += band[name].text;
        }
    }
    return shown;
}

}  // namespace varnel::test
