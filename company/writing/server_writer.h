#pragma once

#include <map>
#include <memory>
#include <string>

#include "company/writing/company_writer.h"
#include "drivers/odbc/odbc_connection.h"
#include "drivers/odbc/odbc_watch.h"

namespace varnel::company {

/// A company in a database on a server, made in one transaction.
class ServerWriter final : public CompanyWriter {
  public:
    ServerWriter(const CompanyAddress& address, const WritingOptions& options);

    std::unique_ptr<WritingStatement> Prepare(std::string_view sql) override;
    void Execute(const char* sql) override;
    std::vector<std::int64_t> Numbers(const std::string& query) override;
    void Finish() override;

    /// One row, "(1, 'a')", for a statement that ends in VALUES. Rows are sent many at a time,
    /// those of one statement in order.
    void AddRow(const std::string& insert, std::string_view row);
    /// Runs a statement after every row that was added before it.
    void Send(std::string_view sql);

  private:
    void SendAllRows();
    void SendRows(const std::string& insert, std::string& rows);
    /// Does the work; an error names the place.
    template <class Work>
    auto AtPlace(Work&& work) const;

    std::string place_;
    drivers::OdbcWatch watch_;
    std::unique_ptr<drivers::OdbcConnection> connection_;
    std::map<std::string, std::string> rows_;  // By statement.
};

}  // namespace varnel::company
