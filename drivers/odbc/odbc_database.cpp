#include "drivers/odbc/odbc_database.h"

#include "drivers/odbc/odbc_command.h"
#include "drivers/odbc/odbc_pool.h"

namespace varnel::drivers {

OdbcConnections::OdbcConnections(std::function<bool()> cancelled)
    : pool_(std::make_shared<OdbcPool>(std::move(cancelled))) {}

std::shared_ptr<void> OdbcConnections::HoldSnapshot() {
    if (auto held = snapshot_.lock()) return held;
    pool_->BeginSnapshot();
    const std::shared_ptr<void> held(pool_.get(), [pool = pool_](void*) { pool->EndSnapshot(); });
    snapshot_ = held;
    return held;
}

bool OdbcConnections::IsLost() const { return pool_->IsLost(); }

std::shared_ptr<Command> NewOdbcCommand(OdbcConnections& connections) {
    return std::make_shared<OdbcCommand>(connections.Pool());
}

}  // namespace varnel::drivers
