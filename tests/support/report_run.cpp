#include "tests/support/report_run.h"

namespace varnel::test {

ReportRun::ReportRun(std::shared_ptr<IReport> tried) : report(std::move(tried)) {
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

void ReportRun::Post(std::int32_t account_id, const char* date, const char* home,
                     const char* foreign) {
    host->company.ledger.push_back({.account_id = account_id,
                                    .date = Date::ParseIso(date),
                                    .home = Currency::Parse(home),
                                    .foreign = Currency::Parse(foreign)});
}

void ReportRun::Revalue() {
    auto& rates = dynamic_cast<IExchangeRates&>(*report);
    const auto collection = std::make_shared<RateCollection>();
    collection->Set(2, Rate::Parse("1.2345"));
    collection->Set(3, Rate::Parse("1.5555"));
    rates.IExchangeRates_ExchangeRates(collection);
    rates.IExchangeRates_Reevaluate(true);
}

void ReportRun::FilterSegments(const std::string& ids, bool also_none) {
    auto& segments = dynamic_cast<ISegmentFilter&>(*report);
    segments.ISegmentFilter_SegmentFilter(ids);
    segments.ISegmentFilter_SegmentNoneFilter(also_none);
    segments.ISegmentFilter_SegmentFilterDisplay("Shop");
}

void ReportRun::Filter(const std::string& filter, const std::shared_ptr<FilterTool>& tool) {
    auto& filtered = dynamic_cast<IFilterableReport&>(*report);
    filtered.IFilterableReport_Filter(filter);
    filtered.IFilterableReport_FilterTool(tool);
}

void ReportRun::IncludeZeroBalances() {
    host->use_dialog = [](Form& form) {
        form.CheckBoxes()[0]->checked = true;
        form.CloseBox();
    };
    dynamic_cast<IReportConfig&>(*report).IReportConfig_ShowConfigurationScreen();
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
