#include "drivers/odbc/odbc_command.h"

#include "drivers/odbc/odbc_error.h"
#include "drivers/odbc/odbc_recordset.h"
#include "drivers/query_faults.h"
#include "host/error.h"

namespace varnel::drivers {

void OdbcCommand::SetTimeout(int seconds) {
    if (seconds < 0)
        throw Error(error_number::kInvalidArgument, "Command",
                    "A time limit of " + std::to_string(seconds) + " seconds; 0 is no limit");
    query_.timeout = seconds;
}

std::shared_ptr<Recordset> OdbcCommand::Execute(int /*options*/) {
    if (query_.connection_string.empty()) RaiseOdbc(kNoConnection, query_.text);
    return std::make_shared<OdbcRecordset>(query_);
}

}  // namespace varnel::drivers
