#include "company/writing/unfinished_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "company/writing/former_company.h"
#include "host/error.h"

namespace varnel::company {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kModeBits = 07777;

/// The file that a name stands for, links followed.
fs::path Target(fs::path path) {
    constexpr int kMostLinks = 40;
    std::error_code failure;
    for (int links = 0; links < kMostLinks && fs::is_symlink(path, failure); ++links)
        path = path.parent_path() / fs::read_symlink(path, failure);
    return path;
}

fs::path Folder(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

mode_t ModeOf(const fs::path& file) {
    struct stat status {};
    if (::stat(file.c_str(), &status) == 0) return status.st_mode & kModeBits;
    constexpr mode_t kEverybody = 0666;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return kEverybody & ~mask;
}

std::string Reason(int error_number) { return std::generic_category().message(error_number); }

}  // namespace

UnfinishedFile::UnfinishedFile(const fs::path& file, bool overwrite,
                               UnfinishedFileListener listener)
    : name_(file), final_(Target(file)), listener_(std::move(listener)) {
    Check(overwrite);
    Create();
    if (listener_) listener_(path_.string());
}

UnfinishedFile::~UnfinishedFile() {
    std::error_code ignored;
    fs::remove(path_, ignored);
    if (listener_) listener_({});
}

void UnfinishedFile::Refuse(const std::string& reason) const {
    throw Error(error_number::kInvalidArgument, "Company",
                "cannot create " + name_.string() + ": " + reason);
}

void UnfinishedFile::Check(bool overwrite) const {
    std::error_code ignored;
    const fs::path folder = Folder(final_);
    if (!fs::is_directory(folder, ignored))
        Refuse("there is no folder " + folder.string() + "; create it first");
    if (fs::is_symlink(final_, ignored)) Refuse("its links lead in a circle");
    const bool exists = fs::exists(final_, ignored);
    if (fs::is_directory(final_, ignored)) Refuse("it is a folder; add the name of a file");
    if (exists && !overwrite)
        Refuse("it exists already; choose another name or ask to overwrite it");
    if (exists && !fs::is_regular_file(final_, ignored)) Refuse("it is no file");
    // A rename needs no permission of the file that it replaces; its owner expects that it does.
    if (exists && ::access(final_.c_str(), W_OK) != 0) Refuse(Reason(errno));
    const auto journal = FormerCompany::Journal(final_);
    if (!overwrite && !journal.empty())
        Refuse(journal.string() +
               " is left of another company; choose another name or ask to overwrite it");
}

void UnfinishedFile::Create() {
    std::string path = (Folder(final_) / ".varnel-XXXXXX").string();
    const int descriptor = ::mkostemp(path.data(), O_CLOEXEC);
    if (descriptor < 0) Refuse(Reason(errno));
    path_ = path;
    ::fchmod(descriptor, ModeOf(final_));
    ::close(descriptor);
}

void UnfinishedFile::Flush(const fs::path& path) const {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const int result = descriptor < 0 ? -1 : ::fsync(descriptor);
    const int failure = errno;
    if (descriptor >= 0) ::close(descriptor);
    // Some file systems cannot flush a folder, or need not.
    if (result != 0 && failure != EINVAL) Refuse(Reason(failure));
}

void UnfinishedFile::Keep() const {
    Flush(path_);
    FormerCompany former(final_);
    former.RemoveJournals();
    if (::rename(path_.c_str(), final_.c_str()) != 0) Refuse(Reason(errno));
    Flush(Folder(final_));
}

}  // namespace varnel::company
