#include "cli/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "cli/errors.h"
#include "cli/interrupt.h"

namespace varnel::cli {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kModeBits = 07777;

[[noreturn]] void FailToCreate(const std::string& name, int error_number) {
    ThrowIfInterrupted();
    throw std::system_error(error_number, std::generic_category(), "cannot create " + name);
}

bool IsStandardOutput(const std::string& name) {
    return name == "-" || name == "/dev/stdout" || name == "/dev/fd/1";
}

/// The file that a name stands for, links followed, so that a link stays a link.
fs::path Target(fs::path path) {
    while (fs::is_symlink(path)) path = path.parent_path() / fs::read_symlink(path);
    return path;
}

mode_t ModeOfNewFiles() {
    constexpr mode_t kEverybody = 0666;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return kEverybody & ~mask;
}

void RequireFolder(const std::string& name, const fs::path& folder) {
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) return;
    throw Failure("cannot create " + name + ": there is no folder " + folder.string() +
                  "; create it first");
}

}  // namespace

OutputFile::OutputFile(const std::string& name) : OutputFile(Open(name)) {}

OutputFile::OutputFile(Place place)
    : DescriptorSink(place.descriptor, place.name), place_(std::move(place)) {}

OutputFile::Place OutputFile::Open(const std::string& name) {
    if (IsStandardOutput(name)) return {STDOUT_FILENO, "standard output", {}, {}};
    struct stat status {};
    if (::stat(name.c_str(), &status) != 0) {
        if (errno != ENOENT) FailToCreate(name, errno);  // Links in a circle among others.
        return OpenBeside(name);
    }
    if (S_ISDIR(status.st_mode))
        throw Failure("cannot create " + name + ": it is a folder; add the name of a file");
    if (!S_ISREG(status.st_mode)) return OpenDirectly(name);
    // A rename needs no permission of the file that it replaces; its owner expects that it does.
    if (::access(name.c_str(), W_OK) != 0) FailToCreate(name, errno);
    Place place = OpenBeside(name);
    ::fchmod(place.descriptor, status.st_mode & kModeBits);
    return place;
}

OutputFile::Place OutputFile::OpenDirectly(const std::string& name) {
    const int descriptor = ::open(name.c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0) FailToCreate(name, errno);
    return {descriptor, name, {}, {}};
}

OutputFile::Place OutputFile::OpenBeside(const std::string& name) {
    const fs::path target = Target(name);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    RequireFolder(name, folder);
    std::string path = (folder / ".varnel-XXXXXX").string();
    const int descriptor = ::mkostemp(path.data(), O_CLOEXEC);
    if (descriptor < 0) FailToCreate(name, errno);
    ::fchmod(descriptor, ModeOfNewFiles());
    SetUnfinishedFile(path);
    return {descriptor, name, path, target.string()};
}

OutputFile::~OutputFile() {
    if (Descriptor() >= 0 && Descriptor() != STDOUT_FILENO) ::close(Descriptor());
    if (!place_.unfinished.empty()) ::unlink(place_.unfinished.c_str());
    SetUnfinishedFile({});
}

void OutputFile::Write(std::string_view bytes) {
    ThrowIfInterrupted();
    DescriptorSink::Write(bytes);
}

void OutputFile::Close() {
    if (Descriptor() == STDOUT_FILENO) return;
    const int result = ::close(Descriptor());
    ForgetDescriptor();
    // After EINTR the descriptor is released all the same, and nothing of ours is lost.
    if (result != 0 && errno != EINTR) Fail("close", errno);
}

void OutputFile::Commit() {
    Flush();
    Close();
    ThrowIfInterrupted();
    if (place_.unfinished.empty()) return;
    if (std::rename(place_.unfinished.c_str(), place_.final_path.c_str()) != 0)
        FailToCreate(place_.name, errno);
    place_.unfinished.clear();
}

}  // namespace varnel::cli
