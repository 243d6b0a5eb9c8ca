#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/error.h"
#include "host/variant.h"

namespace varnel {

/// Objects in the order in which they were added, reached by position, counted from 1, or by key.
/// Keys tell upper from lower case.
template <class Item>
class KeyedCollection {
  public:
    using Items = std::vector<std::shared_ptr<Item>>;

    /// Adds at the end. An item with an empty key is reached by position only. Error 457 when the
    /// key is taken: nothing is added then.
    void Add(std::shared_ptr<Item> item, const std::string& key) {
        if (indexes_.contains(key))
            throw Error(error_number::kDuplicateKey, "Collection",
                        "The collection has an item with the key \"" + key + "\" already");
        items_.push_back(std::move(item));
        if (!key.empty()) indexes_.emplace(key, items_.size() - 1);
    }

    /// The item with that key (a text) or position (any number). Error 5 for an unknown key, 9 for
    /// a position that there is not, 13 for what is neither.
    const std::shared_ptr<Item>& At(const Variant& index_key) const {
        return items_[IndexOf(index_key)];
    }

    /// Removes the item that `At` gives, with the same errors; those behind it move up.
    void Remove(const Variant& index_key) {
        const std::size_t index = IndexOf(index_key);
        std::erase_if(indexes_, [=](const auto& entry) { return entry.second == index; });
        for (auto& entry : indexes_)
            if (entry.second > index) --entry.second;
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
    }

    const Items& All() const { return items_; }

  private:
    std::size_t IndexOf(const Variant& index_key) const {
        if (index_key.Holds<std::string>()) return IndexOfKey(index_key.ToText());
        const std::int32_t position = index_key.ToInteger32();
        if (position < 1 || static_cast<std::size_t>(position) > items_.size())
            throw Error(error_number::kSubscriptOutOfRange, "Collection",
                        "The collection has no item " + std::to_string(position) + "; it holds " +
                            std::to_string(items_.size()));
        return static_cast<std::size_t>(position) - 1;
    }

    std::size_t IndexOfKey(const std::string& key) const {
        const auto found = indexes_.find(key);
        if (found == indexes_.end())
            throw Error(error_number::kInvalidArgument, "Collection",
                        "The collection has no item with the key \"" + key + "\"");
        return found->second;
    }

    Items items_;
    std::unordered_map<std::string, std::size_t> indexes_;
};

}  // namespace varnel
