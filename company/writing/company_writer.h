#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "company/company_address.h"
#include "company/writing/writing_options.h"
#include "host/currency.h"
#include "host/date.h"
#include "host/rate.h"

namespace varnel::company {

/// A statement with "?" marks that writes, run once or many times. Values are bound in order, then
/// `Run` is called. Texts must live until then.
class WritingStatement {
  public:
    virtual ~WritingStatement() = default;
    virtual void Bind(int position, std::int64_t value) = 0;
    virtual void Bind(int position, Currency value) = 0;
    virtual void Bind(int position, Rate value) = 0;
    virtual void Bind(int position, Date value) = 0;
    virtual void Bind(int position, std::string_view value) = 0;
    virtual void BindNull(int position) = 0;
    virtual void Run() = 0;
};

/// A company database that is being made. It appears whole when it is finished; a writer that goes
/// before leaves everything as it was. Every failure is an `Error` that names the place.
class CompanyWriter {
  public:
    virtual ~CompanyWriter() = default;
    virtual std::unique_ptr<WritingStatement> Prepare(std::string_view sql) = 0;
    /// Statements without "?", with semicolons between them.
    virtual void Execute(const char* sql) = 0;
    /// The whole numbers in the first row of a query over what was written so far; null is 0.
    virtual std::vector<std::int64_t> Numbers(const std::string& query) = 0;
    /// Builds the indexes and makes the company appear.
    virtual void Finish() = 0;
};

/// Makes the tables of a new company, still empty. Raises an error when there is something at the
/// address already and is not to be overwritten; on a server, tables of other programs stay in
/// either case.
std::unique_ptr<CompanyWriter> NewCompany(const CompanyAddress& address,
                                          const WritingOptions& options = {});

}  // namespace varnel::company
