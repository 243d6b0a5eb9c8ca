#include "host/control_accounts.h"

namespace varnel {

ControlAccounts::ControlAccounts(Company& company)
    : company_(company),
      receivable_(company.GetGLAccountParam("CustGLAR", kCompanySection)),
      payable_(company.GetGLAccountParam("SuppGLAP", kCompanySection)) {}

bool ControlAccounts::Holds(std::int32_t account_id, std::int32_t currency_id) const {
    if (account_id == 0) return false;
    const auto& currency = company_.GetCurrencyInfo().GetCurrencies().Item(currency_id);
    return account_id == receivable_ || account_id == payable_ ||
           account_id == currency.ar_account_id || account_id == currency.ap_account_id;
}

}  // namespace varnel
