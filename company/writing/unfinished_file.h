#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace varnel::company {

/// Hears the path of a file that is not complete yet, for who ends the program at once to remove
/// it; an empty text when there is none any more.
using UnfinishedFileListener = std::function<void(const std::string& path)>;

/// The file that is being written, beside the one that it is to become, under a name that nothing
/// else has. Gone unless kept. Has the permissions of the file that it replaces; a link stays a
/// link, and what it points to is replaced.
class UnfinishedFile {
  public:
    /// Raises an error when the file may not be made.
    UnfinishedFile(const std::filesystem::path& file, bool overwrite,
                   UnfinishedFileListener listener);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    /// The file as its user calls it.
    const std::filesystem::path& Name() const { return name_; }
    /// Puts the file, which nothing has open any more, safely on disk and in its place. Raises an
    /// error, and leaves the company that is there whole, when somebody is writing to that.
    void Keep() const;

  private:
    [[noreturn]] void Refuse(const std::string& reason) const;
    void Check(bool overwrite) const;
    void Create();
    void Flush(const std::filesystem::path& path) const;

    std::filesystem::path name_, final_, path_;
    UnfinishedFileListener listener_;
};

}  // namespace varnel::company
