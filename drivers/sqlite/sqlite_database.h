#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/data_access.h"

namespace varnel::drivers {

class SqliteConnection;

/// The open connections of one host, so that its many small queries do not open the file each time.
/// For one thread at a time: a thread of its own takes a `SqliteConnections` of its own.
///
/// A connection only reads: queries that would write, attach a database or use a PRAGMA are refused
/// with error 3709, and sum() over amounts is exact.
class SqliteConnections {
  public:
    /// A read waits as long as `busy_wait` for another program that is writing to the file.
    /// `cancelled`, which may be empty, is asked often while a query is at work: when it says yes
    /// the query ends with error 3709.
    explicit SqliteConnections(
        std::chrono::milliseconds busy_wait = std::chrono::milliseconds(5'000),
        std::function<bool()> cancelled = {});

    /// The connection to the database file at `path`, opened if it is not open. The last few stay
    /// open; a row set keeps its own alive whatever happens here. Raises error 3709 of source
    /// "SQLite" when there is no such file (none is made) or it is no database.
    std::shared_ptr<const SqliteConnection> At(const std::string& path);

  private:
    std::chrono::milliseconds busy_wait_;
    std::function<bool()> cancelled_;
    std::vector<std::shared_ptr<const SqliteConnection>> open_;  // The newest last.
};

/// A query over SQLite. Its connection string is the path of the database file, nothing else;
/// `connections` must outlive the command but not its row sets.
///
/// The text is one statement, which may use `+` and `&` between texts as other engines do. With a
/// time limit no single wait for the database (to the first row, to each row after it) is longer
/// than that.
std::shared_ptr<Command> NewSqliteCommand(SqliteConnections& connections);

}  // namespace varnel::drivers
