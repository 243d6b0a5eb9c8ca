#include "drivers/odbc/odbc_result.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>

#include "drivers/odbc/odbc_error.h"
#include "drivers/odbc/odbc_parameters.h"
#include "drivers/odbc/one_query.h"
#include "drivers/odbc/utf16.h"
#include "drivers/query_faults.h"

namespace varnel::drivers {

namespace {

constexpr SQLULEN kBlockRows = 250;

// The cursor is the driver's own business in UseDeclareFetch, but one that crashes when the
// connection is lost while rows come in. A portion is what it holds in memory: the fewer rows the
// longer they are.
constexpr const char* kDeclareCursor = "DECLARE varnel_rows NO SCROLL CURSOR FOR ";
constexpr std::size_t kFirstRows = 100;
constexpr std::size_t kMostRows = 5'000;
constexpr std::size_t kPortionBytes = 4 * 1024 * 1024;

SQLPOINTER AsPointer(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value);  // NOLINT(performance-no-int-to-ptr)
}

/// The watch looks at the statement for no longer than the call.
template <class Call>
SQLRETURN Watched(OdbcWatch& watch, void* statement, Call call) {
    const OdbcWatch::Guard guard(watch, statement);
    return call();
}

std::string CheckedText(const OdbcQuery& query) {
    OneQuery found = FindQuery(query.text);
    if (found.parameters != query.parameters.size())
        RaiseOdbc(WrongParameterCount(found.parameters, query.parameters.size()), query.text);
    return std::move(found.text);
}

}  // namespace

OdbcResult::OdbcResult(const OdbcQuery& query) : query_(query), row_states_(kBlockRows) {
    const std::string text = CheckedText(query);
    connection_ = query.pool->Take(query.connection_string);
    statement_ = connection_->NewStatement();
    Set(SQL_ATTR_QUERY_TIMEOUT, AsPointer(static_cast<SQLULEN>(query.timeout)));
    Set(SQL_ATTR_ROW_ARRAY_SIZE, AsPointer(kBlockRows));
    Set(SQL_ATTR_ROWS_FETCHED_PTR, &rows_);
    Set(SQL_ATTR_ROW_STATUS_PTR, row_states_.data());
    Execute(text);
    Describe();
}

OdbcResult::~OdbcResult() {
    statement_.reset();
    if (connection_ != nullptr) query_.pool->Give(query_.connection_string, std::move(connection_));
}

void OdbcResult::Set(int attribute, void* value) {
    if (!SQL_SUCCEEDED(SQLSetStmtAttrW(statement_.get(), attribute, value, SQL_IS_POINTER))) Fail();
}

void OdbcResult::Run(const std::string& text) {
    auto wide_text = ToUtf16(text);
    const auto result = Watched(query_.pool->Watch(), statement_.get(), [&] {
        return SQLExecDirectW(statement_.get(), wide_text.data(), SQL_NTS);
    });
    if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) Fail();
}

void OdbcResult::Execute(const std::string& text) {
    const OdbcParameters parameters(statement_.get(), query_.text, query_.parameters);
    in_portions_ = connection_->IsPostgres();
    Run(in_portions_ ? kDeclareCursor + text : text);
    SQLFreeStmt(statement_.get(), SQL_RESET_PARAMS);
    if (in_portions_) FetchPortion();
}

void OdbcResult::FetchPortion() {
    SQLFreeStmt(statement_.get(), SQL_CLOSE);
    wanted_ = portion_ == 0
                  ? kFirstRows
                  : std::clamp(kPortionBytes * portion_ / (bytes_ + 1), std::size_t{1}, kMostRows);
    portion_ = 0;
    bytes_ = 0;
    Run("FETCH FORWARD " + std::to_string(wanted_) + " FROM varnel_rows");
}

void OdbcResult::Describe() {
    SQLSMALLINT count = 0;
    if (!SQL_SUCCEEDED(SQLNumResultCols(statement_.get(), &count))) Fail();
    if (count == 0) RaiseOdbc("The statement gives no rows: a query was expected.", query_.text);
    columns_.reserve(static_cast<std::size_t>(count));
    for (SQLUSMALLINT number = 1; number <= count; ++number) {
        auto& column = columns_.emplace_back(statement_.get(), number);
        if (column.IsBinary())
            RaiseOdbc("Column \"" + column.Name() +
                          "\" holds binary data, which reports cannot read: leave it out.",
                      query_.text);
        if (!column.Bind(statement_.get(), kBlockRows)) Fail();
    }
}

Columns OdbcResult::ReadColumns() const {
    Columns columns;
    for (const auto& column : columns_) columns.Add(column.Name());
    return columns;
}

bool OdbcResult::FetchRows() {
    next_ = 0;
    rows_ = 0;
    const auto result =
        Watched(query_.pool->Watch(), statement_.get(), [&] { return SQLFetch(statement_.get()); });
    if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) Fail();
    if (result == SQL_NO_DATA) rows_ = 0;
    portion_ += rows_;
    return rows_ > 0;
}

bool OdbcResult::FetchBlock() {
    if (FetchRows()) return true;
    if (!in_portions_ || portion_ < wanted_) return false;
    FetchPortion();
    return FetchRows();
}

bool OdbcResult::Read(Row& row) {
    if (next_ == rows_ && !FetchBlock()) return false;
    if (row_states_[next_] == SQL_ROW_ERROR) Fail();
    row.Start(columns_.size());
    for (const auto& column : columns_) {
        ReadCell(column, row);
        bytes_ += column.Bytes(next_);
    }
    ++next_;
    return true;
}

void OdbcResult::ReadCell(const OdbcColumn& column, Row& row) {
    if (!column.IsCut(next_)) {
        if (!column.Read(next_, text_, row)) Fail(column.Unreadable(next_));
        return;
    }
    const auto position = static_cast<SQLSETPOSIROW>(next_ + 1);
    const auto moved = SQLSetPos(statement_.get(), position, SQL_POSITION, SQL_LOCK_NO_CHANGE);
    if (!SQL_SUCCEEDED(moved) || !column.ReadLong(statement_.get(), text_)) Fail();
    row.AddText(text_);
}

void OdbcResult::Fail() {
    const auto diagnosis = Diagnose(SQL_HANDLE_STMT, statement_.get());
    const bool stopped =
        diagnosis.state == "57014" || diagnosis.state == "HYT00" || diagnosis.state == "HY008";
    if (stopped && query_.pool->Watch().Cancelled()) Fail(kCancelled);
    if (stopped && query_.timeout > 0) Fail(TimeLimitReached(query_.timeout));
    if (diagnosis.IsLoss()) query_.pool->Lose(diagnosis.Describe());
    LeaveConnection();
    RaiseOdbc(diagnosis, query_.text);
}

void OdbcResult::Fail(const std::string& description) {
    LeaveConnection();
    RaiseOdbc(description, query_.text);
}

void OdbcResult::LeaveConnection() {
    statement_.reset();
    connection_.reset();
}

}  // namespace varnel::drivers
