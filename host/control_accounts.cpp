#include "host/control_accounts.h"

namespace varnel {

ControlAccounts::ControlAccounts(Company& company)
    : company_(company),
      receivable_(company.GetGLAccountParam("CustGLAR", kCompanySection)),
      payable_(company.GetGLAccountParam("SuppGLAP", kCompanySection)) {}

bool ControlAccounts::Holds(std::int32_t account_id, std::int32_t currency_id) const {
    const auto& currency = company_.GetCurrencyInfo().GetCurrencies().Item(currency_id);
    const auto is_account = [account_id](std::int32_t own, std::int32_t of_company) {
        return account_id != 0 && account_id == (own != 0 ? own : of_company);
    };
    return is_account(currency.ar_account_id, receivable_) ||
           is_account(currency.ap_account_id, payable_);
}

}  // namespace varnel
