#include "tests/company/demo_database.h"

#include <sqlite3.h>

namespace varnel::company {

void DemoDatabase::Close::operator()(sqlite3* handle) const { sqlite3_close(handle); }

DemoDatabase::DemoDatabase(std::int64_t lines, std::uint64_t seed) {
    const auto file = folder_ / "demo.db";
    DemoOptions options;
    options.lines = lines;
    options.seed = seed;
    CreateDemoCompany(file, options);
    sqlite3* handle = nullptr;
    sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
    handle_.reset(handle);
}

std::int64_t DemoDatabase::Ask(const std::string& sql) const {
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(handle_.get(), sql.c_str(), -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(handle_.get()) << "\n"
        << sql;
    EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW) << sql;
    const std::int64_t value = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    return value;
}

}  // namespace varnel::company
