#pragma once

#include <memory>
#include <span>
#include <string>

#include "drivers/sqlite/sqlite_connection.h"
#include "host/row.h"
#include "host/variant.h"

struct sqlite3_stmt;

namespace varnel::drivers {

/// What a command was told before it is executed.
struct SqliteQuery {
    std::string text;
    std::span<const Variant> parameters;
    int timeout = 0;  // In seconds; 0 is no limit.
};

/// A prepared query with its parameters bound. Keeps its connection open. Errors carry the text as
/// the report wrote it.
class SqliteStatement {
  public:
    SqliteStatement(std::shared_ptr<const SqliteConnection> connection, const SqliteQuery& query);

    Columns ReadColumns() const;
    /// Goes to the next row; false when there is none.
    bool Step();
    /// Back to before the first row.
    void Reset();
    /// Copies the row it stands on; allocates nothing once `row` has grown.
    void ReadRow(Row& row) const;

  private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };

    void Prepare();
    void CheckRest(const char* rest, const char* end) const;
    void Bind(std::span<const Variant> parameters);
    int BindOne(int number, const Variant& value);
    [[noreturn]] void FailStep(int code) const;
    [[noreturn]] void FailBinary(int column) const;

    std::shared_ptr<const SqliteConnection> connection_;
    std::string text_;
    int timeout_;
    std::unique_ptr<sqlite3_stmt, Finalize> handle_;  // Goes before its connection.
    int columns_ = 0;
};

}  // namespace varnel::drivers
