#include "cli/report_subject.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "cli/errors.h"
#include "cli/nearest_name.h"
#include "framework/query_runner.h"

namespace varnel::cli {

namespace {

/// A property that an option sets.
struct PropertyWithOption {
    std::string_view ReportEntry::*property;
    std::string_view option;
};

constexpr PropertyWithOption kPropertiesWithOption[] = {
    {&ReportEntry::account_property, "--account"},
    {&ReportEntry::currency_property, "--currency"},
    {&ReportEntry::projects_property, "--projects"},
    {&ReportEntry::cumulative_from_property, "--cumulative-from"},
    {&ReportEntry::cumulative_to_property, "--cumulative-to"},
    {&ReportEntry::statement_date_property, "--statement-date"},
    {&ReportEntry::ending_balance_property, "--ending-balance"},
    {&ReportEntry::history_property, "--history"},
    {&ReportEntry::rows_property, "--rows"},
};

/// What a report can be about, and the option that must say so.
struct Subject {
    std::string_view ReportEntry::*property;
    std::string RunRequest::*given;
    std::string_view words, option, value;
};

constexpr Subject kSubjects[] = {
    {&ReportEntry::account_property, &RunRequest::account, "one account", "--account", "NUMBER"},
    {&ReportEntry::currency_property, &RunRequest::currency, "one currency", "--currency", "CODE"},
    {&ReportEntry::projects_property, &RunRequest::projects, "some projects", "--projects", "IDS"},
    {&ReportEntry::statement_date_property, &RunRequest::statement_date, "one bank statement",
     "--statement-date", "DATE"},
    {&ReportEntry::ending_balance_property, &RunRequest::ending_balance, "one bank statement",
     "--ending-balance", "AMOUNT"},
    {&ReportEntry::rows_property, &RunRequest::rows_file, "the lines to reconcile", "--rows",
     "FILE"},
};

/// Something that the command line names and reports know by its id.
struct Kind {
    std::string_view option, thing;
    std::string_view ReportEntry::*property;
    std::string RunRequest::*name;
    const char* query;  // Id and name of each.
};

constexpr Kind kKinds[] = {
    {"--account", "account", &ReportEntry::account_property, &RunRequest::account,
     "SELECT InGLAcctId, GLAcctId FROM GLAcct"},
    {"--currency", "currency", &ReportEntry::currency_property, &RunRequest::currency,
     "SELECT InCurrencyId, CurrencyCode FROM WorldCurrency"},
};

void RefuseProperty(std::string_view property, std::string_view option, const RunRequest& request) {
    for (const auto& text : request.properties) {
        const std::string name = text.substr(0, text.find('='));
        if (SameName(name, property))
            throw UsageError("--property " + name + ": use " + std::string(option) + " instead");
    }
}

/// A saved reconciliation knows what it is about.
void RefuseBesideHistory(const RunRequest& request) {
    for (const auto& subject : kSubjects)
        if (!(request.*subject.given).empty())
            throw UsageError("--history: leave out " + std::string(subject.option) +
                             ", which is for the reconciliation in progress");
}

/// Numbers that begin alike are near: they come first, so that they win over others as near.
std::string NearName(std::string_view name, const std::vector<std::string>& names) {
    const auto alike = [name](std::string_view other) {
        return std::ranges::mismatch(name, other).in1 - name.begin();
    };
    std::vector<std::string_view> known(names.begin(), names.end());
    std::ranges::stable_sort(known, std::greater(), alike);
    return DidYouMean(name, known);
}

std::int32_t IdOf(const Kind& kind, std::string_view name, Application& application) {
    const auto rows = framework::RunQuery(application, kind.query, {});
    std::vector<std::string> names;
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        row.AppendText({1}, names.emplace_back());
        if (SameName(names.back(), name)) return row.Integer({0});
    }
    throw UsageError(std::string(kind.option) + ": the company has no " + std::string(kind.thing) +
                     " " + std::string(name) + NearName(name, names));
}

void RefuseHomeCurrency(std::int32_t currency_id, company::CompanyHost& host,
                        const std::string& code) {
    if (currency_id == host.CurrentCompany().GetCurrencyInfo().CieHomeCurrencyId())
        throw UsageError("--currency: " + code +
                         " is the company's own currency; name a foreign one");
}

}  // namespace

void RequireSubject(const ReportEntry& entry, const RunRequest& request) {
    for (const auto& [property, option] : kPropertiesWithOption)
        if (!(entry.*property).empty()) RefuseProperty(entry.*property, option, request);
    if (!request.history.empty()) return RefuseBesideHistory(request);
    for (const auto& subject : kSubjects)
        if (!(entry.*subject.property).empty() && (request.*subject.given).empty())
            throw UsageError(
                std::string(entry.name) + " is about " + std::string(subject.words) + ": add " +
                std::string(subject.option) + " " + std::string(subject.value) +
                (entry.history_property.empty() ? ""
                                                : ", or --history ID for a saved reconciliation"));
}

void PutSubject(IReport& report, const ReportEntry& entry, company::CompanyHost& host,
                const RunRequest& request) {
    for (const auto& kind : kKinds) {
        const auto property = entry.*kind.property;
        const std::string& name = request.*kind.name;
        if (property.empty() || name.empty()) continue;
        const std::int32_t id = IdOf(kind, name, host);
        if (kind.property == &ReportEntry::currency_property) RefuseHomeCurrency(id, host, name);
        report.IReport_ReportDesigner()->Put(property, id);
    }
}

}  // namespace varnel::cli
