#pragma once

#include "drivers/odbc/odbc_database.h"
#include "tests/drivers/driver_cases.h"

namespace varnel::drivers {

/// The folder of the socket of the server that ctest starts for the tests (VARNEL_POSTGRES); empty
/// when there is none.
std::string ServerFolder();

/// A schema of its own on that server, with what the statements of reports need; gone with the
/// object.
class OdbcFixture final : public DriverFixture {
  public:
    OdbcFixture();
    ~OdbcFixture() override;

    void Prepare(const std::string& script) override;
    std::shared_ptr<Command> NewCommand() override { return NewOdbcCommand(connections_); }
    std::string ConnectionString() override;
    std::shared_ptr<void> HoldSnapshot() { return connections_.HoldSnapshot(); }
    bool IsLost() const { return connections_.IsLost(); }

  private:
    std::string schema_;
    OdbcConnections connections_;
};

}  // namespace varnel::drivers
