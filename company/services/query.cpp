#include "company/services/query.h"

namespace varnel::company {

std::shared_ptr<Recordset> Query(CompanyDatabase& database, const std::string& text,
                                 std::initializer_list<Variant> parameters) {
    const auto command = database.NewCommand();
    command->SetTimeout(0);
    command->SetActiveConnection(database.ConnectionString());
    command->SetText(text);
    database.BindParameters(*command, {parameters.begin(), parameters.size()});
    return command->Execute(Command::kOptionsUnspecified);
}

}  // namespace varnel::company
