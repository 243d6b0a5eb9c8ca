#pragma once

#include <vector>

#include "host/data_access.h"

namespace varnel::drivers {

/// Rows kept in memory, as a host hands them over or a test writes them down.
class MemoryRecordset final : public Recordset {
  public:
    using Values = std::vector<Variant>;

    /// Raises error 5 when a row has more or fewer values than there are columns.
    MemoryRecordset(std::vector<std::string> column_names, const std::vector<Values>& rows);

    const Columns& GetColumns() const override { return columns_; }
    bool AtEnd() const override { return position_ == rows_.size(); }
    const Row& Current() const override;
    void MoveNext() override;
    void MoveFirst() override { position_ = 0; }

  private:
    Columns columns_;
    std::vector<Row> rows_;
    std::size_t position_ = 0;
};

}  // namespace varnel::drivers
