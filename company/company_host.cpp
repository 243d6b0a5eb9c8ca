#include "company/company_host.h"

#include <ctime>

#include "company/company_address.h"
#include "company/open_database.h"
#include "company/required_tables.h"
#include "company/scripted_dialogs.h"
#include "company/services/setting_names.h"
#include "host/error.h"

namespace varnel::company {

namespace {

Date Today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return Date::FromYearMonthDay(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

std::string LocaleOf(const HostOptions& options, Settings& settings) {
    if (!options.language.empty()) return options.language;
    const auto set = settings.Find(setting::kLanguage);
    return set && !set->empty() ? *set : "en-CA";
}

Date SessionDateOf(const HostOptions& options, Settings& settings) {
    if (options.session_date) return *options.session_date;
    const auto set = settings.FindDate(setting::kSessionDate);
    return set ? *set : Today();
}

/// Without it no report could show an amount.
void RequireHomeCurrency(CurrencyInfo& info, const std::string& database_name) {
    try {
        info.GetCurrencies().Item(info.CieHomeCurrencyId());
    } catch (const Error& error) {
        throw Error(error_number::kDatabase, "Company",
                    database_name + " has no home currency: set " +
                        std::string(setting::kHomeCurrencyId) +
                        " in CompanySetting to the InCurrencyId of a WorldCurrency (" +
                        error.Description() + ")");
    }
}

}  // namespace

CompanyHost::CompanyHost(std::unique_ptr<CompanyDatabase> database, const HostOptions& options)
    : database_(std::move(database)),
      settings_(*database_),
      locale_(LocaleOf(options, settings_)),
      language_(LanguageOf(locale_)),
      texts_(language_, options.missing_text),
      formats_(locale_, options.date_style),
      messages_(language_, formats_, options.message_sink),
      session_date_(SessionDateOf(options, settings_)),
      dialogs_(options.dialogs ? options.dialogs : std::make_shared<ScriptedDialogs>()),
      company_(*database_, settings_, texts_, language_, formats_) {}

std::shared_ptr<CompanyFilterTool> CompanyHost::NewFilterTool() {
    return std::make_shared<CompanyFilterTool>(*database_, language_);
}

std::shared_ptr<CompanyHost> OpenCompany(std::unique_ptr<CompanyDatabase> database,
                                         const std::string& name, const HostOptions& options) {
    RequireCompanyTables(*database, name);
    auto host = std::make_shared<CompanyHost>(std::move(database), options);
    RequireHomeCurrency(host->CurrentCompany().GetCurrencyInfo(), name);
    host->CurrentCompany().UseRates(options.rates);
    return host;
}

std::shared_ptr<CompanyHost> OpenCompany(const std::string& address, const HostOptions& options) {
    const auto place = ParseCompanyAddress(address);
    return OpenCompany(OpenDatabase(place, options.database_type, options.cancelled), address,
                       options);
}

}  // namespace varnel::company
