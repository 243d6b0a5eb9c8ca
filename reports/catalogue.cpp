#include "framework/catalogue.h"

#include "accounts/cgl_acct.h"
#include "accounts/cgl_acct_helper.h"
#include "accounts/cgl_accts.h"
#include "reports/bank/bank_reconciliation.h"
#include "reports/bank/current_bank_reconciliation.h"
#include "reports/exchange/realized_exchange.h"
#include "reports/exchange/unrealized_exchange.h"
#include "reports/exchange/unrealized_exchange_detail.h"
#include "reports/journal/general_journal.h"
#include "reports/journal/general_ledger.h"
#include "reports/statements/balance_sheet.h"
#include "reports/statements/comparative_balance_sheet.h"
#include "reports/statements/comparative_income_statement.h"
#include "reports/statements/income_statement.h"
#include "reports/trial/general_ledger_by_account.h"
#include "reports/trial/gifi_report.h"
#include "reports/trial/trial_balance_detail.h"
#include "reports/trial/trial_balance_summary.h"

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
    {"dsrGeneralLedger", 30013, Make<reports::dsrGeneralLedger>},
    {"dsrGeneralLedgerByAccount", 30014, Make<reports::dsrGeneralLedgerByAccount>},
    {"dsrTrialBalanceSummary", 30001, Make<reports::dsrTrialBalanceSummary>},
    {"dsrTrialBalanceDetail", 30002, Make<reports::dsrTrialBalanceDetail>},
    {"dsrIncomeStatement", 6096, Make<reports::dsrIncomeStatement>},
    {"dsrBalanceSheet", 30003, Make<reports::dsrBalanceSheet>},
    {"dsrComparativeIncomeStatement", 30004, Make<reports::dsrComparativeIncomeStatement>},
    {"dsrComparativeBalanceSheet", 30006, Make<reports::dsrComparativeBalanceSheet>},
    {"dsrGIFIReport", 30007, Make<reports::dsrGIFIReport>},
    {"dsrBankReconciliation", 30008, Make<reports::dsrBankReconciliation>},
    {"dsrCurrentBankReconciliation", 30009, Make<reports::dsrCurrentBankReconciliation>},
    {"dsrUnRealExchProfitloss", 30010, Make<reports::dsrUnRealExchProfitloss>},
    {"dsrUnRealExchProfitlossDetail", 30011, Make<reports::dsrUnRealExchProfitlossDetail>},
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
