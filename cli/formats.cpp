#include "cli/formats.h"

#include <filesystem>
#include <string>

#include "cli/errors.h"
#include "host/object.h"
#include "render/bands/csv.h"
#include "render/bands/jsonl.h"
#include "render/pages/pdf_pages.h"
#include "render/pages/print_measurer.h"
#include "render/text/text_measurer.h"
#include "render/text/text_writer.h"

namespace varnel::cli {

namespace {

using engine::DocumentInfo;
using engine::RunResult;
using render::ByteSink;

RunResult WritePdf(BandedReport& report, const DocumentInfo& info, const OutputLayout& layout,
                   ByteSink& sink, RunMonitor& monitor) {
    render::FontSet fonts;
    render::PrintMeasurer measurer(fonts);
    engine::PageStore pages;
    const auto result = engine::RunToPages(report, layout.page, measurer, pages, &monitor);
    if (result.cancelled || monitor.StartFailed(result)) return result;
    render::PdfPageWriter writer(sink, fonts);
    engine::WritePages(pages, info, writer);
    return result;
}

RunResult WriteText(BandedReport& report, const DocumentInfo& info, const OutputLayout& layout,
                    ByteSink& sink, RunMonitor& monitor) {
    const Twips width = report.GetSurface().Width();
    const int columns = layout.columns > 0 ? layout.columns : render::TextGrid::kDefaultColumns;
    const render::TextGrid grid(width, columns);
    render::TextMeasurer measurer(grid);
    render::TextWriter writer(sink, {.columns = grid.Columns(), .bold = layout.bold});
    return engine::RunToPlacedBands(report, info, width, measurer, writer, &monitor);
}

template <class Writer>
RunResult WriteBands(BandedReport& report, const DocumentInfo& info, const OutputLayout&,
                     ByteSink& sink, RunMonitor& monitor) {
    Writer writer(sink);
    return engine::RunToBands(report, info, writer, &monitor);
}

constexpr OutputFormat kFormats[] = {
    {"txt", true, WriteText},
    {"pdf", false, WritePdf},
    {"csv", true, WriteBands<render::CsvWriter>},
    {"jsonl", true, WriteBands<render::JsonLinesWriter>},
};

const OutputFormat* Find(std::string_view name) {
    for (const auto& format : kFormats)
        if (SameName(format.name, name)) return &format;
    return nullptr;
}

std::string Names() {
    std::string names;
    for (const auto& format : kFormats) {
        if (!names.empty()) names += &format == std::end(kFormats) - 1 ? " or " : ", ";
        names += format.name;
    }
    return names;
}

const OutputFormat& FormatOf(const std::string& file) {
    const std::string ending = std::filesystem::path(file).extension().string();
    if (ending.empty()) return kFormats[0];
    if (const auto* format = Find(std::string_view(ending).substr(1))) return *format;
    throw UsageError("the ending of " + file + " tells no format: add -O with " + Names());
}

}  // namespace

const OutputFormat& ChooseFormat(const RunRequest& request) {
    if (request.format.empty()) return FormatOf(request.output);
    if (const auto* format = Find(request.format)) return *format;
    throw UsageError("there is no format " + request.format + ": use " + Names());
}

}  // namespace varnel::cli
