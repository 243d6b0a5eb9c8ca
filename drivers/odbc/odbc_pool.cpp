#include "drivers/odbc/odbc_pool.h"

#include <algorithm>

#include "drivers/odbc/odbc_error.h"
#include "drivers/query_faults.h"
#include "host/error.h"

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

std::unique_ptr<OdbcConnection> OdbcPool::TakeOfSnapshot(const std::string& connection_string) {
    if (!snapshots_.contains(connection_string))
        snapshots_.emplace(connection_string, TakeAny(connection_string));
    auto connection = TakeAny(connection_string);
    snapshots_.at(connection_string).Show(*connection);
    return connection;
}

std::unique_ptr<OdbcConnection> OdbcPool::Take(const std::string& connection_string) {
    if (watch_.Cancelled()) RaiseOdbc(kCancelled);
    if (!in_snapshot_) return TakeAny(connection_string);
    if (IsLost()) RaiseOdbc(loss_);
    try {
        return TakeOfSnapshot(connection_string);
    } catch (const Error& error) {
        Lose(error.Description());
        throw;
    }
}

void OdbcPool::BeginSnapshot() {
    in_snapshot_ = true;
    loss_.clear();
}

void OdbcPool::Lose(const std::string& description) {
    if (in_snapshot_) loss_ = description;
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
