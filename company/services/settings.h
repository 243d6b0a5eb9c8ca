#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/data_access.h"

namespace varnel::company {

/// The settings of the company, read once, when the first one is asked for. Names ignore case; a
/// null value is one that is not set.
class Settings {
  public:
    explicit Settings(CompanyDatabase& database) : database_(database) {}

    std::optional<std::string> Find(std::string_view name);
    /// The value as a truth value or a date; error 13 naming the setting when it is not one.
    std::optional<bool> FindTruth(std::string_view name);
    std::optional<Date> FindDate(std::string_view name);
    /// Error 5 naming the setting when it is not set, error 13 when it is not a number.
    std::int32_t Id(std::string_view name);

    /// The next question reads the database again.
    void Forget() { values_.reset(); }

  private:
    using Values = std::vector<std::pair<std::string, std::string>>;
    const Values& All();

    CompanyDatabase& database_;
    std::optional<Values> values_;
};

}  // namespace varnel::company
