#include "company/sqlite_company_database.h"

namespace varnel::company {

std::shared_ptr<Command> SqliteCompanyDatabase::NewCommand() {
    return drivers::NewSqliteCommand(connections_);
}

void SqliteCompanyDatabase::BindParameters(Command& command, std::span<const Variant> parameters) {
    for (const auto& parameter : parameters) command.AppendParameter(parameter);
}

}  // namespace varnel::company
