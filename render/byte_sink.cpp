#include "render/byte_sink.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace varnel::render {

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;

[[noreturn]] void ThrowSystemError(const char* action, const std::string& name, int error_number) {
    throw std::system_error(error_number, std::generic_category(),
                            std::string("cannot ") + action + " " + name);
}

int OpenForWriting(const std::filesystem::path& path) {
    constexpr mode_t kEverybodyByUmask = 0666;
    const int descriptor =
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kEverybodyByUmask);
    if (descriptor < 0) ThrowSystemError("create", path.string(), errno);
    return descriptor;
}

}  // namespace

DescriptorSink::DescriptorSink(int descriptor, std::string name)
    : descriptor_(descriptor),
      name_(std::move(name)),
      buffer_(std::make_unique_for_overwrite<char[]>(kBufferSize)) {}

void DescriptorSink::Write(std::string_view bytes) {
    if (bytes.size() > kBufferSize - used_) Flush();
    if (bytes.size() >= kBufferSize) return WriteAll(bytes);
    std::copy(bytes.begin(), bytes.end(), buffer_.get() + used_);
    used_ += bytes.size();
}

void DescriptorSink::Flush() {
    const std::string_view pending(buffer_.get(), std::exchange(used_, 0));
    WriteAll(pending);
}

void DescriptorSink::WriteAll(std::string_view bytes) {
    if (!bytes.empty() && descriptor_ < 0) Fail("write", EBADF);
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            Fail("write", errno);
        }
    }
}

void DescriptorSink::Fail(const char* action, int error_number) const {
    ThrowSystemError(action, name_, error_number);
}

FileSink::FileSink(const std::filesystem::path& path)
    : DescriptorSink(OpenForWriting(path), path.string()) {}

FileSink::~FileSink() {
    if (Descriptor() >= 0) ::close(Descriptor());
}

void FileSink::Close() {
    if (Descriptor() < 0) return;
    Flush();
    const int result = ::close(Descriptor());
    ForgetDescriptor();
    // After EINTR the descriptor is released all the same, and nothing of ours is lost.
    if (result != 0 && errno != EINTR) Fail("close", errno);
}

StdoutSink::StdoutSink() : DescriptorSink(STDOUT_FILENO, "standard output") {}

}  // namespace varnel::render
