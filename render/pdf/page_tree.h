#pragma once

#include <cstdint>
#include <vector>

#include "render/pdf/pdf_objects.h"

namespace varnel::render {

/// Builds a balanced page tree while pages stream out: a node is written when it is full, so only
/// one open node a level is in memory.
class PageTree {
  public:
    explicit PageTree(PdfObjects& objects) : objects_(objects) {}

    /// Takes in the next page and returns its parent, which the page must name.
    ObjectId AddPage(ObjectId page);

    /// Writes the open nodes and returns the root. There must be a page.
    ObjectId Finish();

    std::uint64_t PageCount() const { return page_count_; }

  private:
    struct Node {
        ObjectId id = 0;
        std::vector<ObjectId> kids;
        std::uint64_t pages = 0;
    };

    ObjectId Add(std::size_t level, ObjectId kid, std::uint64_t pages);
    void Write(const Node& node, ObjectId parent);

    PdfObjects& objects_;
    std::vector<Node> open_;  // from the parents of pages up to the root
    std::uint64_t page_count_ = 0;
};

}  // namespace varnel::render
