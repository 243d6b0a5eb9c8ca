#include "company/services/account_params.h"

#include "company/services/id_list.h"
#include "company/services/query.h"

namespace varnel::company {

const std::vector<AccountParams::Param>& AccountParams::All() {
    if (params_) return *params_;
    std::vector<Param> params;
    const auto rows = Query(database_,
                            "SELECT Section, ParamName, ExAcctId FROM GLAccountParam "
                            "ORDER BY Section, ParamName");
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        params.push_back({std::string(row.Text(Column{0})), std::string(row.Text(Column{1})),
                          row.Integer(Column{2})});
    }
    return params_.emplace(std::move(params));
}

std::int32_t AccountParams::Find(std::string_view name, std::string_view section) {
    for (const auto& param : All())
        if (SameName(param.section, section) && SameName(param.name, name)) return param.account_id;
    return 0;
}

std::string AccountParams::IdsOf(std::string_view section) {
    std::string ids;
    for (const auto& param : All())
        if (SameName(param.section, section)) AppendId(param.account_id, ids);
    return ids;
}

}  // namespace varnel::company
