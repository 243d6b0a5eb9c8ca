#pragma once

#include <string>

#include "render/byte_sink.h"

namespace varnel::cli {

/// Where a report goes: standard output ("-"), a device or pipe, which are written directly, or a
/// file, which appears whole or not at all: it is written beside its place under another name and
/// renamed by Commit. Without Commit nothing is left of it.
///
/// Whether the place can be written is found out when it is opened, before any work. Errors are
/// Failure or std::system_error, each naming the output. A write throws Interrupted after a signal.
class OutputFile final : public render::DescriptorSink {
  public:
    explicit OutputFile(const std::string& name);
    ~OutputFile() override;

    void Write(std::string_view bytes) override;
    /// Writes what is left and puts the file in its place.
    void Commit();

  private:
    /// Where the bytes go first, and where they end up.
    struct Place {
        int descriptor = -1;
        std::string name;        // As messages call it.
        std::string unfinished;  // The file to be renamed; empty when written directly.
        std::string final_path;
    };

    explicit OutputFile(Place place);
    static Place Open(const std::string& name);
    static Place OpenDirectly(const std::string& name);
    static Place OpenBeside(const std::string& name);
    void Close();

    Place place_;
};

}  // namespace varnel::cli
