#include "tests/render/pdf_tools.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace varnel::render {

TemporaryFile::TemporaryFile(std::string_view content) {
    std::string name = (std::filesystem::temp_directory_path() / "varnel-XXXXXX").string();
    const int descriptor = ::mkstemp(name.data());
    if (descriptor >= 0) ::close(descriptor);
    path_ = name;
    std::ofstream(path_, std::ios::binary) << content;
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

bool HasTool(const std::string& name) { return RunTool("command -v " + name).exit_code == 0; }

ToolRun RunTool(const std::string& command) {
    ToolRun run{-1, {}};
    FILE* pipe = ::popen(("{ " + command + "; } 2>&1").c_str(), "r");
    if (pipe == nullptr) return run;
    char buffer[4096];
    std::size_t count = 0;
    while ((count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) {
        run.output.append(buffer, count);
    }
    const int status = ::pclose(pipe);
    run.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

std::string MakePdf(const std::function<void(PdfPage&)>& draw, const PdfInfo& info) {
    MemorySink sink;
    FontSet fonts;
    PdfWriter writer(sink, fonts, info);
    draw(writer.BeginPage(612, 792));
    writer.EndPage();
    writer.Finish();
    return sink.Take();
}

std::string MakePdf(std::string_view text) {
    return MakePdf([text](PdfPage& page) { page.Text(36, 72, {}, text); });
}

std::string ExtractText(const std::string& pdf) {
    const TemporaryFile file(pdf);
    std::string text = RunTool("pdftotext -enc UTF-8 " + file.Path() + " -").output;
    while (!text.empty() && (text.back() == '\n' || text.back() == '\f')) text.pop_back();
    return text;
}

std::size_t Count(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

}  // namespace varnel::render
