#pragma once

#include <string_view>
#include <vector>

#include "host/data_access.h"

namespace varnel::framework {

/// The rows of a row set, kept: what a report makes of rows that it is handed, so that neither
/// disturbs the other. They can be filtered and sorted.
class RecordCopy final : public Recordset {
  public:
    /// Reads all rows; `rows` stands on its first one afterwards. The column `yes_or_no` becomes 1
    /// or 0, null as no: error 3265 when there is none, 13 for a value that is neither.
    RecordCopy(Recordset& rows, std::string_view yes_or_no);

    /// Takes those of all rows that pass the filter, in that order, and stands on the first one.
    /// Error 5 for a text that cannot be read, 3265 for an unknown column; then all stays as it
    /// was.
    ///
    /// The filter is "Column = value" with a number, True or False, or a text or date between
    /// single quotes; empty takes all rows. The order is "Column [ASC|DESC], ...", null before
    /// numbers (texts that are numbers among them) before dates before other texts; rows that are
    /// equal stay in order.
    void Arrange(std::string_view filter, std::string_view sort);

    const Columns& GetColumns() const override { return columns_; }
    bool AtEnd() const override { return position_ == order_.size(); }
    const Row& Current() const override;
    void MoveNext() override;
    void MoveFirst() override { position_ = 0; }

  private:
    Columns columns_;
    std::vector<Row> rows_;
    std::vector<std::size_t> order_;  // Of the rows that the filter takes.
    std::size_t position_ = 0;
};

}  // namespace varnel::framework
