#include "drivers/odbc/odbc_connection.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <array>
#include <cstdlib>

#include "drivers/odbc/connection_string.h"
#include "drivers/odbc/odbc_error.h"
#include "drivers/odbc/odbc_watch.h"
#include "drivers/odbc/utf16.h"
#include "drivers/query_error.h"
#include "drivers/query_faults.h"
#include "host/error.h"

namespace varnel::drivers {

namespace {

/// How long a server may take to let somebody in.
constexpr SQLULEN kLoginSeconds = 15;

/// Numbers that ODBC passes as pointers.
SQLPOINTER AsPointer(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value);  // NOLINT(performance-no-int-to-ptr)
}

/// What a message shows of a statement, which may hold a thousand rows.
std::string_view Shown(std::string_view sql) { return Beginning(sql, 300); }

}  // namespace

void OdbcConnection::Free::operator()(void* handle) const {
    if (type == SQL_HANDLE_DBC) SQLDisconnect(handle);  // One that is connected is not freed.
    SQLFreeHandle(type, handle);
}
void FreeStatement::operator()(void* handle) const { SQLFreeHandle(SQL_HANDLE_STMT, handle); }

OdbcConnection::Handle OdbcConnection::NewHandle(short type, void* parent) {
    SQLHANDLE handle = nullptr;
    if (!SQL_SUCCEEDED(SQLAllocHandle(type, parent, &handle)))
        RaiseOdbc("There is not enough memory for a database connection.");
    return {handle, Free{type}};
}

OdbcConnection::OdbcConnection(const std::string& connection_string, OdbcAccess access,
                               OdbcWatch& watch)
    : watch_(watch),
      environment_(NewHandle(SQL_HANDLE_ENV, nullptr)),
      connection_(nullptr, Free{}) {
    SQLSetEnvAttr(environment_.get(), SQL_ATTR_ODBC_VERSION, AsPointer(SQL_OV_ODBC3), 0);
    connection_ = NewHandle(SQL_HANDLE_DBC, environment_.get());
    if (std::getenv("PGCONNECT_TIMEOUT") == nullptr)
        SQLSetConnectAttrW(connection_.get(), SQL_ATTR_LOGIN_TIMEOUT, AsPointer(kLoginSeconds),
                           SQL_IS_UINTEGER);
    auto text = ToUtf16(WithOwnSettings(connection_string));
    const auto result = SQLDriverConnectW(connection_.get(), nullptr, text.data(), SQL_NTS, nullptr,
                                          0, nullptr, SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(result))
        RaiseOdbc("The database cannot be opened: " +
                  Diagnose(SQL_HANDLE_DBC, connection_.get()).Describe());
    is_postgres_ = FindPostgres();
    if (is_postgres_) PreparePostgres();
    if (access == OdbcAccess::kRead) OnlyRead();
    SwitchAutocommit(false);
}

// All that a transaction reads is of one moment, where the server knows how.
void OdbcConnection::OnlyRead() const {
    const std::string isolation = is_postgres_ ? "ISOLATION LEVEL REPEATABLE READ, " : "";
    Execute("SET SESSION CHARACTERISTICS AS TRANSACTION " + isolation + "READ ONLY");
}

bool OdbcConnection::FindPostgres() const {
    std::array<SQLCHAR, 64> name{};
    SQLSMALLINT length = 0;
    const auto result =
        SQLGetInfo(connection_.get(), SQL_DBMS_NAME, name.data(), name.size() - 1, &length);
    return SQL_SUCCEEDED(result) &&
           std::string_view(reinterpret_cast<const char*>(name.data())) == "PostgreSQL";
}

// A limit of the database or the user stays. Text literals are read and written for the one rule.
void OdbcConnection::PreparePostgres() const {
    Execute("SET standard_conforming_strings = on");
    Execute(
        "SELECT set_config('lock_timeout', '30s', false) WHERE current_setting('lock_timeout') = "
        "'0'");
    try {
        // Of a program that ended the server notices it while a query is at work.
        Execute("SET client_connection_check_interval = '5s'");
    } catch (const QueryError&) {
        // An older server, or one on a system that cannot tell.
    }
}

void OdbcConnection::SwitchAutocommit(bool on) const {
    const auto value = AsPointer(on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF);
    if (!SQL_SUCCEEDED(
            SQLSetConnectAttrW(connection_.get(), SQL_ATTR_AUTOCOMMIT, value, SQL_IS_UINTEGER)))
        RaiseOdbc(Diagnose(SQL_HANDLE_DBC, connection_.get()));
}

OdbcStatementHandle OdbcConnection::NewStatement() const {
    SQLHANDLE handle = nullptr;
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_STMT, connection_.get(), &handle)))
        RaiseOdbc(Diagnose(SQL_HANDLE_DBC, connection_.get()));
    return OdbcStatementHandle(handle);
}

OdbcStatementHandle OdbcConnection::Ran(std::string_view sql) const {
    OdbcStatementHandle statement = NewStatement();
    auto text = ToUtf16(sql);
    const OdbcWatch::Guard guard(watch_, statement.get());
    const auto result = SQLExecDirectW(statement.get(), text.data(), SQL_NTS);
    if (SQL_SUCCEEDED(result) || result == SQL_NO_DATA) return statement;
    if (watch_.Cancelled()) RaiseOdbc(kCancelled, Shown(sql));
    RaiseOdbc(Diagnose(SQL_HANDLE_STMT, statement.get()), Shown(sql));
}

void OdbcConnection::Execute(std::string_view sql) const { Ran(sql); }

std::vector<std::int64_t> OdbcConnection::Numbers(std::string_view query) const {
    const auto statement = Ran(query);
    SQLSMALLINT count = 0;
    bool read = SQL_SUCCEEDED(SQLNumResultCols(statement.get(), &count)) &&
                SQL_SUCCEEDED(SQLFetch(statement.get()));
    std::vector<std::int64_t> numbers(static_cast<std::size_t>(count));
    for (std::size_t i = 0; read && i < numbers.size(); ++i) {
        SQLLEN length = 0;
        read = SQL_SUCCEEDED(SQLGetData(statement.get(), static_cast<SQLUSMALLINT>(i + 1),
                                        SQL_C_SBIGINT, &numbers[i], sizeof numbers[i], &length));
    }
    if (!read) RaiseOdbc(Diagnose(SQL_HANDLE_STMT, statement.get()), query);
    return numbers;
}

std::string OdbcConnection::ShortText(std::string_view query) const {
    const auto statement = Ran(query);
    std::array<SQLWCHAR, 101> text{};
    SQLLEN length = 0;
    if (!SQL_SUCCEEDED(SQLFetch(statement.get())) ||
        !SQL_SUCCEEDED(
            SQLGetData(statement.get(), 1, SQL_C_WCHAR, text.data(), sizeof text, &length)))
        RaiseOdbc(Diagnose(SQL_HANDLE_STMT, statement.get()), query);
    return ToUtf8(text.data());
}

void OdbcConnection::Commit() const {
    if (!SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, connection_.get(), SQL_COMMIT)))
        RaiseOdbc(Diagnose(SQL_HANDLE_DBC, connection_.get()));
}

bool OdbcConnection::Rollback() const noexcept {
    if (!SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, connection_.get(), SQL_ROLLBACK))) return false;
    SQLUINTEGER dead = SQL_CD_FALSE;
    SQLGetConnectAttrW(connection_.get(), SQL_ATTR_CONNECTION_DEAD, &dead, sizeof dead, nullptr);
    return dead == SQL_CD_FALSE;
}

bool OdbcConnection::Responds() const noexcept {
    try {
        Execute("SELECT 1");
        return Rollback();
    } catch (const Error&) {
        return false;
    }
}

}  // namespace varnel::drivers
