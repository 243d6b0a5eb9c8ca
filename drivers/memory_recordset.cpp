#include "drivers/memory_recordset.h"

#include "host/error.h"

namespace varnel::drivers {

namespace {

Row MakeRow(const MemoryRecordset::Values& values, std::size_t columns, std::size_t number) {
    if (values.size() != columns)
        throw Error(error_number::kInvalidArgument, "Recordset",
                    "Row " + std::to_string(number) + " has " + std::to_string(values.size()) +
                        " values for " + std::to_string(columns) + " columns");
    Row row;
    row.Start(columns);
    for (const auto& value : values) row.Add(value);
    return row;
}

}  // namespace

MemoryRecordset::MemoryRecordset(std::vector<std::string> column_names,
                                 const std::vector<Values>& rows)
    : columns_(std::move(column_names)) {
    rows_.reserve(rows.size());
    for (const auto& values : rows)
        rows_.push_back(MakeRow(values, columns_.Size(), rows_.size() + 1));
}

const Row& MemoryRecordset::Current() const {
    if (AtEnd())
        throw Error(error_number::kNoCurrentRow, "Recordset", "There is no row: it is the end");
    return rows_[position_];
}

void MemoryRecordset::MoveNext() {
    if (AtEnd())
        throw Error(error_number::kNoCurrentRow, "Recordset",
                    "There is no next row: it is the end");
    ++position_;
}

}  // namespace varnel::drivers
