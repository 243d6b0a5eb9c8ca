#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace varnel::render {

/// A growing run of bytes for the hot path: make room once, write through the pointer, commit.
class ByteBuffer {
  public:
    /// Room for `count` bytes after what is there; valid until the next call.
    char* Reserve(std::size_t count) {
        if (capacity_ - size_ < count) Grow(count);
        return bytes_.get() + size_;
    }

    /// Ends a write that began at the pointer Reserve returned.
    void Commit(const char* end) { size_ = static_cast<std::size_t>(end - bytes_.get()); }

    void Append(std::string_view text) {
        char* out = Reserve(text.size());
        std::copy(text.begin(), text.end(), out);
        size_ += text.size();
    }

    void Clear() { size_ = 0; }
    std::string_view View() const { return {bytes_.get(), size_}; }

  private:
    void Grow(std::size_t count) {
        constexpr std::size_t kSmallest = 4096;
        const std::size_t capacity = std::max({capacity_ * 2, size_ + count, kSmallest});
        auto bytes = std::make_unique_for_overwrite<char[]>(capacity);
        std::copy_n(bytes_.get(), size_, bytes.get());
        bytes_ = std::move(bytes);
        capacity_ = capacity;
    }

    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

}  // namespace varnel::render
