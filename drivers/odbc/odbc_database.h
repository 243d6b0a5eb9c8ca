#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/data_access.h"

namespace varnel::drivers {

class OdbcPool;

/// The connections of one host to databases that an ODBC driver reaches, kept for its next query.
/// For one thread at a time: a thread of its own takes an `OdbcConnections` of its own.
///
/// Each row set has a connection to itself until its last row is read: a query that fails, or the
/// end of a transaction, then ends no other. Sessions only read, and every query is rolled back.
class OdbcConnections {
  public:
    /// `cancelled`, which may be empty, is asked often while a query is at work, from another
    /// thread: when it says yes the query ends with error 3709.
    explicit OdbcConnections(std::function<bool()> cancelled = {});

    /// While an object that this gave lives, every query sees the database as it was at the first
    /// of them, whoever writes meanwhile; on PostgreSQL, elsewhere nothing changes.
    std::shared_ptr<void> HoldSnapshot();

    /// Whether a connection was lost, or none could be made, while the last snapshot was held.
    /// Until it goes, queries then end at once with the same error.
    bool IsLost() const;

    const std::shared_ptr<OdbcPool>& Pool() const { return pool_; }

  private:
    std::shared_ptr<OdbcPool> pool_;
    std::weak_ptr<void> snapshot_;
};

/// A query over ODBC. Its connection string is an ODBC one ("Driver={PostgreSQL Unicode};…");
/// `connections` need not outlive it. Nothing is opened before it is executed.
///
/// The text is one statement that reads, sent as it stands. From PostgreSQL rows come in portions,
/// through a cursor, so that any number of them takes the same memory. With a time limit no single
/// wait for the database is longer than that.
std::shared_ptr<Command> NewOdbcCommand(OdbcConnections& connections);

}  // namespace varnel::drivers
