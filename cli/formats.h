#pragma once

#include <string_view>

#include "cli/run_monitor.h"
#include "cli/run_request.h"
#include "render/byte_sink.h"

namespace varnel::cli {

/// How an output is laid out.
struct OutputLayout {
    engine::PageSetup page;
    int columns = 0;    // Of text; 0 is the usual number.
    bool bold = false;  // By terminal sequences.
};

/// A format that reports can be written in.
struct OutputFormat {
    std::string_view name;  // After -O, and the ending of a file's name.
    bool is_text;           // A terminal can show it.
    engine::RunResult (*write)(BandedReport& report, const engine::DocumentInfo& info,
                               const OutputLayout& layout, render::ByteSink& sink,
                               RunMonitor& monitor);
};

/// The format that is asked for, or that of the file's name; text when neither says. A UsageError
/// for one that there is not.
const OutputFormat& ChooseFormat(const RunRequest& request);

}  // namespace varnel::cli
