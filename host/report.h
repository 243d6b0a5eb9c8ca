#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/application.h"
#include "host/banded_report.h"
#include "host/date.h"

namespace varnel {

/// How the host asks its user for a report's dates (`IReport_DateDisplayOptions`).
enum class DateDisplay : std::int16_t { kNone = 0, kFromTo = 1, kClosingDate = 2 };

/// What every report offers its host. The setters only store; work begins when the engine runs the
/// report.
///
/// Companion interfaces are reached by dynamic_cast from this one: a report that does not have one
/// gives null.
class IReport {
  public:
    virtual ~IReport() = default;

    virtual void IReport_Application(std::shared_ptr<Application> application) = 0;
    /// Period limits, both included. 1899-12-31 and 9999-12-31 are open limits.
    virtual void IReport_DateFrom(Date date) = 0;
    virtual void IReport_DateTo(Date date) = 0;
    virtual DateDisplay IReport_DateDisplayOptions() = 0;
    virtual bool IReport_NoHeaders() = 0;
    virtual void IReport_DisplayForeignCurrency(bool display) = 0;
    /// Whether the company works in more than one currency.
    virtual bool IReport_UseCurrency() = 0;
    /// Reads what the report needs of the company; call it after the application is set.
    virtual void IReport_Initialize() = 0;
    /// The report itself, for the engine.
    virtual std::shared_ptr<BandedReport> IReport_ReportDesigner() = 0;
    virtual std::string IReport_ReportTitle() = 0;
};

/// A report that can be restricted to segments. Nothing is validated when stored.
class ISegmentFilter {
  public:
    virtual ~ISegmentFilter() = default;
    /// Comma-separated segment ids; empty takes all.
    virtual void ISegmentFilter_SegmentFilter(const std::string& ids) = 0;
    /// The filter in words, for print.
    virtual void ISegmentFilter_SegmentFilterDisplay(const std::string& text) = 0;
    /// Also take lines that have no segment.
    virtual void ISegmentFilter_SegmentNoneFilter(bool also_none) = 0;
};

/// A report that accepts criteria of the user: "criteria|ordering", SQL without its keywords.
class IFilterableReport {
  public:
    virtual ~IFilterableReport() = default;
    virtual void IFilterableReport_Filter(const std::string& filter) = 0;
    virtual void IFilterableReport_FilterTool(std::shared_ptr<FilterTool> tool) = 0;
};

/// A report with options of its own, asked of the user in a modal dialog.
class IReportConfig {
  public:
    virtual ~IReportConfig() = default;
    virtual void IReportConfig_ShowConfigurationScreen() = 0;
};

/// Where a report writes what it prints so that two runs can be compared. Keys are the same in
/// every run.
class ComparableReportSink {
  public:
    virtual ~ComparableReportSink() = default;
    virtual void BeginGroup(const std::string& key, const std::string& caption) = 0;
    struct NamedValue {
        std::string name;
        Variant value;
    };
    virtual void AddRow(const std::string& key, std::span<const NamedValue> columns) = 0;
    virtual void EndGroup() = 0;
};

class IComparableReport {
  public:
    virtual ~IComparableReport() = default;
    /// The library's name, a point and the class name.
    virtual std::string IComparableReport_FullName() = 0;
    virtual void IComparableReport_ComparableReportGen(
        std::shared_ptr<ComparableReportSink> sink) = 0;
};

/// What a spreadsheet add-in asks of a report.
class IExcelAddInExport {
  public:
    virtual ~IExcelAddInExport() = default;
    virtual std::string IExcelAddInExport_ProjectIds() = 0;
    virtual std::string IExcelAddInExport_ExcelAddInTemplate() = 0;
};

}  // namespace varnel
