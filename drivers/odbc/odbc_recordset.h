#pragma once

#include <memory>

#include "drivers/odbc/odbc_result.h"
#include "host/data_access.h"

namespace varnel::drivers {

/// The rows of a query, a block of them in memory at a time. The connection goes back when the last
/// one is read.
class OdbcRecordset final : public Recordset {
  public:
    explicit OdbcRecordset(OdbcQuery query);

    const Columns& GetColumns() const override { return columns_; }
    bool AtEnd() const override { return at_end_; }
    const Row& Current() const override;
    void MoveNext() override;
    /// Runs the query again: what was written since then is seen.
    void MoveFirst() override;

  private:
    void Advance();

    OdbcQuery query_;
    std::unique_ptr<OdbcResult> result_;
    Columns columns_;
    Row row_;
    bool at_end_ = true;
};

}  // namespace varnel::drivers
