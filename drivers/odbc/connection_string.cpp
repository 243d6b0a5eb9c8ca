#include "drivers/odbc/connection_string.h"

#include <algorithm>
#include <functional>

#include "host/error.h"
#include "host/object.h"

namespace varnel::drivers {

namespace {

std::string_view Trimmed(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

[[noreturn]] void Refuse(const std::string& fault) {
    throw Error(error_number::kInvalidArgument, "ODBC", "The connection string " + fault);
}

/// Takes a value in braces, where "}}" is one "}", off the text.
std::string TakeBraced(std::string_view& text, const std::string& name) {
    std::string value;
    for (text.remove_prefix(1); !text.empty(); text.remove_prefix(1)) {
        if (text.front() == '}') {
            text.remove_prefix(1);
            if (!text.starts_with('}')) return value;
        }
        value += text.front();
    }
    Refuse("has no closing brace after " + name + "={");
}

ConnectionKeyword TakeKeyword(std::string_view& text) {
    const auto equals = text.find('=');
    if (equals == std::string_view::npos)
        Refuse("has a keyword without a value: write Name=value;Name=value");
    ConnectionKeyword keyword{std::string(Trimmed(text.substr(0, equals))), {}};
    text.remove_prefix(equals + 1);
    if (text.starts_with('{')) keyword.value = TakeBraced(text, keyword.name);
    const auto end = std::min(text.find(';'), text.size());
    if (keyword.value.empty()) keyword.value = Trimmed(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    return keyword;
}

std::string Braced(const std::string& value) {
    std::string braced = "{";
    for (const char c : value) braced += c == '}' ? std::string("}}") : std::string(1, c);
    return braced + '}';
}

bool NeedsBraces(const std::string& value) {
    return value.find_first_of(";{}[]()?*!@ ") != std::string::npos;
}

bool SameKeyword(const ConnectionKeyword& one, const ConnectionKeyword& other) {
    return SameName(one.name, other.name);
}

}  // namespace

std::vector<ConnectionKeyword> ParseConnectionString(std::string_view text) {
    std::vector<ConnectionKeyword> keywords;
    while (!Trimmed(text).empty()) keywords.push_back(TakeKeyword(text));
    return keywords;
}

std::string JoinConnectionString(const std::vector<ConnectionKeyword>& keywords) {
    std::string text;
    for (const auto& [name, value] : keywords)
        text += name + '=' + (NeedsBraces(value) ? Braced(value) : value) + ';';
    return text;
}

std::string WithOwnSettings(std::string_view connection_string) {
    static const ConnectionKeyword kNeeded[] = {
        {"UseDeclareFetch", "0"}, {"BoolsAsChar", "0"}, {"UseServerSidePrepare", "1"}};
    static const ConnectionKeyword kUsual[] = {{"KeepaliveTime", "60"},
                                               {"KeepaliveInterval", "10"}};
    auto keywords = ParseConnectionString(connection_string);
    for (const auto& setting : kNeeded) {
        std::erase_if(keywords, [&](const auto& given) { return SameKeyword(given, setting); });
        keywords.push_back(setting);
    }
    for (const auto& setting : kUsual)
        if (std::ranges::none_of(keywords, std::bind_front(SameKeyword, setting)))
            keywords.push_back(setting);
    return JoinConnectionString(keywords);
}

}  // namespace varnel::drivers
