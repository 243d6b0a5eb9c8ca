#include "cli/segments.h"

#include <map>

#include "cli/errors.h"
#include "framework/query_runner.h"

namespace varnel::cli {

namespace {

using SegmentNames = std::map<std::int32_t, std::string>;

SegmentNames ReadSegments(Application& application) {
    const auto rows =
        framework::RunQuery(application, "SELECT InSegmentId, SegmentCode, Descr FROM Segment", {});
    const Column id = rows->GetColumns().At("InSegmentId");
    const Column code = rows->GetColumns().At("SegmentCode");
    const Column description = rows->GetColumns().At("Descr");
    SegmentNames names;
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        std::string& name = names[row.Integer(id)];
        row.AppendText(code, name);
        if (row.IsNull(description)) continue;
        name += " - ";
        row.AppendText(description, name);
    }
    return names;
}

[[noreturn]] void RefuseUnknown(std::int32_t id, const SegmentNames& names) {
    std::string list;
    for (const auto& [known, name] : names) list += "\n" + std::to_string(known) + "  " + name;
    throw UsageError("there is no segment " + std::to_string(id) +
                     (names.empty() ? "; the company has none" : "; there are:" + list));
}

void AppendPart(std::string& text, std::string_view part) {
    if (!text.empty()) text += ", ";
    text += part;
}

std::string_view NoSegmentWords(company::Language language) {
    return language == company::Language::kFrench ? "sans segment" : "no segment";
}

}  // namespace

std::string DescribeSegments(company::CompanyHost& host, std::span<const std::int32_t> ids,
                             bool also_none) {
    std::string text;
    if (!ids.empty()) {
        const auto names = ReadSegments(host);
        for (const auto id : ids) {
            const auto found = names.find(id);
            if (found == names.end()) RefuseUnknown(id, names);
            AppendPart(text, found->second);
        }
    }
    if (also_none) AppendPart(text, NoSegmentWords(host.Language()));
    return text;
}

}  // namespace varnel::cli
