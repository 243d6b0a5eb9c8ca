#include "company/sqlite_company_database.h"

namespace varnel::company {

std::shared_ptr<Command> SqliteCompanyDatabase::NewCommand() {
    return drivers::NewSqliteCommand(connections_);
}

}  // namespace varnel::company
