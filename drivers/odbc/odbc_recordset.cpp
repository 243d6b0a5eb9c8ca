#include "drivers/odbc/odbc_recordset.h"

#include "host/error.h"

namespace varnel::drivers {

OdbcRecordset::OdbcRecordset(OdbcQuery query)
    : query_(std::move(query)),
      result_(std::make_unique<OdbcResult>(query_)),
      columns_(result_->ReadColumns()) {
    Advance();
}

const Row& OdbcRecordset::Current() const {
    if (at_end_)
        throw Error(error_number::kNoCurrentRow, "Recordset", "There is no row: it is the end");
    return row_;
}

void OdbcRecordset::MoveNext() {
    if (at_end_)
        throw Error(error_number::kNoCurrentRow, "Recordset",
                    "There is no next row: it is the end");
    Advance();
}

void OdbcRecordset::MoveFirst() {
    at_end_ = true;
    result_.reset();  // Its connection serves again.
    result_ = std::make_unique<OdbcResult>(query_);
    Advance();
}

/// After an error there is no row.
void OdbcRecordset::Advance() {
    at_end_ = true;
    if (result_->Read(row_))
        at_end_ = false;
    else
        result_.reset();
}

}  // namespace varnel::drivers
