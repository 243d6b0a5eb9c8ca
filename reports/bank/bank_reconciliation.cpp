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
    Handle("Detail_Format", &dsrBankReconciliation::Detail_Format);
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

void dsrBankReconciliation::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        ForgetItems();
        const ReconciliationScope scope = Scope();
        const int database_type = (Mark(), App().CurrentContext().Database().DatabaseType());
        const auto query = ItemsQuery(database_type, scope, IncludesReconciled());
        auto rows = (Mark(), RunQuery(App(), query.text, query.parameters));
        Mark(), columns_.Resolve(rows->GetColumns());
        Mark(), GroupBy(rows->GetColumns().At("TransactionType"));
        Data().Attach(std::move(rows));
        StartItems();
    });
}

// No rows add up to null, which is 0.
Currency dsrBankReconciliation::SumOf(const ParameterQuery& query) {
    const auto rows = (Mark(), RunQuery(App(), query.text, query.parameters));
    return (Mark(), rows->Current().Amount(Column{0}));
}

// A saved reconciliation balanced by definition.
void dsrBankReconciliation::RefreshTotalsWithBankConcilHistory() {
    Guard("RefreshTotalsWithBankConcilHistory", [&] {
        const ReconciliationScope scope = Scope();
        auto& accounts = (Mark(), CurrentCompany().Accounts());
        const std::int32_t currency_id = (Mark(), accounts.CurrencyOf(scope.account_id));
        const std::string amount = IsForeign(currency_id) ? "ForeignAmnt" : "DetAmnt";
        ReconciliationFigures figures;
        figures.outstanding_withdrawals = -SumOf(OutstandingWithdrawalsQuery(amount, scope));
        figures.outstanding_deposits = SumOf(OutstandingDepositsQuery(amount, scope));
        figures.ledger_balance = SumOf(LedgerBalanceQuery(amount, scope));
        figures.ending_balance =
            figures.ledger_balance - figures.outstanding_deposits + figures.outstanding_withdrawals;
        GetFigures() = figures;
    });
}

void dsrBankReconciliation::Detail_Format() {
    if (!EndOfData()) ShowItem(CurrentRow(), columns_);
}

}  // namespace varnel::reports
