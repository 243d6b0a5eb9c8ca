#pragma once

#include <string>

namespace varnel::company {

/// Where a company's books are, as a user writes it: the path of an SQLite file,
/// "postgresql://user@host:port/database", or an ODBC connection string: it begins with "Driver=",
/// "DSN=" or the like, or with any word and "=", and holds ";".
struct CompanyAddress {
    std::string text;             ///< As it was written; it holds no password.
    std::string odbc_connection;  ///< Empty for a file.

    bool IsServer() const { return !odbc_connection.empty(); }
};

/// Raises error 5 when the address of a server is malformed or holds a password, or what could be
/// one: "pwd=", "password=" and the like anywhere, "user:something@" that is the path of no file.
/// No message shows a value. Everything else is the path of a file; "./" before it makes it one.
CompanyAddress ParseCompanyAddress(const std::string& text);

}  // namespace varnel::company
