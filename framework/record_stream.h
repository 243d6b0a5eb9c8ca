#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/data_access.h"

namespace varnel::framework {

class RecordCopy;

/// The rows of a row set, saved: what a report opens a row set of its own from, so that neither
/// disturbs the other.
class RecordStream {
  public:
    /// Reads all rows; `rows` stands on its first one afterwards.
    static std::shared_ptr<const RecordStream> Save(Recordset& rows);

    const Columns& GetColumns() const { return columns_; }
    const std::vector<Row>& Rows() const { return rows_; }

  private:
    Columns columns_;
    std::vector<Row> rows_;
};

/// A row set opened from a saved one, which can be filtered and sorted.
class RecordCopy final : public Recordset {
  public:
    explicit RecordCopy(std::shared_ptr<const RecordStream> stream);

    /// Reads a column as yes or no, null as no; no sorts before yes. Error 3265 for an unknown one.
    void SetBoolean(std::string_view column);
    /// "Column = value" with a number, True or False (of a column read as yes or no), or a text or
    /// date between single quotes; empty takes all rows. Error 5 for anything else. Stands on the
    /// first row afterwards.
    void SetFilter(std::string_view filter);
    /// "Column [ASC|DESC], ...", null before numbers before dates before texts; rows that are equal
    /// stay in order. Error 5 for anything else. Stands on the first row afterwards.
    void SetSort(std::string_view sort);

    const Columns& GetColumns() const override { return stream_->GetColumns(); }
    bool AtEnd() const override { return position_ == order_.size(); }
    const Row& Current() const override;
    void MoveNext() override;
    void MoveFirst() override { position_ = 0; }

  private:
    struct SortKey {
        Column column;
        bool descending = false;
    };
    void Arrange();

    std::shared_ptr<const RecordStream> stream_;
    std::vector<Row> rows_;
    Column filter_column_;
    Variant filter_value_;
    std::vector<SortKey> sort_;
    std::vector<std::size_t> order_;  // Of the rows that the filter takes.
    std::size_t position_ = 0;
};

}  // namespace varnel::framework
