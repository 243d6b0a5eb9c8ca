#include "reports/exchange/account_caption.h"

#include "framework/cell_values.h"

namespace varnel::reports {

std::string CaptionOf(const CGLAccts& accounts, std::int32_t account_id, bool with_number) {
    const auto account = accounts.Item(std::to_string(account_id));
    return framework::AccountCaption(with_number ? account->GLAcctId() : std::string(),
                                     account->Descr());
}

std::string AccountKey(std::int32_t account_id) { return "ACC|" + std::to_string(account_id); }

}  // namespace varnel::reports
