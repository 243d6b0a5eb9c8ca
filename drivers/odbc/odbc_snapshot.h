#pragma once

#include <memory>
#include <string>

#include "drivers/odbc/odbc_connection.h"

namespace varnel::drivers {

/// A database at one moment, for any number of connections at once. A connection of its own keeps
/// it open on the server.
class OdbcSnapshot {
  public:
    /// The moment is now.
    explicit OdbcSnapshot(std::unique_ptr<OdbcConnection> holder);

    /// Until its transaction ends the connection, which has read nothing in it, reads as of the
    /// moment. Nothing changes for it where a server shows its snapshots to nobody.
    void Show(const OdbcConnection& connection) const;

    /// Gives the connection back; the snapshot is over.
    std::unique_ptr<OdbcConnection> End() { return std::move(holder_); }

  private:
    std::unique_ptr<OdbcConnection> holder_;
    std::string name_;
};

}  // namespace varnel::drivers
