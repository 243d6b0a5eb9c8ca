#include "drivers/sqlite/read_only.h"

#include <sqlite3.h>

#include <string_view>

#include "host/object.h"

namespace varnel::drivers {

namespace {

/// The schema tables are written when tables, indexes or views are created and dropped.
std::string DescribeWrite(std::string_view table) {
    if (table.starts_with("sqlite_")) return "change the tables of the database";
    return "change the rows of " + std::string(table);
}

std::string Describe(int action, std::string_view name) {
    switch (action) {
        case SQLITE_INSERT:
        case SQLITE_UPDATE:
        case SQLITE_DELETE:
            return DescribeWrite(name);
        case SQLITE_ATTACH:
        case SQLITE_DETACH:
            return "attach or detach a database";
        case SQLITE_PRAGMA:
            return "use PRAGMA " + std::string(name);
        case SQLITE_TRANSACTION:
        case SQLITE_SAVEPOINT:
            return "begin or end a transaction";
        case SQLITE_FUNCTION:
            return "call " + std::string(name);
        default:
            return DescribeWrite("sqlite_schema");
    }
}

bool OnlyReads(int action, std::string_view function) {
    switch (action) {
        case SQLITE_SELECT:
        case SQLITE_READ:
        case SQLITE_RECURSIVE:
            return true;
        case SQLITE_FUNCTION:
            return !SameName(function, "load_extension");
        default:
            return false;
    }
}

int Authorize(void* refusal, int action, const char* first, const char* second, const char*,
              const char*) {
    const char* name = action == SQLITE_FUNCTION ? second : first;
    const std::string_view subject = name == nullptr ? "" : name;
    if (OnlyReads(action, subject)) return SQLITE_OK;
    *static_cast<std::string*>(refusal) = Describe(action, subject);
    return SQLITE_DENY;
}

}  // namespace

void AllowReadingOnly(sqlite3* database, std::string& refusal) {
    sqlite3_set_authorizer(database, Authorize, &refusal);
}

}  // namespace varnel::drivers
