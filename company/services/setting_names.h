#pragma once

#include <string_view>

/// Names in the tables CompanySetting and GLAccountParam that this host reads itself. Truth values
/// are "True" and "False" (1, 0 and -1 are read too), dates are ISO, ids decimal. Names ignore
/// case.
namespace varnel::company {

namespace setting {
inline constexpr std::string_view kCompanyName = "CompanyName";
/// Locale of texts and formats, when the host is given none.
inline constexpr std::string_view kLanguage = "Language";
/// WorldCurrency.InCurrencyId of the home currency.
inline constexpr std::string_view kHomeCurrencyId = "HomeCurrencyId";
/// When not set: whether there is more than one currency.
inline constexpr std::string_view kUseForeignCurrency = "UseForeignCurrency";
/// When not set: whether there is a project.
inline constexpr std::string_view kUseProjects = "UseProjects";
inline constexpr std::string_view kItemAdjustGL = "ItemAdjustGL";
/// First day that inventory adjustments are posted for, while ItemAdjustGL is on.
inline constexpr std::string_view kItemAdjustStartDate = "ItemAdjustStartDate";
/// The date the company is worked at, when the host is given none.
inline constexpr std::string_view kSessionDate = "SessionDate";
}  // namespace setting

namespace account_param {
inline constexpr std::string_view kUnrealizedGainLoss = "UnrealizedGainLoss";
inline constexpr std::string_view kReceivable = "CustGLAR";
inline constexpr std::string_view kPayable = "SuppGLAP";
/// The section whose accounts, under any name, are revalued beside banks and control accounts.
inline constexpr std::string_view kRevaluedSection = "Revalued";
}  // namespace account_param

}  // namespace varnel::company
