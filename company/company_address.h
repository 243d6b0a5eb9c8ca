#pragma once

#include <string>

namespace varnel::company {

/// Where a company's books are, as a user writes it: the path of an SQLite file,
/// "postgresql://user@host:port/database", or an ODBC connection string, which begins with one of
/// its usual keywords ("Driver=", "DSN=", "Server=").
struct CompanyAddress {
    std::string text;             ///< As it was written; it holds no password.
    std::string odbc_connection;  ///< Empty for a file.

    bool IsServer() const { return !odbc_connection.empty(); }
};

/// Raises error 5 when the address of a server is malformed or holds a password, which the message
/// does not show. Everything else is the path of a file.
CompanyAddress ParseCompanyAddress(const std::string& text);

}  // namespace varnel::company
