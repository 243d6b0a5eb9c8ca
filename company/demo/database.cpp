#include "company/demo/database.h"

#include <sqlite3.h>

#include <string>

#include "host/error.h"

namespace varnel::company::demo {

void Database::Close::operator()(sqlite3* handle) const { sqlite3_close(handle); }
void Statement::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Database::Database(const std::filesystem::path& file) : file_(file) {
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(file.string().c_str(), &handle,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    handle_.reset(handle);
    if (result != SQLITE_OK) Fail();
    // The file is thrown away on any failure, so a rollback journal would protect nothing.
    Execute(
        "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE;"
        "PRAGMA cache_size = -32768; PRAGMA temp_store = FILE");
}

void Database::Execute(const char* sql) {
    if (sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
}

void Database::Fail() const {
    const std::string reason = handle_ ? sqlite3_errmsg(handle_.get()) : "out of memory";
    throw Error(error_number::kDatabase, "SQLite",
                "cannot write " + file_.string() + ": " + reason +
                    " (check the free space and the permissions of its folder)");
}

Statement::Statement(Database& database, std::string_view sql) : database_(database) {
    sqlite3_stmt* statement = nullptr;
    const int result =
        sqlite3_prepare_v3(database.Handle(), sql.data(), static_cast<int>(sql.size()),
                           SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    statement_.reset(statement);
    if (result != SQLITE_OK) database.Fail();
}

void Statement::Bind(int position, std::int64_t value) {
    sqlite3_bind_int64(statement_.get(), position, value);
}

// The division is correctly rounded, so that the column holds the double nearest to the decimal.
void Statement::Bind(int position, Currency value) {
    sqlite3_bind_double(statement_.get(), position, value.ToDouble());
}

void Statement::Bind(int position, Rate value) {
    sqlite3_bind_double(statement_.get(), position,
                        static_cast<double>(value.Scaled()) / static_cast<double>(Rate::kScale));
}

void Statement::Bind(int position, Date value) {
    const std::string text = value.ToIso();
    sqlite3_bind_text(statement_.get(), position, text.data(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
}

void Statement::Bind(int position, std::string_view value) {
    sqlite3_bind_text(statement_.get(), position, value.data(), static_cast<int>(value.size()),
                      SQLITE_STATIC);
}

void Statement::Bind(int position, const char* value) {
    sqlite3_bind_text(statement_.get(), position, value, -1, SQLITE_STATIC);
}

void Statement::Bind(int position, std::nullptr_t) {
    sqlite3_bind_null(statement_.get(), position);
}

void Statement::Step() {
    const int result = sqlite3_step(statement_.get());
    if (result != SQLITE_DONE) database_.Fail();
    sqlite3_reset(statement_.get());
}

}  // namespace varnel::company::demo
