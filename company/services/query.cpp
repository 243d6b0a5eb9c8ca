#include "company/services/query.h"

namespace varnel::company {

std::shared_ptr<Recordset> Query(CompanyDatabase& database, const std::string& text,
                                 std::initializer_list<Variant> parameters) {
    return RunQuery(database, text, {parameters.begin(), parameters.size()});
}

}  // namespace varnel::company
