#pragma once

#include <memory>
#include <optional>
#include <string>

#include "framework/designed_report.h"
#include "host/report.h"

namespace varnel::framework {

/// The host contract, once for all reports: what the host sets is stored, what it asks is answered,
/// every procedure in form A. A report adds its title, its rows and its handlers.
class ReportBase : public DesignedReport, public IReport {
  public:
    struct Facts {
        std::int16_t title_text = 0;
        DateDisplay date_display = DateDisplay::kFromTo;
        /// Whether the report shows accounts by number where the company wants it.
        bool by_account_number = false;
        /// Whether the report asks for the start of the fiscal year.
        bool by_fiscal_year = false;
    };

    ReportBase(const Layout& layout, const Facts& facts);

    void IReport_Application(std::shared_ptr<Application> application) override;
    void IReport_DateFrom(Date date) override;
    void IReport_DateTo(Date date) override;
    DateDisplay IReport_DateDisplayOptions() override;
    bool IReport_NoHeaders() override;
    void IReport_DisplayForeignCurrency(bool display) override;
    bool IReport_UseCurrency() override;
    void IReport_Initialize() override;
    std::shared_ptr<BandedReport> IReport_ReportDesigner() override;
    std::string IReport_ReportTitle() override;

    void ActiveReport_Initialize() override;
    void ActiveReport_Terminate() override { snapshot_.reset(); }

  protected:
    /// For a report that has another title by its options.
    void SetTitleText(std::int16_t text) { facts_.title_text = text; }
    Date DateFrom() const { return date_from_; }
    Date DateTo() const { return date_to_; }
    /// Start of the fiscal year of the last date: as the host gave it when that date was set, if it
    /// could be asked then, else as it gives it now.
    Date FiscalYearStart();
    /// The company's setting "UseAccountNumbers", as it was at the start of the run.
    bool UseAccountNumbers() const { return use_account_numbers_; }
    bool DisplayForeignCurrency() const { return display_foreign_; }
    std::int32_t HomeCurrencyId() const { return home_currency_id_; }
    /// Asks the company, as it is now, for its home currency.
    void ReadHomeCurrency();
    Company& CurrentCompany() { return App().CurrentContext().CurrentCompany(); }

    CurrencyInfo& GetCurrencyInfo() { return CurrentCompany().GetCurrencyInfo(); }

  private:
    /// The company without what it remembers of earlier runs.
    Company& CompanyAsItIs();

    Facts facts_;
    Date date_from_;
    Date date_to_;
    std::optional<Date> fiscal_year_start_;
    bool display_foreign_ = false;
    bool use_account_numbers_ = false;
    std::int32_t home_currency_id_ = 0;
    std::shared_ptr<void> snapshot_;  // Of the company, for the run.
};

}  // namespace varnel::framework
