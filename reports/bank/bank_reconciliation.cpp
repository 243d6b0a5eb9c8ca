#include "reports/bank/bank_reconciliation.h"

#include "framework/query_runner.h"
#include "reports/bank/reconciliation_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

const Layout& BankReconciliationLayout() {
    static const Layout layout = ReconciliationLayout("dsrBankReconciliation");
    return layout;
}

constexpr Member<dsrBankReconciliation> kMembers[] = {
    {"ExBankConcilHistoryId",
     [](dsrBankReconciliation& r) -> Variant { return r.ExBankConcilHistoryId(); },
     [](dsrBankReconciliation& r, const Variant& v) { r.ExBankConcilHistoryId(v.ToInteger32()); }},
    {"RefreshTotalsWithBankConcilHistory", nullptr, nullptr,
     [](dsrBankReconciliation& r, std::span<const Variant>) -> Variant {
         r.RefreshTotalsWithBankConcilHistory();
         return {};
     }},
};

}  // namespace

dsrBankReconciliation::dsrBankReconciliation()
    : ReconciliationReport(BankReconciliationLayout(), 30008) {
    Members().Add<dsrBankReconciliation>(*this, kMembers);
}

Date dsrBankReconciliation::EffectiveDate() {
    if (history_id_ < 1) return GetSubject().statement_date;
    const auto records = (Mark(), CurrentCompany().Reconciliations().OpenRecords());
    const Column id = (Mark(), records->GetColumns().At("ID"));
    const Column date = (Mark(), records->GetColumns().At("BankConcilDate"));
    for (; !(Mark(), records->AtEnd()); (Mark(), records->MoveNext()))
        if (Mark(), records->Current().Integer(id) == history_id_)
            return (Mark(), records->Current().Day(date));
    return {};
}

ReconciliationScope dsrBankReconciliation::Scope() {
    return {.account_id = GetSubject().account_id,
            .history_id = history_id_,
            .statement_date = EffectiveDate()};
}

std::shared_ptr<Recordset> dsrBankReconciliation::OpenItems() {
    const ReconciliationScope scope = Scope();
    const int database_type = (Mark(), App().CurrentContext().Database().DatabaseType());
    const auto query = ItemsQuery(database_type, scope, IncludesReconciled());
    return (Mark(), RunQuery(App(), query.text, query.parameters));
}

// No rows add up to null, which is 0.
Currency dsrBankReconciliation::SumOf(const ParameterQuery& query) {
    const auto rows = (Mark(), RunQuery(App(), query.text, query.parameters));
    return (Mark(), rows->Current().Amount(Column{0}));
}

// A saved reconciliation balanced by definition.
void dsrBankReconciliation::RefreshTotalsWithBankConcilHistory() {
    Guard("RefreshTotalsWithBankConcilHistory", [&] {
        GetFigures() = {};
        const ReconciliationScope scope = Scope();
        auto& accounts = (Mark(), CurrentCompany().Accounts());
        const std::int32_t currency_id = (Mark(), accounts.CurrencyOf(scope.account_id));
        const std::string amount = AmountColumn(IsForeign(currency_id));
        const Currency withdrawals = -SumOf(OutstandingWithdrawalsQuery(amount, scope));
        const Currency deposits = SumOf(OutstandingDepositsQuery(amount, scope));
        const Currency balance = SumOf(LedgerBalanceQuery(amount, scope));
        GetFigures() = {.ending_balance = balance - deposits + withdrawals,
                        .outstanding_deposits = deposits,
                        .outstanding_withdrawals = withdrawals,
                        .ledger_balance = balance,
                        .difference = Currency()};
    });
}

}  // namespace varnel::reports
