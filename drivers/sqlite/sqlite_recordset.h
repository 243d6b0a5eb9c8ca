#pragma once

#include "drivers/sqlite/sqlite_statement.h"
#include "host/data_access.h"

namespace varnel::drivers {

/// The rows of a running statement, one in memory at a time.
class SqliteRecordset final : public Recordset {
  public:
    explicit SqliteRecordset(SqliteStatement statement);

    const Columns& GetColumns() const override { return columns_; }
    bool AtEnd() const override { return at_end_; }
    const Row& Current() const override;
    void MoveNext() override;
    /// Runs the statement again: what was written since then is seen.
    void MoveFirst() override;

  private:
    void Advance();

    SqliteStatement statement_;
    Columns columns_;
    Row row_;
    bool at_end_ = true;
};

}  // namespace varnel::drivers
