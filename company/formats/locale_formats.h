#pragma once

#include <string_view>

#include "company/formats/date_pattern.h"
#include "company/formats/number_style.h"
#include "host/application.h"

namespace varnel::company {

enum class DateStyle {
    kIso,     // 2025-03-31 everywhere.
    kLocale,  // The locale's short form: 3/31/25, 31/03/2025, …
};

/// Dates and numbers as a locale writes them. The locale's data is read once, when this is made;
/// appending does not allocate beyond what the target text needs.
class LocaleFormats final : public Formats {
  public:
    /// Raises error 5 for an unknown locale.
    explicit LocaleFormats(std::string_view locale, DateStyle date_style = DateStyle::kIso);

    void AppendShortDate(Date date, std::string& out) override;
    void AppendAmount(Currency amount, std::string& out) override;
    void AppendAmount(Currency amount, int decimals, std::string& out) override;
    void AppendNumber(double value, int decimals, std::string& out) override;
    void AppendCount(std::int64_t count, std::string& out) override;

    const NumberStyle& Numbers() const { return numbers_; }

  private:
    NumberStyle numbers_;
    DatePattern dates_;
};

}  // namespace varnel::company
