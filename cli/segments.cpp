#include "cli/segments.h"

#include "cli/names_by_id.h"

namespace varnel::cli {

namespace {

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
        const auto names = ReadNames(host, "SELECT InSegmentId, SegmentCode, Descr FROM Segment");
        for (const auto id : ids) AppendPart(text, NameOf(id, names, "segment"));
    }
    if (also_none) AppendPart(text, NoSegmentWords(host.Language()));
    return text;
}

}  // namespace varnel::cli
