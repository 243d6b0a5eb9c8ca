#include "render/pdf/page_tree.h"

#include "render/pdf/pdf_number.h"

namespace varnel::render {

namespace {

constexpr std::size_t kKidsOfNode = 64;

}  // namespace

ObjectId PageTree::AddPage(ObjectId page) {
    ++page_count_;
    return Add(0, page, 1);
}

ObjectId PageTree::Add(std::size_t level, ObjectId kid, std::uint64_t pages) {
    if (level == open_.size()) open_.emplace_back();
    if (open_[level].kids.size() == kKidsOfNode) {
        const ObjectId parent = Add(level + 1, open_[level].id, open_[level].pages);
        Write(open_[level], parent);
        open_[level] = Node{};
    }
    Node& node = open_[level];
    if (node.id == 0) node.id = objects_.Reserve();
    node.kids.push_back(kid);
    node.pages += pages;
    return node.id;
}

ObjectId PageTree::Finish() {
    for (std::size_t level = 0; level + 1 < open_.size(); ++level) {
        const ObjectId parent = Add(level + 1, open_[level].id, open_[level].pages);
        Write(open_[level], parent);
    }
    Write(open_.back(), 0);
    return open_.back().id;
}

void PageTree::Write(const Node& node, ObjectId parent) {
    std::string body = "<</Type/Pages/Count ";
    AppendInteger(body, static_cast<std::int64_t>(node.pages));
    if (parent != 0) {
        body += "/Parent ";
        AppendReference(body, parent);
    }
    body += "/Kids[";
    for (const ObjectId kid : node.kids) {
        AppendReference(body, kid);
        body += '\n';
    }
    body.back() = ']';
    body += ">>";
    objects_.WriteObject(node.id, body);
}

}  // namespace varnel::render
