#include "company/demo/open_items.h"

namespace varnel::company::demo {

void OpenItems::Add(const OpenItem& item) {
    turns_.push({item.due, ++order_, item.party});
    parties_[item.party].items.push_back(item);
}

bool OpenItems::AnyDue(Date today) const { return !turns_.empty() && turns_.top().due <= today; }

void OpenItems::DropServedTurns() {
    while (!turns_.empty() && parties_[turns_.top().party].served_early > 0) {
        --parties_[turns_.top().party].served_early;
        turns_.pop();
    }
}

std::vector<OpenItem> OpenItems::TakeDue(Date today, std::size_t most, Currency limit) {
    std::vector<OpenItem> taken;
    DropServedTurns();
    if (!AnyDue(today)) return taken;
    Party& party = parties_[turns_.top().party];
    Currency total;
    while (taken.size() < most && !party.items.empty()) {
        const OpenItem& item = party.items.front();
        total += item.open;
        if (total > limit || (!taken.empty() && item.due > today)) break;
        taken.push_back(item);
        party.items.pop_front();
    }
    if (taken.empty()) return taken;
    party.served_early += static_cast<int>(taken.size()) - 1;
    turns_.pop();
    return taken;
}

}  // namespace varnel::company::demo
