#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "engine/document.h"

namespace varnel::engine {

/// Finished pages, readable in any order. They are kept in memory up to a limit and in a temporary
/// file beyond it; the file has no name and goes with the store. Error 1000
/// when the file fails.
class PageStore {
  public:
    static constexpr std::size_t kMemoryLimit = 8u << 20;
    explicit PageStore(std::size_t memory_limit = kMemoryLimit);
    ~PageStore();
    PageStore(const PageStore&) = delete;
    PageStore& operator=(const PageStore&) = delete;

    void Append(const Page& page);
    int Count() const;
    /// Reads page `index` (from 0) into `page`, whose storage is reused. Error 9 when there is no
    /// such page.
    void Read(int index, Page& page);

  private:
    struct Storage;
    std::unique_ptr<Storage> storage_;
};

}  // namespace varnel::engine
