#include "company/services/account_types.h"

#include "company/services/id_list.h"
#include "company/services/query.h"
#include "company/texts/captions.h"
#include "host/error.h"

namespace varnel::company {

const std::map<std::int32_t, CompanyAccountTypes::TypeInfo>& CompanyAccountTypes::All() {
    if (types_) return *types_;
    std::map<std::int32_t, TypeInfo> types;
    const auto rows =
        Query(database_, "SELECT AcctType, TypeClass, Descr, AdditionalIncome FROM AcctTypeInfo");
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        types[row.Integer(Column{0})] = {row.Integer(Column{1}), std::string(row.Text(Column{2})),
                                         row.Truth(Column{3})};
    }
    return types_.emplace(std::move(types));
}

const CompanyAccountTypes::TypeInfo& CompanyAccountTypes::At(std::int32_t account_type) {
    const auto found = All().find(account_type);
    if (found == All().end())
        throw Error(error_number::kInvalidArgument, "AccountTypes",
                    "There is no account type " + std::to_string(account_type) +
                        "; add it to AcctTypeInfo");
    return found->second;
}

std::int32_t CompanyAccountTypes::Class(std::int32_t account_type) {
    return At(account_type).type_class;
}

std::string CompanyAccountTypes::Caption(std::int32_t account_type, std::int32_t /*variant*/) {
    switch (account_type) {
        case 1:
            return texts_.Get(2666);
        case 2:
            return texts_.Get(2668);
        case 3:
            return texts_.Get(2670);
        default:
            break;
    }
    const auto caption = StatementCaption(account_type, language_);
    return caption.empty() ? At(account_type).description : std::string(caption);
}

std::string CompanyAccountTypes::AdditionalIncomeTypes() {
    std::string types;
    for (const auto& [account_type, info] : All())
        if (info.additional_income) AppendId(account_type, types);
    return ListOrNone(std::move(types));
}

}  // namespace varnel::company
