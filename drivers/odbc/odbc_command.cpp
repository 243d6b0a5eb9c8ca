#include "drivers/odbc/odbc_command.h"

#include "drivers/forward_recordset.h"
#include "drivers/odbc/odbc_error.h"
#include "drivers/query_faults.h"
#include "drivers/time_limit.h"

namespace varnel::drivers {

namespace {

/// The connection goes back when the last row is read.
class OdbcRows final : public RowSource {
  public:
    explicit OdbcRows(OdbcQuery query)
        : query_(std::move(query)), result_(std::make_unique<OdbcResult>(query_)) {}

    Columns ReadColumns() const override { return result_->ReadColumns(); }
    bool Read(Row& row) override {
        if (result_->Read(row)) return true;
        result_.reset();
        return false;
    }
    void Restart() override {
        result_.reset();  // Its connection serves again.
        result_ = std::make_unique<OdbcResult>(query_);
    }

  private:
    const OdbcQuery query_;
    std::unique_ptr<OdbcResult> result_;
};

}  // namespace

void OdbcCommand::SetTimeout(int seconds) { query_.timeout = CheckedTimeLimit(seconds); }

std::shared_ptr<Recordset> OdbcCommand::Execute(int /*options*/) {
    if (query_.connection_string.empty()) RaiseOdbc(kNoConnection, query_.text);
    return std::make_shared<ForwardRecordset>(std::make_unique<OdbcRows>(query_));
}

}  // namespace varnel::drivers
