#include "drivers/sqlite/sqlite_command.h"

#include "drivers/forward_recordset.h"
#include "drivers/query_faults.h"
#include "drivers/sqlite/sqlite_error.h"
#include "drivers/sqlite/sqlite_statement.h"
#include "drivers/time_limit.h"

namespace varnel::drivers {

namespace {

class SqliteRows final : public RowSource {
  public:
    explicit SqliteRows(SqliteStatement statement) : statement_(std::move(statement)) {}

    Columns ReadColumns() const override { return statement_.ReadColumns(); }
    bool Read(Row& row) override {
        if (!statement_.Step()) return false;
        statement_.ReadRow(row);
        return true;
    }
    void Restart() override { statement_.Reset(); }

  private:
    SqliteStatement statement_;
};

}  // namespace

void SqliteCommand::SetTimeout(int seconds) { timeout_ = CheckedTimeLimit(seconds); }

void SqliteCommand::SetActiveConnection(const std::string& connection_string) {
    connection_ = connections_.At(connection_string);
}

std::shared_ptr<Recordset> SqliteCommand::Execute(int /*options*/) {
    if (connection_ == nullptr) RaiseSqlite(kNoConnection, text_);
    SqliteStatement statement(connection_,
                              {.text = text_, .parameters = parameters_, .timeout = timeout_});
    return std::make_shared<ForwardRecordset>(std::make_unique<SqliteRows>(std::move(statement)));
}

}  // namespace varnel::drivers
