#include "company/database_company.h"

#include "company/services/query.h"
#include "company/services/setting_names.h"

namespace varnel::company {

DatabaseCompany::DatabaseCompany(CompanyDatabase& database, Settings& settings, Texts& texts,
                                 Language language, LocaleFormats& formats)
    : database_(database),
      settings_(settings),
      params_(database),
      fiscal_years_(database),
      currencies_(database, settings, params_, formats.Numbers().decimal_mark),
      currency_info_(database, currencies_, params_, formats),
      account_types_(database, texts, language),
      accounts_(database, settings, params_, account_types_),
      balances_(database, accounts_, *this),
      budgets_(database),
      reconciliations_(database) {}

std::string DatabaseCompany::Name() {
    return settings_.Find(setting::kCompanyName).value_or(std::string());
}

std::string DatabaseCompany::GetSetting(std::string_view name, std::string_view default_text,
                                        const ObjectRef& /*scope*/, std::int32_t /*index*/) {
    return settings_.Find(name).value_or(std::string(default_text));
}

std::int32_t DatabaseCompany::GetGLAccountParam(std::string_view name, std::string_view section) {
    return params_.Find(name, section);
}

std::optional<Date> DatabaseCompany::ItemAdjustmentStart() {
    if (!settings_.FindTruth(setting::kItemAdjustGL).value_or(false)) return std::nullopt;
    return settings_.FindDate(setting::kItemAdjustStartDate);
}

void DatabaseCompany::BeginRun() {
    settings_.Forget();
    uses_projects_.reset();
    params_.Forget();
    fiscal_years_.Forget();
    currencies_.Forget();
    account_types_.Forget();
    accounts_.Forget();
    balances_.Forget();
    budgets_.Forget();
}

bool DatabaseCompany::UsesProjects() {
    if (!uses_projects_) {
        const auto set = settings_.FindTruth(setting::kUseProjects);
        uses_projects_ = set ? *set : !Query(database_, "SELECT InProjId FROM ProjInfo")->AtEnd();
    }
    return *uses_projects_;
}

}  // namespace varnel::company
