#pragma once

#include <map>
#include <optional>
#include <string>

#include "company/texts/texts.h"
#include "host/company.h"

namespace varnel::company {

/// Account types from AcctTypeInfo, read once. The sections that the statements know are captioned
/// in the user's language, other types by their own description.
class CompanyAccountTypes final : public AccountTypes {
  public:
    CompanyAccountTypes(CompanyDatabase& database, Texts& texts, Language language)
        : database_(database), texts_(texts), language_(language) {}

    std::int32_t Class(std::int32_t account_type) override;
    /// `variant` makes no difference here.
    std::string Caption(std::int32_t account_type, std::int32_t variant) override;
    std::string AdditionalIncomeTypes() override;

    /// The next question reads the database again.
    void Forget() { types_.reset(); }

  private:
    struct TypeInfo {
        std::int32_t type_class;
        std::string description;
        bool additional_income;
    };
    const std::map<std::int32_t, TypeInfo>& All();
    const TypeInfo& At(std::int32_t account_type);

    CompanyDatabase& database_;
    Texts& texts_;
    Language language_;
    std::optional<std::map<std::int32_t, TypeInfo>> types_;
};

}  // namespace varnel::company
