#include "cli/run_settings.h"

#include <charconv>

#include "cli/errors.h"
#include "cli/exact_amount.h"
#include "cli/given_rates.h"
#include "company/filter/filter_fault.h"
#include "host/object.h"

namespace varnel::cli {

namespace {

Date ReadDate(std::string_view option, const std::string& text, Date when_empty) {
    if (text.empty()) return when_empty;
    Date date;
    if (!Date::TryParseIso(text, date))
        throw UsageError(std::string(option) + ": " + text +
                         " is no date; write one that exists as 2025-03-31");
    return date;
}

std::optional<Date> ReadGivenDate(std::string_view option, const std::string& text) {
    if (text.empty()) return {};
    return ReadDate(option, text, Date());
}

std::int32_t ReadId(std::string_view option, std::string_view text, std::string_view advice) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    std::int32_t id = 0;
    const auto* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, id);
    if (text.empty() || read.ec != std::errc{} || read.ptr != end)
        throw UsageError(std::string(option) + ": \"" + std::string(text) + "\" is no id; " +
                         std::string(advice));
    return id;
}

constexpr std::string_view kWriteIds = "write ids with commas between them, as 3,7";

std::optional<std::int32_t> ReadGivenId(std::string_view option, const std::string& text) {
    if (text.empty()) return {};
    return ReadId(option, text, "write one number, as 3");
}

Currency ReadAmount(std::string_view option, const std::string& text) {
    if (text.empty()) return {};
    try {
        return ReadExactAmount(text);
    } catch (const UsageError& error) {
        throw UsageError(std::string(option) + ": " + error.what());
    }
}

std::vector<std::int32_t> ReadIds(std::string_view option, std::string_view list) {
    std::vector<std::int32_t> ids;
    while (!list.empty()) {
        const auto comma = list.find(',');
        ids.push_back(ReadId(option, list.substr(0, comma), kWriteIds));
        if (comma == std::string_view::npos) break;
        list.remove_prefix(comma + 1);
        if (list.empty()) ReadId(option, list, kWriteIds);
    }
    return ids;
}

struct MemberWithOption {
    std::string_view member, option;
};

/// What the options set they check, too.
constexpr MemberWithOption kMembersWithOption[] = {
    {"IReport_Application", "--company"},
    {"IReport_DateFrom", "--from"},
    {"IReport_DateTo", "--to"},
    {"IReport_DisplayForeignCurrency", "--foreign"},
    {"IFilterableReport_Filter", "--filter"},
    {"IFilterableReport_FilterTool", "--filter"},
    {"ISegmentFilter_SegmentFilter", "--segments"},
    {"ISegmentFilter_SegmentFilterDisplay", "--segments"},
    {"ISegmentFilter_SegmentNoneFilter", "--no-segment"},
};

RunSettings::Property ReadProperty(const std::string& text) {
    const auto equals = text.find('=');
    if (equals == 0 || equals == std::string::npos)
        throw UsageError("--property: \"" + text + "\" is no property; write Name=value");
    const std::string name = text.substr(0, equals);
    for (const auto& [member, option] : kMembersWithOption)
        if (SameName(member, name))
            throw UsageError("--property " + name + ": use " + std::string(option) + " instead");
    return {name, text.substr(equals + 1)};
}

/// The name, in its own case, that the value stands for in any case.
std::string_view ReadChoice(std::string_view thing, std::string_view value,
                            std::span<const std::string_view> names) {
    std::string list;
    for (const auto name : names) {
        if (SameName(name, value)) return name;
        list += (list.empty() ? "" : " or ") + std::string(name);
    }
    throw UsageError("there is no " + std::string(thing) + " " + std::string(value) + ": use " +
                     list);
}

engine::PageSetup ReadPage(const std::string& paper, bool landscape) {
    static constexpr std::string_view kPapers[] = {"letter", "a4"};
    const bool a4 = !paper.empty() && ReadChoice("paper", paper, kPapers) == "a4";
    const auto page = a4 ? engine::PageSetup::A4() : engine::PageSetup::Letter();
    return landscape ? page.Landscape() : page;
}

std::optional<int> ReadDialect(const std::string& dialect) {
    static constexpr std::string_view kDialects[] = {"server", "desktop"};  // Types 0 and 1.
    if (dialect.empty()) return {};
    return ReadChoice("dialect", dialect, kDialects) == "server" ? 0 : 1;
}

/// Reports splice a filter into their statements as it stands, so it must be whole by itself.
void CheckFilter(const std::string& filter) {
    const auto fault = company::FindFilterFault(filter);
    if (!fault.empty()) throw UsageError("--filter \"" + filter + "\": " + fault);
}

}  // namespace

std::string ReadLanguage(std::string_view language) {
    static constexpr std::string_view kLanguages[] = {"en-CA", "fr-CA"};
    if (language.empty()) return {};
    return std::string(ReadChoice("language", language, kLanguages));
}

RunSettings ReadSettings(const RunRequest& request) {
    RunSettings settings;
    settings.from = ReadDate("--from", request.from, kOpenStart);
    settings.to = ReadDate("--to", request.to, kOpenEnd);
    if (settings.to < settings.from)
        throw UsageError("the period ends before it starts: --from " + settings.from.ToIso() +
                         " is after --to " + settings.to.ToIso());
    settings.cumulative.from = ReadGivenDate("--cumulative-from", request.cumulative_from);
    settings.cumulative.to = ReadGivenDate("--cumulative-to", request.cumulative_to);
    settings.statement = {.history = ReadGivenId("--history", request.history),
                          .date = ReadDate("--statement-date", request.statement_date, Date()),
                          .ending_balance = ReadAmount("--ending-balance", request.ending_balance)};
    settings.account_type = ReadGivenId("--account-type", request.account_type).value_or(0);
    settings.projects = ReadIds("--projects", request.projects);
    settings.segments = ReadIds("--segments", request.segments);
    settings.session_date = ReadGivenDate("--session-date", request.session_date);
    settings.rates = ReadRates(request.rates, request.rates_file);
    for (const auto& property : request.properties)
        settings.properties.push_back(ReadProperty(property));
    for (const auto& option : request.options) settings.options.push_back(ReadAnswer(option));
    CheckFilter(request.filter);
    settings.database_type = ReadDialect(request.dialect);
    settings.language = ReadLanguage(request.language);
    settings.page = ReadPage(request.paper, request.landscape);
    return settings;
}

}  // namespace varnel::cli
