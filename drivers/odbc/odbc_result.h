#pragma once

#include <memory>
#include <string>
#include <vector>

#include "drivers/odbc/odbc_column.h"
#include "drivers/odbc/odbc_pool.h"
#include "host/row.h"
#include "host/variant.h"

namespace varnel::drivers {

/// What a command was told before it is executed.
struct OdbcQuery {
    std::shared_ptr<OdbcPool> pool;
    std::string connection_string;
    std::string text;
    std::vector<Variant> parameters;
    int timeout = 0;  // In seconds; 0 is no limit.
};

/// A query that has run, with a connection of its own. Errors carry the text as the report wrote
/// it; the connection of one that failed is not used again.
class OdbcResult {
  public:
    /// `query` must outlive the result.
    explicit OdbcResult(const OdbcQuery& query);
    ~OdbcResult();
    OdbcResult(const OdbcResult&) = delete;
    OdbcResult& operator=(const OdbcResult&) = delete;

    Columns ReadColumns() const;
    /// Copies the next row; false when there is none. Allocates nothing once `row` has grown, but
    /// for texts that are long.
    bool Read(Row& row);

  private:
    void Run(const std::string& text);
    void Execute(const std::string& text);
    void FetchPortion();
    bool FetchRows();
    void Describe();
    bool FetchBlock();
    void ReadCell(const OdbcColumn& column, Row& row);
    void Set(int attribute, void* value);
    void LeaveConnection();
    [[noreturn]] void Fail();
    [[noreturn]] void Fail(const std::string& description);

    const OdbcQuery& query_;
    std::unique_ptr<OdbcConnection> connection_;
    OdbcStatementHandle statement_;  // Goes before its connection.
    std::vector<OdbcColumn> columns_;
    bool in_portions_ = false;
    std::size_t wanted_ = 0;   // Rows of the portion.
    std::size_t portion_ = 0;  // Of these, fetched so far.
    std::size_t bytes_ = 0;    // What their values take.
    unsigned long rows_ = 0;   // Of the block that is here.
    std::vector<unsigned short> row_states_;
    std::size_t next_ = 0;  // In it.
    std::string text_;
};

}  // namespace varnel::drivers
