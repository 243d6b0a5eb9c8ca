#include "company/sqlite_company_database.h"

#include "company/services/query.h"
#include "host/error.h"

namespace varnel::company {

std::shared_ptr<Command> SqliteCompanyDatabase::NewCommand() {
    return drivers::NewSqliteCommand(connections_);
}

// A row set that is not read to its end keeps the transaction of the connection that all queries
// share.
std::shared_ptr<void> SqliteCompanyDatabase::HoldSnapshot() {
    try {
        return Query(*this, "SELECT name FROM sqlite_schema");
    } catch (const Error&) {
        return nullptr;
    }
}

}  // namespace varnel::company
