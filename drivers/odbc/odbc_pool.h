#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "drivers/odbc/odbc_connection.h"
#include "drivers/odbc/odbc_watch.h"

namespace varnel::drivers {

/// Connections that no row set is using.
class OdbcPool {
  public:
    explicit OdbcPool(std::function<bool()> cancelled) : watch_(std::move(cancelled)) {}

    std::unique_ptr<OdbcConnection> Take(const std::string& connection_string);
    /// Ends its transaction and keeps it, unless it has failed or enough are kept.
    void Give(const std::string& connection_string, std::unique_ptr<OdbcConnection> connection);

    OdbcWatch& Watch() { return watch_; }

  private:
    struct Idle {
        std::string connection_string;
        std::unique_ptr<OdbcConnection> connection;
    };
    std::vector<Idle> idle_;
    OdbcWatch watch_;
};

}  // namespace varnel::drivers
