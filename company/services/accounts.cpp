#include "company/services/accounts.h"

#include <algorithm>

#include "company/services/id_list.h"
#include "company/services/query.h"
#include "company/services/setting_names.h"
#include "host/error.h"

namespace varnel::company {

const std::unordered_map<std::int32_t, CompanyAccounts::Account>& CompanyAccounts::All() {
    if (accounts_) return *accounts_;
    std::unordered_map<std::int32_t, Account> accounts;
    const auto rows = Query(database_, "SELECT InGLAcctId, AcctType, ExCurrencyId FROM GLAcct");
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        const bool income =
            types_.Class(row.Integer(Column{1})) == AccountTypes::kIncomeStatementClass;
        accounts[row.Integer(Column{0})] = {row.Integer(Column{2}), income};
    }
    return accounts_.emplace(std::move(accounts));
}

std::int32_t CompanyAccounts::CurrencyOf(std::int32_t account_id) {
    const auto found = All().find(account_id);
    if (found == All().end())
        throw Error(error_number::kInvalidArgument, "Accounts",
                    "There is no account with the id " + std::to_string(account_id));
    const std::int32_t own = found->second.currency_id;
    return own != 0 ? own : settings_.Id(setting::kHomeCurrencyId);
}

std::string CompanyAccounts::OtherRevaluedAccountIds() {
    return ListOrNone(params_.IdsOf(account_param::kRevaluedSection));
}

bool CompanyAccounts::IsIncomeStatement(std::int32_t account_id) {
    const auto found = All().find(account_id);
    return found != All().end() && found->second.income_statement;
}

std::optional<CompanyAccounts::ForeignAccount> CompanyAccounts::AsForeign(std::int32_t account_id) {
    const auto found = All().find(account_id);
    if (found == All().end()) return {};
    const std::int32_t own = found->second.currency_id;
    if (own == 0 || own == settings_.Id(setting::kHomeCurrencyId)) return {};
    return ForeignAccount{account_id, own};
}

// In a fixed order: when several rates are missing, the error is about the same one each time.
std::vector<CompanyAccounts::ForeignAccount> CompanyAccounts::ForeignOnBalanceSheet() {
    std::vector<ForeignAccount> foreign;
    for (const auto& [id, account] : All()) {
        if (account.income_statement) continue;
        if (const auto found = AsForeign(id)) foreign.push_back(*found);
    }
    std::ranges::sort(foreign, {}, &ForeignAccount::id);
    return foreign;
}

}  // namespace varnel::company
