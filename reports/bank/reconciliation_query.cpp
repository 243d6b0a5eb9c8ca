#include "reports/bank/reconciliation_query.h"

namespace varnel::reports {

namespace {

constexpr int kServer = 0;
constexpr int kDesktop = 1;
/// One for each kind of item.
constexpr std::size_t kKinds = 4;

constexpr const char* kSelect =
    "SELECT GLDet.DetDate, GLDet.DetRef, GLDet.DetDesc, GLDet.ForeignAmnt, GLDet.DetAmnt, "
    "GLDet.Source, GLDet.ExSrcKeyVal, GLAcct.ExCurrencyId, ";

constexpr const char* kServerKind =
    "   CASE "
    "   WHEN DetAmnt < 0 AND (GLDet.Conciliated <>0 AND GLDet.ExBankConcilHistoryId = ?) THEN 1 "
    "   WHEN DetAmnt > 0 AND (GLDet.Conciliated <>0 AND GLDet.ExBankConcilHistoryId = ?) THEN 2 "
    "   WHEN DetAmnt < 0 AND ((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) OR "
    "GLDet.ExBankConcilHistoryId > ?) THEN 3 "
    "   WHEN DetAmnt > 0 AND ((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) OR "
    "GLDet.ExBankConcilHistoryId > ?) THEN 4 "
    "   END As TransactionType ";

constexpr const char* kDesktopKind =
    "   IIF(DetAmnt < 0 AND (GLDet.Conciliated <>0 AND GLDet.ExBankConcilHistoryId = ?), 1, "
    "       IIF(DetAmnt > 0 AND (GLDet.Conciliated <>0 AND GLDet.ExBankConcilHistoryId = ?), 2, "
    "           IIF(DetAmnt < 0 AND ((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) OR "
    "GLDet.ExBankConcilHistoryId > ?), 3, "
    "               IIF(DetAmnt > 0 AND ((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) OR "
    "GLDet.ExBankConcilHistoryId > ?), 4, -1) "
    "           )"
    "       )"
    "   ) AS TransactionType ";

constexpr const char* kFrom =
    "FROM GLDet "
    "   INNER JOIN GLAcct ON GLDet.ExAcctId = GLAcct.InGLAcctId "
    "WHERE GLDet.DetAmnt <> 0 "
    "   AND (((GLDet.Conciliated = 0 OR GLDet.Conciliated is null)) ";
constexpr const char* kOrReconciled =
    "OR (GLDet.Conciliated <>0 AND GLDet.ExBankConcilHistoryId = ?) ";
constexpr const char* kOfAccount =
    ")"
    "   AND GLDet.ExAcctId = ? "
    "   AND GLDet.DetDate <= ? ";

constexpr const char* kServerOrder = "ORDER BY TransactionType, GLDet.DetDate, GLDet.DetRef ";
constexpr const char* kDesktopOrder =
    "ORDER BY IIF(DetAmnt < 0 AND (GLDet.Conciliated <>0 AND GLDet.ExBankConcilHistoryId = ?), 1, "
    "           IIF(DetAmnt > 0 AND (GLDet.Conciliated <>0 AND GLDet.ExBankConcilHistoryId = ?), "
    "2, "
    "               IIF(DetAmnt < 0 AND ((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) OR "
    "GLDet.ExBankConcilHistoryId > ?), 3, "
    "                   IIF(DetAmnt > 0 AND ((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) "
    "OR GLDet.ExBankConcilHistoryId > ?), 4, -1) "
    "                   )"
    "                )"
    "           ), GLDet.DetDate, GLDet.DetRef ";

std::vector<Variant> Repeated(std::int32_t id, std::size_t times) {
    return std::vector<Variant>(times, Variant(id));
}

ParameterQuery OutstandingQuery(const std::string& amount_column, const char* name,
                                const char* sign, const ReconciliationScope& scope) {
    const std::string amount = "GLDet." + amount_column;
    return {"SELECT SUM(" + amount + ") AS " + name + " FROM GLDet WHERE " + amount + sign +
                "   AND (" + kNotReconciled +
                " OR GLDet.ExBankConcilHistoryId >?)    AND GLDet.ExAcctId = ?    "
                "AND GLDet.DetDate <= ?",
            {scope.history_id, scope.account_id, scope.statement_date}};
}

}  // namespace

ParameterQuery ItemsQuery(int database_type, const ReconciliationScope& scope,
                          bool include_reconciled) {
    std::string text = kSelect;
    if (database_type == kServer) text += kServerKind;
    if (database_type == kDesktop) text += kDesktopKind;
    text += kFrom;
    if (include_reconciled) text += kOrReconciled;
    text += kOfAccount;
    if (database_type == kServer) text += kServerOrder;
    if (database_type == kDesktop) text += kDesktopOrder;

    auto parameters = Repeated(scope.history_id, kKinds + (include_reconciled ? 1 : 0));
    parameters.emplace_back(scope.account_id);
    parameters.emplace_back(scope.statement_date);
    if (database_type == kDesktop) parameters.insert(parameters.end(), kKinds, scope.history_id);
    return {text, parameters};
}

ParameterQuery OutstandingWithdrawalsQuery(const std::string& amount_column,
                                           const ReconciliationScope& scope) {
    return OutstandingQuery(amount_column, "ChqAmntCirc", " < 0 ", scope);
}

ParameterQuery OutstandingDepositsQuery(const std::string& amount_column,
                                        const ReconciliationScope& scope) {
    return OutstandingQuery(amount_column, "DepAmntCirc", " > 0 ", scope);
}

ParameterQuery LedgerBalanceQuery(const std::string& amount_column,
                                  const ReconciliationScope& scope) {
    return {"SELECT SUM(GLDet." + amount_column +
                ") AS GLBalAmnt FROM GLDet WHERE GLDet.ExAcctId = ?    AND GLDet.DetDate <= ?",
            {scope.account_id, scope.statement_date}};
}

}  // namespace varnel::reports
