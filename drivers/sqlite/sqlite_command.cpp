#include "drivers/sqlite/sqlite_command.h"

#include "drivers/query_faults.h"
#include "drivers/sqlite/sqlite_error.h"
#include "drivers/sqlite/sqlite_recordset.h"
#include "host/error.h"

namespace varnel::drivers {

void SqliteCommand::SetTimeout(int seconds) {
    if (seconds < 0)
        throw Error(error_number::kInvalidArgument, "Command",
                    "A time limit of " + std::to_string(seconds) + " seconds; 0 is no limit");
    timeout_ = seconds;
}

void SqliteCommand::SetActiveConnection(const std::string& connection_string) {
    connection_ = connections_.At(connection_string);
}

std::shared_ptr<Recordset> SqliteCommand::Execute(int /*options*/) {
    if (connection_ == nullptr) RaiseSqlite(kNoConnection, text_);
    return std::make_shared<SqliteRecordset>(SqliteStatement(
        connection_, {.text = text_, .parameters = parameters_, .timeout = timeout_}));
}

}  // namespace varnel::drivers
