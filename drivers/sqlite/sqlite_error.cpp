#include "drivers/sqlite/sqlite_error.h"

#include <sqlite3.h>

#include "drivers/query_error.h"

namespace varnel::drivers {

namespace {

constexpr const char* kNoSuchTable = "no such table";

std::string Advice(int code, std::string_view message, const std::string& path) {
    const std::string file = "\"" + path + "\"";
    switch (code & 0xFF) {
        case SQLITE_ERROR:
            if (message.starts_with(kNoSuchTable))
                return "The database " + file + " lacks it: is it a company database?";
            if (message.starts_with("no such column"))
                return "No table of the query has it: check the filter, and that " + file +
                       " is a company database.";
            return {};
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "Another program is writing to " + file + ": try again when it has finished.";
        case SQLITE_NOTADB:
            return "Choose a company database: " + file + " is something else, or encrypted.";
        case SQLITE_CORRUPT:
            return "The file " + file + " is damaged: restore it from a backup.";
        case SQLITE_CANTOPEN:
        case SQLITE_IOERR:
        case SQLITE_PERM:
            return "Check the disk and the permissions of " + file + " and of its folder.";
        case SQLITE_FULL:
            return "The disk for temporary files is full: make room on it.";
        case SQLITE_NOMEM:
            return "Close other programs or narrow the query.";
        default:
            return {};
    }
}

}  // namespace

void RaiseSqlite(const std::string& description) {
    const bool missing = description.starts_with(kNoSuchTable);
    throw QueryError("SQLite", description,
                     missing ? QueryFault::kMissingTable : QueryFault::kOther);
}

void RaiseSqlite(const std::string& description, std::string_view statement) {
    RaiseSqlite(description + "\nStatement: " + std::string(statement));
}

std::string DescribeSqliteError(int code, std::string_view message, const std::string& path) {
    std::string description(message);
    if (!description.ends_with('.')) description += '.';
    const std::string advice = Advice(code, message, path);
    return advice.empty() ? description : description + ' ' + advice;
}

}  // namespace varnel::drivers
