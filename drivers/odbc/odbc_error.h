#pragma once

#include <string>
#include <string_view>

namespace varnel::drivers {

/// What the driver says about the last failure at a handle.
struct OdbcDiagnosis {
    std::string state;    ///< SQLSTATE, five characters.
    std::string message;  ///< Of the database, on one line, without a full stop.

    /// The connection is gone: the server was lost, or has ended it.
    bool IsLoss() const;
    /// The message with its SQLSTATE as a sentence, and what to do about it where that is known.
    std::string Describe() const;
};

/// Raises error 3709 of source "ODBC" (query_error.h).
[[noreturn]] void RaiseOdbc(const std::string& description);
[[noreturn]] void RaiseOdbc(const OdbcDiagnosis& diagnosis);

/// The same for a statement, which ends the description on a line of its own.
[[noreturn]] void RaiseOdbc(const std::string& description, std::string_view statement);
[[noreturn]] void RaiseOdbc(const OdbcDiagnosis& diagnosis, std::string_view statement);

/// `type` and `handle` as the driver manager knows them.
OdbcDiagnosis Diagnose(short type, void* handle);

}  // namespace varnel::drivers
