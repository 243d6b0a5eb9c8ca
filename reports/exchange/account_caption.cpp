#include "reports/exchange/account_caption.h"

namespace varnel::reports {

std::string AccountCaption(const CGLAccts& accounts, std::int32_t account_id, bool with_number) {
    const auto account = accounts.Item(std::to_string(account_id));
    std::string caption = with_number ? account->GLAcctId() : std::string();
    const std::string description = account->Descr();
    if (!caption.empty() && !description.empty()) caption += " - ";
    return caption + description;
}

std::string AccountKey(std::int32_t account_id) { return "ACC|" + std::to_string(account_id); }

}  // namespace varnel::reports
