#include "host/data_access.h"

namespace varnel {

std::shared_ptr<Recordset> RunQuery(CompanyDatabase& database, const std::string& text,
                                    std::span<const Variant> parameters) {
    const auto command = database.NewCommand();
    command->SetTimeout(0);
    command->SetActiveConnection(database.ConnectionString());
    command->SetText(text);
    database.BindParameters(*command, parameters);
    return command->Execute(Command::kOptionsUnspecified);
}

}  // namespace varnel
