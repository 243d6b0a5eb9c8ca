#pragma once

#include <string>
#include <string_view>

#include "company/formats/number_style.h"

namespace varnel::company {

/// What the locale data says about a locale. Narrow no-break spaces become no-break spaces (fonts
/// have the latter), direction marks go, and digits are always 0 to 9 and the calendar Gregorian.
struct LocaleData {
    NumberStyle numbers;
    std::string short_date_pattern;
};

/// Locale ids are "fr-CA" or "fr_CA". Raises error 5 for a locale that there is no data for.
LocaleData ReadLocale(std::string_view locale);

}  // namespace varnel::company
