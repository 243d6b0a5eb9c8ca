#include "drivers/sqlite/sqlite_statement.h"

#include <sqlite3.h>

#include <algorithm>
#include <chrono>

#include "drivers/query_faults.h"
#include "drivers/sql_tokens.h"
#include "drivers/sqlite/sql_concatenation.h"
#include "drivers/sqlite/sqlite_error.h"
#include "host/error.h"

namespace varnel::drivers {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kInstructionsBetweenLooks = 10'000;

/// Interrupts what a connection does while this lives, once it is cancelled or the time is up.
class Watch {
  public:
    Watch(const SqliteConnection& connection, int seconds)
        : connection_(connection), has_deadline_(seconds > 0) {
        if (!Watches()) return;
        if (has_deadline_) deadline_ = Clock::now() + std::chrono::seconds(seconds);
        sqlite3_progress_handler(connection_.Handle(), kInstructionsBetweenLooks, Ends, this);
    }
    ~Watch() {
        if (Watches()) sqlite3_progress_handler(connection_.Handle(), 0, nullptr, nullptr);
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

  private:
    bool Watches() const { return has_deadline_ || connection_.CanBeCancelled(); }

    static int Ends(void* watch) {
        const auto& self = *static_cast<const Watch*>(watch);
        if (self.connection_.Cancelled()) return 1;
        return self.has_deadline_ && Clock::now() >= self.deadline_ ? 1 : 0;
    }

    const SqliteConnection& connection_;
    bool has_deadline_;
    Clock::time_point deadline_;
};

bool IsNothingOrSemicolon(const SqlToken& token) {
    return token.kind == SqlTokenKind::kEndOfText || token.text == ";";
}

}  // namespace

void SqliteStatement::Finalize::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

SqliteStatement::SqliteStatement(std::shared_ptr<const SqliteConnection> connection,
                                 const SqliteQuery& query)
    : connection_(std::move(connection)), text_(query.text), timeout_(query.timeout) {
    Prepare();
    Bind(query.parameters);
    columns_ = sqlite3_column_count(handle_.get());
}

void SqliteStatement::Prepare() {
    const std::string rewritten = RewriteConcatenation(text_);
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    const int code = sqlite3_prepare_v2(connection_->Handle(), rewritten.c_str(),
                                        static_cast<int>(rewritten.size()), &statement, &rest);
    handle_.reset(statement);
    if (code != SQLITE_OK) RaiseSqlite(connection_->LastError(), text_);
    if (statement == nullptr) RaiseSqlite(kNoStatement, text_);
    CheckRest(rest, rewritten.data() + rewritten.size());
}

void SqliteStatement::CheckRest(const char* rest, const char* end) const {
    const auto tokens = TokenizeSql({rest, static_cast<std::size_t>(end - rest)});
    const auto found = std::find_if_not(tokens.begin(), tokens.end(), IsNothingOrSemicolon);
    if (found == tokens.end()) return;
    RaiseSqlite(MoreThanOneStatement(found->text), text_);
}

void SqliteStatement::Bind(std::span<const Variant> parameters) {
    const auto wanted = static_cast<std::size_t>(sqlite3_bind_parameter_count(handle_.get()));
    if (wanted != parameters.size())
        RaiseSqlite(WrongParameterCount(wanted, parameters.size()), text_);
    int number = 0;
    for (const auto& value : parameters)
        if (BindOne(++number, value) != SQLITE_OK) RaiseSqlite(connection_->LastError(), text_);
}

int SqliteStatement::BindOne(int number, const Variant& value) {
    auto* const handle = handle_.get();
    if (value.IsNull() || value.IsEmpty()) return sqlite3_bind_null(handle, number);
    if (value.Holds<bool>()) return sqlite3_bind_int(handle, number, value.ToBool() ? 1 : 0);
    if (value.Holds<std::int16_t>() || value.Holds<std::int32_t>())
        return sqlite3_bind_int(handle, number, value.ToInteger32());
    if (value.Holds<double>() || value.Holds<Currency>())
        return sqlite3_bind_double(handle, number, value.ToDouble());
    if (value.Holds<ObjectRef>())
        RaiseSqlite("Parameter " + std::to_string(number) + " is an object, not a value.", text_);
    const std::string text = value.ToText();  // A date is stored and compared in its ISO form.
    return sqlite3_bind_text64(handle, number, text.data(), text.size(), SQLITE_TRANSIENT,
                               SQLITE_UTF8);
}

Columns SqliteStatement::ReadColumns() const {
    Columns columns;
    for (int i = 0; i < columns_; ++i) {
        const char* name = sqlite3_column_name(handle_.get(), i);
        columns.Add(name == nullptr ? "" : name);
    }
    return columns;
}

bool SqliteStatement::Step() {
    const Watch watch(*connection_, timeout_);
    const int code = sqlite3_step(handle_.get());
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) FailStep(code);
    return false;
}

void SqliteStatement::FailStep(int code) const {
    if (code == SQLITE_INTERRUPT && connection_->Cancelled()) RaiseSqlite(kCancelled, text_);
    if (code == SQLITE_INTERRUPT) RaiseSqlite(TimeLimitReached(timeout_), text_);
    RaiseSqlite(connection_->LastError(), text_);
}

void SqliteStatement::Reset() { sqlite3_reset(handle_.get()); }

void SqliteStatement::ReadRow(Row& row) const {
    auto* const handle = handle_.get();
    row.Start(static_cast<std::size_t>(columns_));
    for (int i = 0; i < columns_; ++i) {
        switch (sqlite3_column_type(handle, i)) {
            case SQLITE_INTEGER:
                row.AddInteger(sqlite3_column_int64(handle, i));
                break;
            case SQLITE_FLOAT:
                row.AddReal(sqlite3_column_double(handle, i));
                break;
            case SQLITE_TEXT: {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle, i));
                row.AddText({text, static_cast<std::size_t>(sqlite3_column_bytes(handle, i))});
                break;
            }
            case SQLITE_NULL:
                row.AddNull();
                break;
            default:
                FailBinary(i);
        }
    }
}

void SqliteStatement::FailBinary(int column) const {
    RaiseSqlite("Column \"" + std::string(sqlite3_column_name(handle_.get(), column)) +
                    "\" holds binary data, which reports cannot read: leave it out or use hex().",
                text_);
}

}  // namespace varnel::drivers
