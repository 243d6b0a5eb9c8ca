#include "framework/report_base.h"

#include "framework/query_runner.h"
#include "framework/standard_header.h"
#include "framework/texts.h"
#include "host/member_table.h"

namespace varnel::framework {

namespace {

constexpr Member<ReportBase> kMembers[] = {
    {"IReport_Application", nullptr,
     [](ReportBase& r, const Variant& v) { r.IReport_Application(ObjectAs<Application>(v)); }},
    {"IReport_DateFrom", nullptr,
     [](ReportBase& r, const Variant& v) { r.IReport_DateFrom(v.ToDate()); }},
    {"IReport_DateTo", nullptr,
     [](ReportBase& r, const Variant& v) { r.IReport_DateTo(v.ToDate()); }},
    {"IReport_DateDisplayOptions",
     [](ReportBase& r) -> Variant {
         return static_cast<std::int16_t>(r.IReport_DateDisplayOptions());
     }},
    {"IReport_NoHeaders", [](ReportBase& r) -> Variant { return r.IReport_NoHeaders(); }},
    {"IReport_DisplayForeignCurrency", nullptr,
     [](ReportBase& r, const Variant& v) { r.IReport_DisplayForeignCurrency(v.ToBool()); }},
    {"IReport_UseCurrency", [](ReportBase& r) -> Variant { return r.IReport_UseCurrency(); }},
    {"IReport_Initialize", nullptr, nullptr,
     [](ReportBase& r, std::span<const Variant>) -> Variant {
         r.IReport_Initialize();
         return {};
     }},
    {"IReport_ReportDesigner",
     [](ReportBase& r) -> Variant { return ObjectRef(r.IReport_ReportDesigner()); }},
    {"IReport_ReportTitle", [](ReportBase& r) -> Variant { return r.IReport_ReportTitle(); }},
};

}  // namespace

ReportBase::ReportBase(const Layout& layout, const Facts& facts)
    : DesignedReport(layout), facts_(facts) {
    Members().Add<ReportBase>(*this, kMembers);
}

void ReportBase::IReport_Application(std::shared_ptr<Application> application) {
    Guard("IReport_Application", [&] {
        fiscal_year_start_.reset();
        SetApplication(std::move(application));
    });
}

void ReportBase::IReport_DateFrom(Date date) {
    Guard("IReport_DateFrom", [&] { date_from_ = date; });
}

void ReportBase::IReport_DateTo(Date date) {
    Guard("IReport_DateTo", [&] {
        date_to_ = date;
        fiscal_year_start_.reset();
        if (facts_.by_fiscal_year && AppRef() != nullptr)
            Mark(), fiscal_year_start_ = CompanyAsItIs().FiscalYearStart(date);
    });
}

void ReportBase::ReadHomeCurrency() {
    Mark(), home_currency_id_ = CompanyAsItIs().GetCurrencyInfo().CieHomeCurrencyId();
}

Company& ReportBase::CompanyAsItIs() {
    Company& company = CurrentCompany();
    company.BeginRun();
    return company;
}

Date ReportBase::FiscalYearStart() {
    return fiscal_year_start_ ? *fiscal_year_start_ : CurrentCompany().FiscalYearStart(date_to_);
}

DateDisplay ReportBase::IReport_DateDisplayOptions() { return facts_.date_display; }

bool ReportBase::IReport_NoHeaders() { return false; }

void ReportBase::IReport_DisplayForeignCurrency(bool display) {
    Guard("IReport_DisplayForeignCurrency", [&] { display_foreign_ = display; });
}

bool ReportBase::IReport_UseCurrency() {
    bool used = false;
    Guard("IReport_UseCurrency",
          [&] { Mark(), used = GetCurrencyInfo().CieIsForeignCurrencyUsed(); });
    return used;
}

void ReportBase::IReport_Initialize() {
    Guard("IReport_Initialize", [&] { ReadHomeCurrency(); });
}

std::shared_ptr<BandedReport> ReportBase::IReport_ReportDesigner() { return shared_from_this(); }

std::string ReportBase::IReport_ReportTitle() {
    std::string title;
    Guard("IReport_ReportTitle", [&] { Mark(), title = PlainText(App(), facts_.title_text); });
    return title;
}

// What the host fails at costs that, and not what comes after it.
void ReportBase::ActiveReport_Initialize() {
    constexpr std::string_view kProcedure = "ActiveReport_Initialize";
    DesignedReport::ActiveReport_Initialize();
    Guard(kProcedure,
          [&] { Mark(), snapshot_ = App().CurrentContext().Database().HoldSnapshot(); });
    Guard(kProcedure, [&] { ReadHomeCurrency(); });
    Guard(kProcedure, [&] {
        if (facts_.by_account_number)
            Mark(), use_account_numbers_ = ReadSwitch(App(), "UseAccountNumbers");
    });
    Guard(kProcedure,
          [&] { Mark(), FillStandardHeader(GetSurface(), App(), IReport_ReportTitle()); });
}

}  // namespace varnel::framework
