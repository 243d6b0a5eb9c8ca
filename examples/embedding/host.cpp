// A program of your own that prints a general journal: it offers its ledger to the library, asks
// the factory for the report and writes it as text.

#include <iostream>
#include <map>

#include "drivers/memory_recordset.h"
#include "engine/engine.h"
#include "framework/cls_report.h"
#include "framework/create_object.h"
#include "render/text/text_measurer.h"
#include "render/text/text_writer.h"

namespace {

using namespace varnel;

constexpr std::int32_t kCad = 1;
constexpr std::int32_t kUsd = 2;

/// The ledger, as the journal's query would return it.
std::shared_ptr<Recordset> JournalRows() {
    const auto line = [](std::int32_t id, std::int32_t entry, Currency amount, const char* account,
                         const char* name, std::int32_t currency, Currency foreign) {
        return std::vector<Variant>{id,
                                    currency,
                                    entry,
                                    amount,
                                    foreign,
                                    Date::FromYearMonthDay(2025, 3, 31),
                                    "March rent and a supplier in Boston",
                                    "R-0331",
                                    "GJ",
                                    entry,
                                    Variant::Null{},
                                    Variant::Null{},
                                    account,
                                    name,
                                    Variant::Null{},
                                    currency,
                                    currency == kUsd ? "USD" : "CAD",
                                    ""};
    };
    const auto cad = [](const char* text) { return Currency::Parse(text); };
    return std::make_shared<drivers::MemoryRecordset>(
        std::vector<std::string>{"InGLDetId", "ExCurrencyId", "SeqNo", "DetAmnt", "ForeignAmnt",
                                 "DetDate", "DetDesc", "DetRef", "Source", "ExSrcKeyVal", "Remarks",
                                 "ExProjId", "GLAcctId", "Descr", "ProjId", "InCurrencyId",
                                 "CurrencyCode", "CurrencyFullDescr"},
        std::vector<std::vector<Variant>>{
            line(1, 7, cad("1850"), "5300", "Rent", kCad, cad("1850")),
            line(2, 7, cad("1372.50"), "5410", "Packaging", kUsd, cad("1000")),
            line(3, 7, cad("-3222.50"), "1010", "Bank", kCad, cad("-3222.50"))});
}

/// A command of your database. This one has only one answer.
class MyCommand : public Command {
  public:
    void SetTimeout(int) override {}
    void SetActiveConnection(const std::string&) override {}
    void SetText(const std::string&) override {}
    void AppendParameter(const Variant&) override {}
    std::shared_ptr<Recordset> Execute(int) override { return JournalRows(); }
};

/// Your application. One object can play several of the host's parts; services that no report of
/// yours needs may be left out.
class MyApplication final : public Application,
                            private Context,
                            private Company,
                            private CompanyDatabase,
                            private CurrencyInfo,
                            private Formats,
                            private MessageService {
  public:
    std::string GetText(std::int16_t number) override { return texts_[number]; }
    Date SessionDate() override { return Date::FromYearMonthDay(2025, 4, 2); }
    Context& CurrentContext() override { return *this; }
    Formats& GetFormats() override { return *this; }
    MessageService& Messages() override { return *this; }

  private:
    Company& CurrentCompany() override { return *this; }
    CompanyDatabase& Database() override { return *this; }

    std::string Name() override { return "Northern Kettle Company"; }
    std::string GetSetting(std::string_view name, std::string_view default_text, const ObjectRef&,
                           std::int32_t) override {
        return name == "UseAccountNumbers" ? "True" : std::string(default_text);
    }
    Date FiscalYearStart(Date date) override {
        return Date::FromYearMonthDay(date.Civil().year, 1, 1);
    }
    CurrencyInfo& GetCurrencyInfo() override { return *this; }

    std::string ConnectionString() override { return "my books"; }
    int DatabaseType() override { return 0; }
    std::shared_ptr<Command> NewCommand() override { return std::make_shared<MyCommand>(); }

    std::int32_t CieHomeCurrencyId() override { return kCad; }
    bool CieIsForeignCurrencyUsed() override { return true; }
    void FormatWorldCurrency(Currency amount, std::int32_t, std::string& out) override {
        amount.AppendText(out, 2);
    }

    void AppendShortDate(Date date, std::string& out) override { date.AppendIso(out); }
    void AppendAmount(Currency amount, int decimals, std::string& out) override {
        amount.AppendText(out, decimals);
    }
    void AppendNumber(double value, int, std::string& out) override {
        out += std::to_string(value);
    }

    std::string Message(std::int32_t number, std::string_view, std::span<const Variant>) override {
        return std::to_string(number);
    }
    void ShowMessageBox(const std::string& text) override { std::cerr << text << '\n'; }

    std::map<std::int16_t, std::string> texts_ = {{1376, "All dates"}, {1641, "Grand-Total:"},
                                                  {1912, "Date"},      {2656, "Debit"},
                                                  {2657, "Credit"},    {3012, "from"},
                                                  {3013, "to"},        {5846, "Currency"},
                                                  {5860, "entries"},   {6173, "General &Journal"},
                                                  {30025, "Account"},  {30045, "Entry"},
                                                  {30046, "Project"}};
};

}  // namespace

int main() {
    const auto application = std::make_shared<MyApplication>();
    const auto factory = std::dynamic_pointer_cast<clsReport>(CreateObject("Varnel.clsReport"));

    const auto report = factory->GeneralJournal();
    report->IReport_Application(application);
    report->IReport_DateFrom(Date::ParseIso("2025-03-01"));
    report->IReport_DateTo(Date::ParseIso("2025-03-31"));
    report->IReport_DisplayForeignCurrency(true);
    report->IReport_Initialize();

    render::StdoutSink output;
    const render::TextOptions options{.columns = 96};
    const auto design = report->IReport_ReportDesigner();
    const Twips width = design->GetSurface().Width();
    render::TextMeasurer measurer({width, options.columns});
    render::TextWriter writer(output, options);
    engine::RunToPlacedBands(*design, {.title = report->IReport_ReportTitle()}, width, measurer,
                             writer);
    output.Flush();
}
