#include "drivers/odbc/odbc_error.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <array>

#include "drivers/odbc/utf16.h"
#include "drivers/query_error.h"

namespace varnel::drivers {

namespace {

struct Advice {
    std::string_view state;
    std::string_view in_message;  // Empty: whatever the message is.
    std::string_view text;
};

constexpr Advice kAdvice[] = {
    {"42P01", "", "The database lacks it: is it a company database?"},
    {"42703", "",
     "No table of the query has it: check the filter, and that this is a company "
     "database."},
    {"25006", "", "A query may only read."},
    {"42501", "", "Ask who keeps the database for the right to do that."},
    {"55P03", "",
     "A table is locked by somebody else: try again when they are done, or raise lock_timeout."},
    {"42883", "", "Is the database prepared for reports (docs/databases.md)?"},
    {"25P03", "",
     "The server ends transactions that rest (idle_in_transaction_session_timeout): take the "
     "rows up faster, into a file for one, or raise that limit."},
    {"53300", "", "Try again when others have left, or raise the server's limit."},
    {"57P01", "",
     "The server was shut down, or somebody ended the session: try again when it is back."},
    {"IM002", "", "Name an installed driver or data source; \"odbcinst -q -d\" lists drivers."},
    {"01000", "Can't open lib", "Name an installed driver; \"odbcinst -q -d\" lists them."},
    {"08001", "password",
     "Give the password by PGPASSWORD, a password file (PGPASSFILE) or the "
     "ODBC data source."},
    {"08001", "too many",
     "A report needs up to four connections: try again when others have left, or have the limit "
     "raised."},
    {"08001", "connection slots", "Try again when others have left, or have the limit raised."},
    {"08001", "does not exist", "Check the names of the database and of the user."},
    {"08001", "", "Check the address of the server, and that it is running."},
    {"08003", "", "The connection was lost: check that the server is running."},
    {"08006", "", "The connection was lost: check that the server is running."},
    {"08S01", "", "The connection was lost: check that the server is running."},
};

std::string_view AdviceFor(const OdbcDiagnosis& diagnosis) {
    for (const auto& advice : kAdvice)
        if (diagnosis.state == advice.state &&
            diagnosis.message.find(advice.in_message) != std::string::npos)
            return advice.text;
    return {};
}

void RemovePrefix(std::string& text, std::string_view prefix) {
    if (text.starts_with(prefix)) text.erase(0, prefix.size());
}

/// On one line, without what drivers write around every message.
std::string Tidied(std::string message) {
    for (char& c : message)
        if (c == '\n' || c == '\t' || c == '\r') c = ' ';
    RemovePrefix(message, "ERROR: ");
    const auto padding = message.find("; Error while executing the query");
    if (padding != std::string::npos) message.resize(padding);
    while (!message.empty() && std::string_view(" .;").find(message.back()) != std::string::npos)
        message.pop_back();
    return message;
}

/// An unknown function, feature or setting: PostgreSQL's protocol has speakers that lack some.
constexpr std::string_view kNotSupported[] = {"42883", "0A000", "42704"};

QueryFault FaultOf(const OdbcDiagnosis& diagnosis) {
    if (diagnosis.state == "42P01") return QueryFault::kMissingTable;
    const bool not_supported =
        std::ranges::find(kNotSupported, diagnosis.state) != std::end(kNotSupported);
    return not_supported ? QueryFault::kNotSupported : QueryFault::kOther;
}

[[noreturn]] void Raise(const std::string& description, QueryFault fault) {
    throw QueryError("ODBC", description, fault);
}

std::string WithStatement(const std::string& description, std::string_view statement) {
    return description + "\nStatement: " + std::string(statement);
}

}  // namespace

void RaiseOdbc(const std::string& description) { Raise(description, QueryFault::kOther); }
void RaiseOdbc(const OdbcDiagnosis& diagnosis) { Raise(diagnosis.Describe(), FaultOf(diagnosis)); }

void RaiseOdbc(const std::string& description, std::string_view statement) {
    RaiseOdbc(WithStatement(description, statement));
}
void RaiseOdbc(const OdbcDiagnosis& diagnosis, std::string_view statement) {
    Raise(WithStatement(diagnosis.Describe(), statement), FaultOf(diagnosis));
}

bool OdbcDiagnosis::IsLoss() const {
    return state.starts_with("08") || state.starts_with("57P") || state == "25P03";
}

std::string OdbcDiagnosis::Describe() const {
    const std::string sentence = message + " (SQLSTATE " + state + ").";
    const auto advice = AdviceFor(*this);
    return advice.empty() ? sentence : sentence + ' ' + std::string(advice);
}

OdbcDiagnosis Diagnose(short type, void* handle) {
    std::array<SQLWCHAR, 6> state{};
    std::array<SQLWCHAR, 1'024> message{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const auto result = SQLGetDiagRecW(type, handle, 1, state.data(), &native, message.data(),
                                       static_cast<SQLSMALLINT>(message.size()), &length);
    if (!SQL_SUCCEEDED(result)) return {"HY000", "The database driver gives no reason"};
    return {ToUtf8(state.data()), Tidied(ToUtf8(message.data()))};
}

}  // namespace varnel::drivers
