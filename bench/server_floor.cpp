#include "bench/server_floor.h"

#include <sql.h>
#include <sqlext.h>

#include <stdexcept>
#include <vector>

namespace varnel::bench {

namespace {

constexpr SQLULEN kBlockRows = 250;
constexpr std::size_t kWidth = 256;

SQLCHAR* Bytes(std::string& text) { return reinterpret_cast<SQLCHAR*>(text.data()); }

void Check(SQLRETURN result, const char* what) {
    if (!SQL_SUCCEEDED(result)) throw std::runtime_error(std::string(what) + " failed");
}

class Connection {
  public:
    explicit Connection(std::string address) {
        if (!address.ends_with(';')) address += ';';
        address += "UseDeclareFetch=1;Fetch=5000;";
        SQLAllocHandle(SQL_HANDLE_ENV, nullptr, &environment_);
        SQLSetEnvAttr(environment_, SQL_ATTR_ODBC_VERSION, Number(SQL_OV_ODBC3), 0);
        SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_);
        Check(SQLDriverConnect(connection_, nullptr, Bytes(address), SQL_NTS, nullptr, 0, nullptr,
                               SQL_DRIVER_NOPROMPT),
              "the connection to the server");
        // With it the server would gather all rows before it gives the first.
        SQLSetConnectAttr(connection_, SQL_ATTR_AUTOCOMMIT, Number(SQL_AUTOCOMMIT_OFF), 0);
        SQLAllocHandle(SQL_HANDLE_STMT, connection_, &statement_);
    }
    ~Connection() {
        SQLFreeHandle(SQL_HANDLE_STMT, statement_);
        SQLEndTran(SQL_HANDLE_DBC, connection_, SQL_ROLLBACK);
        SQLDisconnect(connection_);
        SQLFreeHandle(SQL_HANDLE_DBC, connection_);
        SQLFreeHandle(SQL_HANDLE_ENV, environment_);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    SQLHSTMT Statement() const { return statement_; }
    static SQLPOINTER Number(SQLULEN value) {
        return reinterpret_cast<SQLPOINTER>(value);  // NOLINT(performance-no-int-to-ptr)
    }

  private:
    SQLHENV environment_ = nullptr;
    SQLHDBC connection_ = nullptr;
    SQLHSTMT statement_ = nullptr;
};

struct BoundColumn {
    std::vector<char> values = std::vector<char>(kBlockRows * kWidth);
    std::vector<SQLLEN> lengths = std::vector<SQLLEN>(kBlockRows);
};

}  // namespace

std::int64_t FetchRows(const std::string& odbc_connection, const std::string& statement) {
    const Connection connection(odbc_connection);
    const SQLHSTMT handle = connection.Statement();
    SQLULEN fetched = 0;
    SQLSetStmtAttr(handle, SQL_ATTR_ROW_ARRAY_SIZE, Connection::Number(kBlockRows), 0);
    SQLSetStmtAttr(handle, SQL_ATTR_ROWS_FETCHED_PTR, &fetched, 0);
    std::string text = statement;
    Check(SQLExecDirect(handle, Bytes(text), SQL_NTS), "the query");
    SQLSMALLINT count = 0;
    SQLNumResultCols(handle, &count);
    std::vector<BoundColumn> columns(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < columns.size(); ++i)
        SQLBindCol(handle, static_cast<SQLUSMALLINT>(i + 1), SQL_C_CHAR, columns[i].values.data(),
                   kWidth, columns[i].lengths.data());
    std::int64_t rows = 0;
    for (SQLRETURN result = SQLFetch(handle); result != SQL_NO_DATA; result = SQLFetch(handle)) {
        Check(result, "fetching rows");
        rows += static_cast<std::int64_t>(fetched);
    }
    return rows;
}

}  // namespace varnel::bench
