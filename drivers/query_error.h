#pragma once

#include <string>

#include "host/error.h"

namespace varnel::drivers {

/// What a query failed of, as far as somebody acts on it.
enum class QueryFault { kOther, kMissingTable, kNotSupported };

/// Error 3709 of a database, with its kind.
class QueryError : public Error {
  public:
    QueryError(std::string source, const std::string& description, QueryFault fault)
        : Error(error_number::kDatabase, std::move(source), description), fault_(fault) {}

    QueryFault Fault() const noexcept { return fault_; }

  private:
    QueryFault fault_;
};

}  // namespace varnel::drivers
