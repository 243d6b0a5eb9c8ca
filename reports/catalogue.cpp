#include "framework/catalogue.h"

#include "accounts/cgl_acct.h"
#include "accounts/cgl_acct_helper.h"
#include "accounts/cgl_accts.h"
#include "reports/exchange/realized_exchange.h"
#include "reports/exchange/unrealized_exchange.h"
#include "reports/journal/general_journal.h"

namespace varnel::framework {

namespace {

template <class Report>
std::shared_ptr<IReport> Make() {
    return std::make_shared<Report>();
}

template <class Class>
ObjectRef MakeObject() {
    return std::make_shared<Class>();
}

constexpr CatalogueEntry kReports[] = {
    {"dsrGeneralJournal", 6173, Make<reports::dsrGeneralJournal>},
    {"dsrGeneralLedger", 30013, nullptr},
    {"dsrGeneralLedgerByAccount", 30014, nullptr},
    {"dsrTrialBalanceSummary", 30001, nullptr},
    {"dsrTrialBalanceDetail", 30002, nullptr},
    {"dsrIncomeStatement", 6096, nullptr},
    {"dsrBalanceSheet", 30003, nullptr},
    {"dsrComparativeIncomeStatement", 30004, nullptr},
    {"dsrComparativeBalanceSheet", 30006, nullptr},
    {"dsrGIFIReport", 30007, nullptr},
    {"dsrBankReconciliation", 30008, nullptr},
    {"dsrCurrentBankReconciliation", 30009, nullptr},
    {"dsrUnRealExchProfitloss", 30010, Make<reports::dsrUnRealExchProfitloss>},
    {"dsrUnRealExchProfitlossDetail", 30011, nullptr},
    {"dsrRealizedExchProfitloss", 30012, Make<reports::dsrRealizedExchProfitloss>},
};

constexpr PublicClass kClasses[] = {
    {"Varnel.CGLAcct", MakeObject<CGLAcct>},
    {"Varnel.CGLAccts", MakeObject<CGLAccts>},
    {"Varnel.CGLAcctHelper", MakeObject<CGLAcctHelper>},
};

}  // namespace

std::span<const CatalogueEntry> Catalogue() { return kReports; }

std::span<const PublicClass> PublicClasses() { return kClasses; }

}  // namespace varnel::framework
