#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace varnel::drivers {

class OdbcWatch;

/// What a session may do.
enum class OdbcAccess { kRead, kWrite };

/// Frees a statement handle.
struct FreeStatement {
    void operator()(void* handle) const;
};
using OdbcStatementHandle = std::unique_ptr<void, FreeStatement>;

/// An open connection. Everything runs in a transaction, which `Commit` or `Rollback` ends. For one
/// thread at a time.
class OdbcConnection {
  public:
    /// The string is completed by the settings that the drivers rest on (connection_string.h).
    /// Raises error 3709 when there is no driver, no server or no right to enter. Messages show
    /// nothing of the string.
    /// `watch`, which must outlive the connection, interrupts statements.
    OdbcConnection(const std::string& connection_string, OdbcAccess access, OdbcWatch& watch);
    ~OdbcConnection() { Rollback(); }
    OdbcConnection(const OdbcConnection&) = delete;
    OdbcConnection& operator=(const OdbcConnection&) = delete;

    bool IsPostgres() const { return is_postgres_; }
    OdbcStatementHandle NewStatement() const;
    /// Runs a statement without rows; raises error 3709 when it fails.
    void Execute(std::string_view sql) const;
    /// The whole numbers in the first row of a query; null is 0.
    std::vector<std::int64_t> Numbers(std::string_view query) const;
    /// The one text, of up to 100 characters, that a query gives.
    std::string ShortText(std::string_view query) const;
    void Commit() const;
    /// False when the connection is of no use any more.
    bool Rollback() const noexcept;
    /// Asks the server: false when the connection was lost while nobody used it.
    bool Responds() const noexcept;

  private:
    struct Free {
        short type;
        void operator()(void* handle) const;
    };
    using Handle = std::unique_ptr<void, Free>;

    static Handle NewHandle(short type, void* parent);
    void SwitchAutocommit(bool on) const;
    bool FindPostgres() const;
    void PreparePostgres() const;
    void OnlyRead() const;
    OdbcStatementHandle Ran(std::string_view sql) const;

    OdbcWatch& watch_;
    Handle environment_, connection_;
    bool is_postgres_ = false;
};

}  // namespace varnel::drivers
