#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/data_access.h"

namespace varnel::company {

/// Accounts with a role in the company, from GLAccountParam, read once. Names ignore case.
class AccountParams {
  public:
    explicit AccountParams(CompanyDatabase& database) : database_(database) {}

    /// The account's internal id; 0 when no account has that role.
    std::int32_t Find(std::string_view name, std::string_view section);
    /// Ids of all accounts of a section, comma-separated; empty when there is none.
    std::string IdsOf(std::string_view section);

    /// The next question reads the database again.
    void Forget() { params_.reset(); }

  private:
    struct Param {
        std::string section, name;
        std::int32_t account_id;
    };
    const std::vector<Param>& All();

    CompanyDatabase& database_;
    std::optional<std::vector<Param>> params_;
};

}  // namespace varnel::company
