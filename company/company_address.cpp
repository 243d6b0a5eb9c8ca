#include "company/company_address.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
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
        "the address of the company holds a password, or what looks like one, which others can "
        "read there: leave it out and give it by PGPASSWORD, a password file (PGPASSFILE) or an "
        "ODBC data source (in postgresql:// a name that holds \"@\" is written with %40)");
}

[[noreturn]] void RefuseScheme() {
    Refuse(
        "the address of the company begins with no scheme that is known; write "
        "postgresql://user@host/database, an ODBC connection string or the name of a file");
}

bool BeginsWith(std::string_view text, std::string_view start) {
    return text.size() >= start.size() && SameName(text.substr(0, start.size()), start);
}

bool EndsWith(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && SameName(text.substr(text.size() - end.size()), end);
}

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool IsWord(std::string_view text) {
    constexpr std::string_view kOfWords =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_- ";
    return !text.empty() && text.find_first_not_of(kOfWords) == std::string_view::npos;
}

bool IsAmong(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::ranges::any_of(names, [&](std::string_view one) { return SameName(name, one); });
}

/// "PWD=", "sslpassword =" and their like anywhere, whatever stands around them.
bool MentionsPassword(std::string_view text) {
    for (auto equals = text.find('='); equals != text.npos; equals = text.find('=', equals + 1))
        for (const std::string_view name : {"pwd", "pass", "passwd", "password"})
            if (EndsWith(Trimmed(text.substr(0, equals)), name)) return true;
    return false;
}

/// "user:something@".
bool HoldsLogin(std::string_view text) {
    const auto colon = text.find(':');
    return colon != text.npos && text.find('@', colon) != text.npos;
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

[[noreturn]] void RefuseKeywords() {
    Refuse(
        "the address of the company is no whole ODBC connection string: write "
        "Name=value;Name={value}, or ./ before the name of a file");
}

bool IsPort(std::string_view text) {
    std::uint16_t port = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), port);
    return read.ec == std::errc{} && read.ptr == text.data() + text.size() && port != 0;
}

/// Any other one connects unencrypted, without a word.
bool IsSslMode(std::string_view text) {
    constexpr std::string_view kModes[] = {"disable", "allow",     "prefer",
                                           "require", "verify-ca", "verify-full"};
    return std::ranges::find(kModes, text) != std::end(kModes);
}

/// No message shows a value: it may be a password that went astray.
void CheckKeyword(const ConnectionKeyword& keyword) {
    const auto& [name, value] = keyword;
    if (!IsWord(name)) RefuseKeywords();
    const bool is_user = IsAmong(name, {"UID", "Username", "User", "User ID"});
    const bool has_colon = value.find(':') != value.npos;
    if (MentionsPassword(value) || HoldsLogin(value) || (is_user && has_colon)) RefusePassword();
    if (value.find('\0') != value.npos)
        Refuse("the address of the company holds a zero character (%00): leave it out");
    if (SameName(name, "FileDSN"))
        Refuse("FileDSN= does not work: name the data source by DSN=, or write what it holds");
    if (SameName(name, "Port") && !value.empty() && !IsPort(value))
        Refuse("the port in the address of the company is no number from 1 to 65535");
    if (SameName(name, "SSLmode") && !IsSslMode(value))
        Refuse(
            "the sslmode in the address of the company is not known: disable, allow, prefer, "
            "require, verify-ca and verify-full are");
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
        if (HoldsLogin(rest)) RefusePassword();
        std::string_view place = TakeUntil(rest, '?');
        std::string_view server = TakeUntil(place, '/');
        if (place.find('@') != place.npos) RefusePassword();
        if (const auto at = server.rfind('@'); at != std::string_view::npos) {
            Put("user", server.substr(0, at));
            server.remove_prefix(at + 1);
        }
        ReadServer(server);
        Put("dbname", place);
        while (!rest.empty()) ReadSetting(TakeUntil(rest, '&'));
        return std::move(keywords_);
    }

  private:
    void ReadServer(std::string_view server) {
        const auto colon = server.find(':', server.starts_with('[') ? server.find(']') : 0);
        if (colon != server.npos) {
            Put("port", server.substr(colon + 1));
            server = server.substr(0, colon);
        }
        if (server.starts_with('[') && server.ends_with(']'))
            server = server.substr(1, server.size() - 2);
        Put("host", server);
    }

    void ReadSetting(std::string_view setting) {
        const std::string_view name = TakeUntil(setting, '=');
        Put(name, setting);
    }

    /// A later value takes the place of an earlier one.
    void Put(std::string_view name, std::string_view value) {
        for (const auto& part : kUrlParts) {
            if (part.name != name) continue;
            if (value.empty()) return;
            std::erase_if(keywords_, [&](const auto& known) { return known.name == part.keyword; });
            keywords_.push_back({std::string(part.keyword), Decoded(value)});
            return CheckKeyword(keywords_.back());
        }
        Refuse("the address of the company sets " +
               (IsWord(name) ? '"' + std::string(name) + '"' : "something") +
               ", which is not known: host, port, dbname, user and sslmode are");
    }

    std::vector<ConnectionKeyword> keywords_{{"Driver", "PostgreSQL Unicode"}};
};

/// Keywords in any order; what looks like them is never taken for a file, whose name is printed.
bool IsConnectionString(std::string_view text) {
    const auto equals = text.find('=');
    if (equals == text.npos) return false;
    const auto name = Trimmed(text.substr(0, equals));
    if (IsWord(name) && text.find(';') != text.npos) return true;
    return IsAmong(name, {"Driver", "DSN", "FileDSN", "Server", "Servername", "Database", "UID",
                          "Username", "Port", "host", "dbname", "pqopt", "user"});
}

// What the driver manager's parser says of a malformed string may show a part of it.
std::vector<ConnectionKeyword> KeywordsOf(std::string_view text) {
    try {
        return drivers::ParseConnectionString(text);
    } catch (const Error&) {
        RefuseKeywords();
    }
}

std::string CheckedConnectionString(const std::string& text) {
    for (const auto& keyword : KeywordsOf(text)) CheckKeyword(keyword);
    return text;
}

void CheckFileName(const std::string& text) {
    std::error_code ignored;
    if (std::filesystem::exists(text, ignored)) return;
    if (HoldsLogin(text)) RefusePassword();
    if (BeginsWith(text, "postgresql:") || BeginsWith(text, "postgres:")) RefuseScheme();
}

}  // namespace

CompanyAddress ParseCompanyAddress(const std::string& given) {
    const std::string text(Trimmed(given));
    if (MentionsPassword(text)) RefusePassword();
    for (const std::string_view scheme : {"postgresql://", "postgres://"})
        if (BeginsWith(text, scheme))
            return {text, drivers::JoinConnectionString(
                              UrlReader().Read(std::string_view(text).substr(scheme.size())))};
    if (text.find("://") != std::string::npos) RefuseScheme();
    if (IsConnectionString(text)) return {text, CheckedConnectionString(text)};
    CheckFileName(given);
    return {given, {}};
}

}  // namespace varnel::company
