#include "drivers/odbc/odbc_pool.h"

#include <algorithm>

namespace varnel::drivers {

namespace {

// A connection that has rested longer may have been lost: a question costs less than a failure.
constexpr std::chrono::seconds kShortRest{1};

}  // namespace

std::unique_ptr<OdbcConnection> OdbcPool::TakeAny(const std::string& connection_string) {
    for (;;) {
        const auto found = std::ranges::find(idle_, connection_string, &Idle::connection_string);
        if (found == idle_.end()) break;
        Idle idle = std::move(*found);
        idle_.erase(found);
        if (Clock::now() - idle.since < kShortRest || idle.connection->Responds())
            return std::move(idle.connection);
    }
    return std::make_unique<OdbcConnection>(connection_string, OdbcAccess::kRead, watch_);
}

std::unique_ptr<OdbcConnection> OdbcPool::Take(const std::string& connection_string) {
    if (in_snapshot_ && !snapshots_.contains(connection_string))
        snapshots_.emplace(connection_string, TakeAny(connection_string));
    auto connection = TakeAny(connection_string);
    if (in_snapshot_) snapshots_.at(connection_string).Show(*connection);
    return connection;
}

void OdbcPool::Give(const std::string& connection_string,
                    std::unique_ptr<OdbcConnection> connection) {
    if (idle_.size() < kMostIdle && connection->Rollback())
        idle_.push_back({connection_string, std::move(connection), Clock::now()});
}

void OdbcPool::EndSnapshot() {
    in_snapshot_ = false;
    for (auto& [connection_string, snapshot] : snapshots_) Give(connection_string, snapshot.End());
    snapshots_.clear();
}

}  // namespace varnel::drivers
