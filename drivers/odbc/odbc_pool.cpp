#include "drivers/odbc/odbc_pool.h"

#include <algorithm>

#include "drivers/odbc/connection_string.h"

namespace varnel::drivers {

namespace {

constexpr std::size_t kMostIdle = 4;

}  // namespace

std::unique_ptr<OdbcConnection> OdbcPool::Take(const std::string& connection_string) {
    const auto found = std::ranges::find(idle_, connection_string, &Idle::connection_string);
    if (found == idle_.end())
        return std::make_unique<OdbcConnection>(WithReadingSettings(connection_string),
                                                OdbcAccess::kRead);
    auto connection = std::move(found->connection);
    idle_.erase(found);
    return connection;
}

void OdbcPool::Give(const std::string& connection_string,
                    std::unique_ptr<OdbcConnection> connection) {
    if (idle_.size() < kMostIdle && connection->Rollback())
        idle_.push_back({connection_string, std::move(connection)});
}

}  // namespace varnel::drivers
