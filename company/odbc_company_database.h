#pragma once

#include <functional>
#include <optional>
#include <string>

#include "drivers/odbc/odbc_database.h"
#include "host/data_access.h"

namespace varnel::company {

/// A company database on a server, read only.
class OdbcCompanyDatabase final : public CompanyDatabase {
  public:
    /// Nothing is opened before the first query. `database_type` is what reports are told; 0, a
    /// server, when it is not given. A query ends when `cancelled`, asked from another thread, says
    /// yes.
    explicit OdbcCompanyDatabase(std::string connection_string,
                                 std::optional<int> database_type = {},
                                 std::function<bool()> cancelled = {})
        : connection_string_(std::move(connection_string)),
          database_type_(database_type.value_or(kServer)),
          connections_(std::move(cancelled)) {}

    std::string ConnectionString() override { return connection_string_; }
    int DatabaseType() override { return database_type_; }
    std::shared_ptr<Command> NewCommand() override { return drivers::NewOdbcCommand(connections_); }
    std::shared_ptr<void> HoldSnapshot() override { return connections_.HoldSnapshot(); }
    bool IsLost() const override { return connections_.IsLost(); }

  private:
    static constexpr int kServer = 0;

    std::string connection_string_;
    int database_type_;
    drivers::OdbcConnections connections_;
};

}  // namespace varnel::company
