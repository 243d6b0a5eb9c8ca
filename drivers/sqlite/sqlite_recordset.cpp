#include "drivers/sqlite/sqlite_recordset.h"

#include "host/error.h"

namespace varnel::drivers {

SqliteRecordset::SqliteRecordset(SqliteStatement statement)
    : statement_(std::move(statement)), columns_(statement_.ReadColumns()) {
    Advance();
}

const Row& SqliteRecordset::Current() const {
    if (at_end_)
        throw Error(error_number::kNoCurrentRow, "Recordset", "There is no row: it is the end");
    return row_;
}

void SqliteRecordset::MoveNext() {
    if (at_end_)
        throw Error(error_number::kNoCurrentRow, "Recordset",
                    "There is no next row: it is the end");
    Advance();
}

void SqliteRecordset::MoveFirst() {
    statement_.Reset();
    Advance();
}

/// After an error there is no row.
void SqliteRecordset::Advance() {
    at_end_ = true;
    if (!statement_.Step()) return;
    statement_.ReadRow(row_);
    at_end_ = false;
}

}  // namespace varnel::drivers
