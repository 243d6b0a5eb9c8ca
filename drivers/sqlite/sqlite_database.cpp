#include "drivers/sqlite/sqlite_database.h"

#include "drivers/sqlite/sqlite_command.h"
#include "drivers/sqlite/sqlite_connection.h"

namespace varnel::drivers {

namespace {

constexpr std::size_t kMostOpen = 4;

}  // namespace

SqliteConnections::SqliteConnections(std::chrono::milliseconds busy_wait,
                                     std::function<bool()> cancelled)
    : busy_wait_(busy_wait), cancelled_(std::move(cancelled)) {}

std::shared_ptr<const SqliteConnection> SqliteConnections::At(const std::string& path) {
    for (const auto& connection : open_)
        if (connection->Path() == path) return connection;
    auto connection = std::make_shared<const SqliteConnection>(path, busy_wait_, cancelled_);
    if (open_.size() == kMostOpen) open_.erase(open_.begin());
    open_.push_back(connection);
    return connection;
}

std::shared_ptr<Command> NewSqliteCommand(SqliteConnections& connections) {
    return std::make_shared<SqliteCommand>(connections);
}

}  // namespace varnel::drivers
