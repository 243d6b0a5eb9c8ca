#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "host/data_access.h"
#include "host/error.h"

namespace varnel::drivers {

/// A database of one kind, empty but for what a case puts there.
class DriverFixture {
  public:
    virtual ~DriverFixture() = default;
    /// Runs statements that make tables and rows, by another way than the driver.
    virtual void Prepare(const std::string& script) = 0;
    virtual std::shared_ptr<Command> NewCommand() = 0;
    virtual std::string ConnectionString() = 0;

    std::shared_ptr<Command> NewQuery(const std::string& text,
                                      std::initializer_list<Variant> parameters = {});
    std::shared_ptr<Recordset> Query(const std::string& text,
                                     std::initializer_list<Variant> parameters = {});
    /// The first column of the first row, in its plain form.
    std::string Value(const std::string& text, std::initializer_list<Variant> parameters = {});
    Currency Amount(const std::string& text);
    /// The error that the query ends in, fetching every row; error 0 when it succeeds.
    Error Failure(const std::string& text, std::initializer_list<Variant> parameters = {});
};

struct DriverCase {
    const char* name;
    void (*run)(DriverFixture&);
};

/// What reports rely on, whichever database it is.
std::vector<DriverCase> RowCases();
std::vector<DriverCase> TextCases();
std::vector<DriverCase> SumCases();
std::vector<DriverCase> ErrorCases();
/// All of these.
std::vector<DriverCase> EveryDriverCase();

/// What the driver of a desktop database adds.
std::vector<DriverCase> MixedTextCases();

/// "WITH RECURSIVE n(i) …": a table `n` whose column `i` counts from 1 to `count`.
std::string CountTo(int count);

}  // namespace varnel::drivers
