#pragma once

#include "accounts/keyed_collection.h"
#include "host/member_table.h"

namespace varnel {

/// Hands out the items of a collection one after the other, which late-bound hosts do with `Next`
/// and `Reset`. It keeps the collection alive.
///
/// It counts positions: what is added meanwhile still comes; when an item that was handed out is
/// removed, the one that moves up into its turn is passed over.
template <class Item>
class CollectionEnumerator final : public Object {
  public:
    explicit CollectionEnumerator(std::shared_ptr<const KeyedCollection<Item>> collection)
        : collection_(std::move(collection)) {}

    std::string_view ObjectName() const override { return "CollectionEnumerator"; }
    Variant Call(std::string_view name, std::span<const Variant> arguments) override {
        return CallMember<CollectionEnumerator>(kMembers, *this, name, arguments);
    }

    /// The next item; an empty reference after the last one.
    std::shared_ptr<Item> Next() {
        const auto& items = collection_->All();
        return next_ < items.size() ? items[next_++] : nullptr;
    }
    /// Starts again at the first item.
    void Reset() { next_ = 0; }

  private:
    static Variant CallNext(CollectionEnumerator& it, std::span<const Variant>) {
        return ObjectRef(it.Next());
    }
    static Variant CallReset(CollectionEnumerator& it, std::span<const Variant>) {
        it.Reset();
        return {};
    }
    static constexpr Member<CollectionEnumerator> kMembers[] = {
        {"Next", nullptr, nullptr, CallNext}, {"Reset", nullptr, nullptr, CallReset}};

    std::shared_ptr<const KeyedCollection<Item>> collection_;
    std::size_t next_ = 0;
};

}  // namespace varnel
