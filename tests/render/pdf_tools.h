#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "render/pdf/pdf_writer.h"

namespace varnel::render {

/// A file name of its own in the temporary folder, removed at the end.
class TemporaryFile {
  public:
    explicit TemporaryFile(std::string_view content);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    std::string Path() const { return path_.string(); }

  private:
    std::filesystem::path path_;
};

struct ToolRun {
    int exit_code;
    std::string output;  // standard output and standard error
};

bool HasTool(const std::string& name);
/// Runs a shell command.
ToolRun RunTool(const std::string& command);

/// A document of one page, 612 x 792 points, drawn by `draw`.
std::string MakePdf(const std::function<void(PdfPage&)>& draw, const PdfInfo& info = {});
std::string MakePdf(std::string_view text);

/// The text that a reader copies out of the document, without the line and page ends at its end.
std::string ExtractText(const std::string& pdf);

/// How often `part` occurs.
std::size_t Count(std::string_view text, std::string_view part);

}  // namespace varnel::render
