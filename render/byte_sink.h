#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace varnel::render {

/// Where a renderer's bytes go. Renderers write forwards only and never read back, so a pipe is as
/// good as a file.
///
/// Errors are std::system_error whose text names the destination ("cannot write /tmp/a.pdf: No
/// space left on device").
class ByteSink {
  public:
    virtual ~ByteSink() = default;
    ByteSink() = default;
    ByteSink(const ByteSink&) = delete;
    ByteSink& operator=(const ByteSink&) = delete;

    virtual void Write(std::string_view bytes) = 0;

    /// Hands everything written so far to the destination.
    virtual void Flush() {}
};

/// Keeps the bytes in memory; for tests and for hosts that want the document as a value.
class MemorySink final : public ByteSink {
  public:
    void Write(std::string_view bytes) override { bytes_.append(bytes); }
    const std::string& Bytes() const { return bytes_; }
    std::string Take() { return std::move(bytes_); }

  private:
    std::string bytes_;
};

/// Collects small writes and passes them to an open file descriptor. Partial and interrupted writes
/// are continued.
class DescriptorSink : public ByteSink {
  public:
    void Write(std::string_view bytes) override;
    void Flush() override;

  protected:
    /// `name` is how errors call the destination. The descriptor stays the caller's.
    DescriptorSink(int descriptor, std::string name);

    int Descriptor() const { return descriptor_; }
    void ForgetDescriptor() { descriptor_ = -1; }
    [[noreturn]] void Fail(const char* action, int error_number) const;

  private:
    void WriteAll(std::string_view bytes);

    int descriptor_;
    std::string name_;
    std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
};

/// Creates or empties a file. Call Close when the document is complete: only then are the last
/// errors (a full disk) reported. A sink destroyed without Close drops what is still buffered.
class FileSink final : public DescriptorSink {
  public:
    explicit FileSink(const std::filesystem::path& path);
    ~FileSink() override;

    /// Flushes and closes; a second call does nothing. The data is handed to the system, not forced
    /// to the disk.
    void Close();
};

/// Standard output of the process. Call Flush when the document is complete.
class StdoutSink final : public DescriptorSink {
  public:
    StdoutSink();
};

}  // namespace varnel::render
