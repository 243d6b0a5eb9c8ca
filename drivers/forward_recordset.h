#pragma once

#include <memory>

#include "host/data_access.h"

namespace varnel::drivers {

/// The rows of a query that has run, from the first to the last.
class RowSource {
  public:
    virtual ~RowSource() = default;
    virtual Columns ReadColumns() const = 0;
    /// Copies the next row; false when there is none.
    virtual bool Read(Row& row) = 0;
    /// Back to before the first row, from wherever it got to.
    virtual void Restart() = 0;
};

/// The rows of a source, the one it stands on in memory. After an error there is no row.
class ForwardRecordset final : public Recordset {
  public:
    explicit ForwardRecordset(std::unique_ptr<RowSource> source);

    const Columns& GetColumns() const override { return columns_; }
    bool AtEnd() const override { return at_end_; }
    const Row& Current() const override;
    void MoveNext() override;
    /// Runs the query again: what was written since then is seen, unless a snapshot is held.
    void MoveFirst() override;

  private:
    void Advance();

    std::unique_ptr<RowSource> source_;
    Columns columns_;
    Row row_;
    bool at_end_ = true;
};

}  // namespace varnel::drivers
