#include "engine/page_store.h"

#include <cerrno>
#include <string_view>
#include <system_error>

#include "engine/page_codec.h"
#include "host/error.h"

namespace varnel::engine {

namespace {

[[noreturn]] void RaiseFileError(const char* what) {
    const int error = errno != 0 ? errno : EIO;
    Raise(error_number::kOther, "PageStore",
          std::string("The temporary file for finished pages cannot be ") + what + ": " +
              std::generic_category().message(error) +
              "; see that the temporary folder may be written to and free space in it");
}

/// A nameless file that is written at its end and read anywhere.
class SpillFile {
  public:
    void Append(std::string_view bytes) {
        if (file_ == nullptr) Open();
        Go(size_, Mode::kWriting);
        errno = 0;
        const auto written = std::fwrite(bytes.data(), 1, bytes.size(), file_.get());
        // Flushed page by page, so that a full disk is told about where it happens.
        if (written != bytes.size() || std::fflush(file_.get()) != 0) RaiseFileError("written");
        size_ += bytes.size();
        position_ = size_;
    }

    void Read(std::uint64_t offset, std::string& bytes) {
        Go(offset, Mode::kReading);
        errno = 0;
        if (std::fread(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size())
            RaiseFileError("read back");
        position_ = offset + bytes.size();
    }

  private:
    enum class Mode : std::uint8_t { kNone, kReading, kWriting };

    void Open() {
        errno = 0;
        file_.reset(std::tmpfile());
        if (file_ == nullptr) RaiseFileError("made");
    }

    void Go(std::uint64_t offset, Mode mode) {
        if (mode == mode_ && offset == position_) return;
        errno = 0;
        if (std::fseek(file_.get(), static_cast<long>(offset), SEEK_SET) != 0)
            RaiseFileError("positioned");
        mode_ = mode;
        position_ = offset;
    }

    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> file_;
    Mode mode_ = Mode::kNone;
    std::uint64_t size_ = 0;
    std::uint64_t position_ = 0;
};

}  // namespace

struct PageStore::Storage {
    std::size_t memory_limit;
    std::vector<std::uint64_t> ends;  // Of each page, counted from the first byte of the first.
    std::string memory;               // The first pages; the file goes on where it ends.
    bool spilling = false;
    SpillFile file;
    std::string scratch;
};

PageStore::PageStore(std::size_t memory_limit)
    : storage_(new Storage{
          .memory_limit = memory_limit, .ends = {}, .memory = {}, .file = {}, .scratch = {}}) {}

PageStore::~PageStore() = default;

int PageStore::Count() const { return static_cast<int>(storage_->ends.size()); }

void PageStore::Append(const Page& page) {
    auto& [limit, ends, memory, spilling, file, bytes] = *storage_;
    bytes.clear();
    EncodePage(page, bytes);
    spilling = spilling || memory.size() + bytes.size() > limit;
    if (spilling)
        file.Append(bytes);
    else
        memory += bytes;
    ends.push_back((ends.empty() ? 0 : ends.back()) + bytes.size());
}

void PageStore::Read(int index, Page& page) {
    auto& [limit, ends, memory, spilling, file, bytes] = *storage_;
    if (index < 0 || index >= Count())
        Raise(error_number::kSubscriptOutOfRange, "PageStore",
              "There is no page " + std::to_string(index + 1) + " of " + std::to_string(Count()));
    const auto place = static_cast<std::size_t>(index);
    const std::uint64_t begin = place == 0 ? 0 : ends[place - 1];
    const auto size = static_cast<std::size_t>(ends[place] - begin);
    if (begin + size <= memory.size()) {
        DecodePage(std::string_view(memory).substr(static_cast<std::size_t>(begin), size), page);
        return;
    }
    bytes.resize(size);
    file.Read(begin - memory.size(), bytes);
    DecodePage(bytes, page);
}

}  // namespace varnel::engine
