#include "company/company_address.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>
#include <vector>

#include "drivers/odbc/connection_string.h"
#include "host/error.h"
#include "host/object.h"

namespace varnel::company {

namespace {

using drivers::ConnectionKeyword;

[[noreturn]] void Refuse(const std::string& fault) {
    throw Error(error_number::kInvalidArgument, "Company", fault);
}

[[noreturn]] void RefusePassword() {
    Refuse(
        "the address of the company holds a password, which others can read there: leave it out "
        "and give it by PGPASSWORD, a password file (PGPASSFILE) or an ODBC data source");
}

bool BeginsWith(std::string_view text, std::string_view start) {
    return text.size() >= start.size() && SameName(text.substr(0, start.size()), start);
}

/// Takes the text up to the mark off `text`, the mark too; all of it when there is none.
std::string_view TakeUntil(std::string_view& text, char mark) {
    const auto end = text.find(mark);
    const auto taken = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return taken;
}

/// "%2F" is "/".
std::string Decoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        const char* const digits = text.data() + i + 1;
        const bool coded = text[i] == '%' && i + 2 < text.size() &&
                           std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
        decoded += coded ? static_cast<char>(byte) : text[i];
        if (coded) i += 2;
    }
    return decoded;
}

/// What PostgreSQL's own addresses call things, and what its ODBC driver calls them.
struct UrlPart {
    std::string_view name, keyword;
};
constexpr UrlPart kUrlParts[] = {
    {"host", "Server"}, {"port", "Port"},       {"dbname", "Database"},
    {"user", "UID"},    {"sslmode", "SSLmode"},
};

class UrlReader {
  public:
    std::vector<ConnectionKeyword> Read(std::string_view rest) {
        std::string_view place = TakeUntil(rest, '?');
        std::string_view server = TakeUntil(place, '/');
        if (const auto at = server.rfind('@'); at != std::string_view::npos) {
            ReadUser(server.substr(0, at));
            server.remove_prefix(at + 1);
        }
        ReadServer(server);
        Put("dbname", place);
        while (!rest.empty()) ReadSetting(TakeUntil(rest, '&'));
        return std::move(keywords_);
    }

  private:
    void ReadUser(std::string_view user) {
        if (user.find(':') != std::string_view::npos) RefusePassword();
        Put("user", user);
    }

    void ReadServer(std::string_view server) {
        const auto colon = server.rfind(':');
        const bool has_port =
            colon != std::string_view::npos && server.find(']', colon) == std::string_view::npos;
        if (has_port) Put("port", server.substr(colon + 1));
        if (has_port) server.remove_suffix(server.size() - colon);
        if (server.starts_with('[') && server.ends_with(']'))
            server = server.substr(1, server.size() - 2);
        Put("host", server);
    }

    void ReadSetting(std::string_view setting) {
        const std::string_view name = TakeUntil(setting, '=');
        if (BeginsWith(name, "pass")) RefusePassword();
        Put(name, setting);
    }

    /// A later value takes the place of an earlier one.
    void Put(std::string_view name, std::string_view value) {
        if (value.empty()) return;
        for (const auto& part : kUrlParts) {
            if (part.name != name) continue;
            std::erase_if(keywords_, [&](const auto& known) { return known.name == part.keyword; });
            keywords_.push_back({std::string(part.keyword), Decoded(value)});
            if (keywords_.back().value.find('\0') != std::string::npos)
                Refuse("the address of the company holds a zero character (%00): leave it out");
            return;
        }
        Refuse("the address of the company sets \"" + std::string(name) +
               "\", which is not known: host, port, dbname, user and sslmode are");
    }

    std::vector<ConnectionKeyword> keywords_{{"Driver", "PostgreSQL Unicode"}};
};

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

constexpr std::string_view kConnectionWords[] = {
    "Driver", "DSN",  "FileDSN",  "Server", "Servername", "Database", "UID",   "Username",
    "PWD",    "Port", "Password", "Pass",   "host",       "dbname",   "pqopt", "user"};

/// Keywords in any order; what looks like one is never taken for a file, whose name is printed.
bool IsConnectionString(std::string_view text) {
    const auto equals = text.find('=');
    if (equals == std::string_view::npos) return false;
    const auto name = Trimmed(text.substr(0, equals));
    return std::ranges::any_of(kConnectionWords,
                               [&](std::string_view word) { return SameName(name, word); });
}

bool HoldsPassword(const ConnectionKeyword& keyword) {
    for (const std::string_view name : {"PWD", "Pass", "Password"})
        if (SameName(keyword.name, name)) return true;
    std::string value = keyword.value;
    std::erase(value, ' ');
    return value.find("password=") != std::string::npos;
}

std::string CheckedConnectionString(const std::string& text) {
    for (const auto& keyword : drivers::ParseConnectionString(text))
        if (HoldsPassword(keyword)) RefusePassword();
    return text;
}

}  // namespace

CompanyAddress ParseCompanyAddress(const std::string& given) {
    const std::string text(Trimmed(given));
    for (const std::string_view scheme : {"postgresql://", "postgres://"})
        if (BeginsWith(text, scheme))
            return {text, drivers::JoinConnectionString(
                              UrlReader().Read(std::string_view(text).substr(scheme.size())))};
    if (text.find("://") != std::string::npos)
        Refuse(
            "the address of the company begins with no scheme that is known; write "
            "postgresql://user@host/database, an ODBC connection string or the name of a file");
    if (IsConnectionString(text)) return {text, CheckedConnectionString(text)};
    return {given, {}};
}

}  // namespace varnel::company
