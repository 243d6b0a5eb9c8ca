#pragma once

#include <filesystem>

#include "drivers/sqlite/sqlite_database.h"
#include "tests/drivers/driver_cases.h"

struct sqlite3;

namespace varnel::drivers {

/// A folder of its own under the folder for temporary files, gone with the object.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string File(const std::string& name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

/// Runs statements on a database file through a connection that may write.
void RunScript(const std::string& path, const std::string& script);

class SqliteFixture final : public DriverFixture {
  public:
    SqliteFixture() { Prepare(""); }
    void Prepare(const std::string& script) override { RunScript(ConnectionString(), script); }
    std::shared_ptr<Command> NewCommand() override { return NewSqliteCommand(connections_); }
    std::string ConnectionString() override { return folder_.File("test.db"); }

  private:
    TemporaryFolder folder_;
    SqliteConnections connections_;
};

}  // namespace varnel::drivers
