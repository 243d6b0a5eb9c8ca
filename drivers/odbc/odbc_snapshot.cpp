#include "drivers/odbc/odbc_snapshot.h"

#include "drivers/odbc/odbc_error.h"
#include "drivers/query_error.h"

namespace varnel::drivers {

OdbcSnapshot::OdbcSnapshot(std::unique_ptr<OdbcConnection> holder) : holder_(std::move(holder)) {
    if (!holder_->IsPostgres()) return;
    try {
        name_ = holder_->ShortText("SELECT pg_export_snapshot()");
        // It rests for the whole run, which is no neglect.
        holder_->Execute("SET LOCAL idle_in_transaction_session_timeout = 0");
    } catch (const QueryError& error) {
        // Not everything that speaks the protocol can do it.
        if (error.Fault() != QueryFault::kNotSupported) throw;
        name_.clear();
        holder_->Rollback();
    }
}

void OdbcSnapshot::Show(const OdbcConnection& connection) const {
    if (name_.empty()) return;
    try {
        connection.Execute("SET TRANSACTION SNAPSHOT '" + name_ + "'");
    } catch (const Error&) {
        if (holder_->Responds()) throw;
        RaiseOdbc("The connection that held the books at one moment was lost: run it again.");
    }
}

}  // namespace varnel::drivers
