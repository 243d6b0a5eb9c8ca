#include "drivers/forward_recordset.h"

#include "host/error.h"

namespace varnel::drivers {

ForwardRecordset::ForwardRecordset(std::unique_ptr<RowSource> source)
    : source_(std::move(source)), columns_(source_->ReadColumns()) {
    Advance();
}

const Row& ForwardRecordset::Current() const {
    if (at_end_)
        throw Error(error_number::kNoCurrentRow, "Recordset", "There is no row: it is the end");
    return row_;
}

void ForwardRecordset::MoveNext() {
    if (at_end_)
        throw Error(error_number::kNoCurrentRow, "Recordset",
                    "There is no next row: it is the end");
    Advance();
}

void ForwardRecordset::MoveFirst() {
    at_end_ = true;
    source_->Restart();
    Advance();
}

void ForwardRecordset::Advance() {
    at_end_ = true;
    at_end_ = !source_->Read(row_);
}

}  // namespace varnel::drivers
