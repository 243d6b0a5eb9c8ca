#pragma once

#include <memory>
#include <span>
#include <string>

#include "host/object.h"
#include "host/row.h"
#include "host/variant.h"

namespace varnel {

/// The rows of a query, read forward. It keeps whatever it reads from (statement, connection)
/// alive.
///
/// A row set stands on its first row when it is new. Errors of the database come out of the call
/// that met them, with the statement in the description unless it was never reached.
class Recordset : public Object {
  public:
    std::string_view ObjectName() const override { return "Recordset"; }
    virtual const Columns& GetColumns() const = 0;
    virtual bool AtEnd() const = 0;
    /// The row it stands on; error 3021 at the end. Valid until the next move: copy the Row to keep
    /// it.
    virtual const Row& Current() const = 0;
    virtual void MoveNext() = 0;
    /// Back to the first row. A driver may run the statement again for it.
    virtual void MoveFirst() = 0;
};

/// One query. Reports use it in this order: timeout, active connection, text, parameters (through
/// the host's binder), execute. The text is the report's, unaltered; what an engine cannot take as
/// it stands is its driver's business.
class Command : public Object {
  public:
    std::string_view ObjectName() const override { return "Command"; }
    /// In seconds; 0 is no limit.
    virtual void SetTimeout(int seconds) = 0;
    virtual void SetActiveConnection(const std::string& connection_string) = 0;
    virtual void SetText(const std::string& text) = 0;
    /// The value of the next "?" in the text, typed by the Variant's type.
    virtual void AppendParameter(const Variant& value) = 0;
    static constexpr int kOptionsUnspecified = -1;
    /// Runs the query. No records-affected count and no parameters are passed here, as reports need
    /// neither.
    virtual std::shared_ptr<Recordset> Execute(int options) = 0;
};

/// The current company's database, read only.
class CompanyDatabase {
  public:
    virtual ~CompanyDatabase() = default;
    virtual std::string ConnectionString() = 0;
    /// 1: the file-based desktop engine; 0: a server. Chooses the SQL dialect.
    virtual int DatabaseType() = 0;
    virtual std::shared_ptr<Command> NewCommand() = 0;
    /// While the object lives, every query sees the database as it was at the first of them: a
    /// report holds it for a run, so that its figures agree though somebody posts meanwhile. Where
    /// the database cannot do that nothing changes. What prevents it comes out of the first query.
    virtual std::shared_ptr<void> HoldSnapshot() { return nullptr; }
    /// True when the database went away while the last snapshot was held: figures of that run are
    /// missing.
    virtual bool IsLost() const { return false; }
    /// The host's parameter binder: appends the values to the command in order.
    virtual void BindParameters(Command& command, std::span<const Variant> parameters) {
        for (const auto& parameter : parameters) command.AppendParameter(parameter);
    }
};

/// One query from start to rows: a new command, no time limit, connection, text, parameters in the
/// order of the "?" marks, execution. Failures come out as the driver raised them.
std::shared_ptr<Recordset> RunQuery(CompanyDatabase& database, const std::string& text,
                                    std::span<const Variant> parameters);

}  // namespace varnel
