#pragma once

#include <functional>
#include <optional>
#include <string>

#include "drivers/sqlite/sqlite_database.h"
#include "host/data_access.h"

namespace varnel::company {

/// A company database in an SQLite file, read only.
class SqliteCompanyDatabase final : public CompanyDatabase {
  public:
    /// Nothing is opened before the first query. `database_type` is what reports are told; 1, the
    /// desktop engine, when it is not given. A query ends when `cancelled` says yes.
    explicit SqliteCompanyDatabase(std::string path, std::optional<int> database_type = {},
                                   std::function<bool()> cancelled = {})
        : path_(std::move(path)),
          database_type_(database_type.value_or(kDesktopEngine)),
          connections_(kBusyWait, std::move(cancelled)) {}

    std::string ConnectionString() override { return path_; }
    int DatabaseType() override { return database_type_; }
    std::shared_ptr<Command> NewCommand() override;
    std::shared_ptr<void> HoldSnapshot() override;

  private:
    static constexpr int kDesktopEngine = 1;
    static constexpr std::chrono::seconds kBusyWait{5};

    std::string path_;
    int database_type_;
    drivers::SqliteConnections connections_;
};

}  // namespace varnel::company
