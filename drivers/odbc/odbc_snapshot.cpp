#include "drivers/odbc/odbc_snapshot.h"

#include "host/error.h"

namespace varnel::drivers {

OdbcSnapshot::OdbcSnapshot(std::unique_ptr<OdbcConnection> holder) : holder_(std::move(holder)) {
    try {
        if (holder_->IsPostgres()) name_ = holder_->ShortText("SELECT pg_export_snapshot()");
    } catch (const Error&) {
        if (!holder_->Rollback()) throw;  // Otherwise it is one that speaks the protocol alone.
    }
}

void OdbcSnapshot::Show(const OdbcConnection& connection) const {
    if (!name_.empty()) connection.Execute("SET TRANSACTION SNAPSHOT '" + name_ + "'");
}

}  // namespace varnel::drivers
