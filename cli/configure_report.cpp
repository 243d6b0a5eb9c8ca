#include "cli/configure_report.h"

#include "cli/errors.h"
#include "cli/segments.h"
#include "host/error.h"

namespace varnel::cli {

namespace {

void SetSegments(IReport& report, company::CompanyHost& host, const RunRequest& request,
                 const RunSettings& settings) {
    auto* const filter = dynamic_cast<ISegmentFilter*>(&report);
    if (filter == nullptr) return;
    std::string ids;
    for (const auto id : settings.segments) ids += (ids.empty() ? "" : ",") + std::to_string(id);
    filter->ISegmentFilter_SegmentFilter(ids);
    filter->ISegmentFilter_SegmentNoneFilter(request.no_segment);
    filter->ISegmentFilter_SegmentFilterDisplay(
        DescribeSegments(host, settings.segments, request.no_segment));
}

void SetFilter(IReport& report, company::CompanyHost& host, const std::string& filter) {
    auto* const filterable = dynamic_cast<IFilterableReport*>(&report);
    if (filterable == nullptr) return;
    filterable->IFilterableReport_Filter(filter);
    filterable->IFilterableReport_FilterTool(host.NewFilterTool());
}

/// As a host does whose user wants foreign balances revalued; rates that are given say so too.
void SetRates(IReport& report, company::CompanyHost& host, const RunRequest& request,
              const RunSettings& settings) {
    auto* const rates = dynamic_cast<IExchangeRates*>(&report);
    if (rates == nullptr || (!request.revalue && settings.rates.empty())) return;
    host.CurrentCompany().GetCurrencyInfo().ConfigureExchangeRates(*rates, settings.to, true, {});
}

/// Late-bound, as hosts reach the properties of a report.
void PutProperty(IReport& report, const RunSettings::Property& property) {
    try {
        report.IReport_ReportDesigner()->Put(property.name, property.value);
    } catch (const Error& error) {
        throw UsageError("--property " + property.name + ": " + error.Description());
    }
}

}  // namespace

void ConfigureReport(IReport& report, const std::shared_ptr<company::CompanyHost>& host,
                     const RunRequest& request, const RunSettings& settings) {
    report.IReport_Application(host);
    report.IReport_DateFrom(settings.from);
    report.IReport_DateTo(settings.to);
    report.IReport_DisplayForeignCurrency(request.foreign);
    SetSegments(report, *host, request, settings);
    SetFilter(report, *host, request.filter);
    SetRates(report, *host, request, settings);
    for (const auto& property : settings.properties) PutProperty(report, property);
    report.IReport_Initialize();
}

}  // namespace varnel::cli
