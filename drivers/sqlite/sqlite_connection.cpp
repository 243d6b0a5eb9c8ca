#include "drivers/sqlite/sqlite_connection.h"

#include <sqlite3.h>

#include <filesystem>
#include <string_view>

#include "drivers/sqlite/exact_sum.h"
#include "drivers/sqlite/read_only.h"
#include "drivers/sqlite/sqlite_error.h"

namespace varnel::drivers {

namespace {

/// SQLite has one message for all of these.
void CheckFile(const std::string& path) {
    std::error_code code;
    const auto status = std::filesystem::status(path, code);
    const std::string file = "\"" + path + "\"";
    if (path.empty())
        RaiseSqlite("No database file is named: give the path of a company database.");
    if (status.type() == std::filesystem::file_type::not_found)
        RaiseSqlite("There is no file " + file + ": check the path of the company database.");
    if (code) RaiseSqlite("The file " + file + " cannot be reached: " + code.message() + ".");
    if (std::filesystem::is_directory(status))
        RaiseSqlite(file + " is a folder: give the path of a company database in it.");
}

}  // namespace

void SqliteConnection::Close::operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }

SqliteConnection::SqliteConnection(std::string path, std::chrono::milliseconds busy_wait,
                                   std::function<bool()> cancelled)
    : path_(std::move(path)), cancelled_(std::move(cancelled)) {
    CheckFile(path_);
    Open();
    Check(sqlite3_busy_timeout(Handle(), static_cast<int>(busy_wait.count())));
    // The views of a file from elsewhere may call no function that has effects.
    Check(sqlite3_db_config(Handle(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr));
    Check(RegisterExactSum(Handle()));
    AllowReadingOnly(Handle(), refusal_);
    // Opening reads nothing; this does, and so tells a database from any other file.
    Check(sqlite3_exec(Handle(), "SELECT 1 FROM sqlite_schema LIMIT 1", nullptr, nullptr, nullptr));
}

void SqliteConnection::Open() {
    sqlite3* handle = nullptr;
    const int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;
    const int code = sqlite3_open_v2(path_.c_str(), &handle, flags, nullptr);
    handle_.reset(handle);  // There is one after most failures, too.
    if (handle == nullptr) RaiseSqlite("There is not enough memory to open a database.");
    Check(code);
}

void SqliteConnection::Check(int code) const {
    if (code != SQLITE_OK) RaiseSqlite(LastError());
}

std::string SqliteConnection::LastError() const {
    const int code = sqlite3_errcode(Handle());
    const std::string_view message = sqlite3_errmsg(Handle());
    // Some refusals have the code of an ordinary error.
    if (code == SQLITE_AUTH || message.starts_with("not authorized"))
        return "A query may only read; it may not " + refusal_ + ".";
    return DescribeSqliteError(code, message, path_);
}

}  // namespace varnel::drivers
