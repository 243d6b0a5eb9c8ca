#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "drivers/odbc/odbc_connection.h"
#include "drivers/odbc/odbc_snapshot.h"
#include "drivers/odbc/odbc_watch.h"

namespace varnel::drivers {

/// Connections that no row set is using.
class OdbcPool {
  public:
    explicit OdbcPool(std::function<bool()> cancelled) : watch_(std::move(cancelled)) {
        idle_.reserve(kMostIdle);  // Giving one back does not fail.
    }

    /// A connection that reads; within a snapshot, as of that.
    std::unique_ptr<OdbcConnection> Take(const std::string& connection_string);
    /// Ends its transaction and keeps it, unless it has failed or enough are kept.
    void Give(const std::string& connection_string, std::unique_ptr<OdbcConnection> connection);

    /// From now on every connection reads as of the same moment, that of the first one taken.
    void BeginSnapshot();
    void EndSnapshot();
    /// Tells that a connection was lost. Within a snapshot none is given any more: each would be
    /// waited for, and read of another moment.
    void Lose(const std::string& description);
    bool IsLost() const { return !loss_.empty(); }

    OdbcWatch& Watch() { return watch_; }

  private:
    static constexpr std::size_t kMostIdle = 4;
    using Clock = std::chrono::steady_clock;
    struct Idle {
        std::string connection_string;
        std::unique_ptr<OdbcConnection> connection;
        Clock::time_point since;
    };

    std::unique_ptr<OdbcConnection> TakeOfSnapshot(const std::string& connection_string);
    std::unique_ptr<OdbcConnection> TakeAny(const std::string& connection_string);

    OdbcWatch watch_;  // Outlives the connections.
    std::vector<Idle> idle_;
    bool in_snapshot_ = false;
    std::string loss_;                                            // What was said of it.
    std::map<std::string, OdbcSnapshot, std::less<>> snapshots_;  // By connection string.
};

}  // namespace varnel::drivers
