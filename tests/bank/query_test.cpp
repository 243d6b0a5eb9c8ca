#include <gtest/gtest.h>

#include "reports/bank/reconciliation_query.h"

namespace varnel::reports {
namespace {

const ReconciliationScope kScope{
    .account_id = 12, .history_id = 3, .statement_date = Date::ParseIso("2025-03-31")};

const std::string kHead =
    "SELECT GLDet.DetDate, GLDet.DetRef, GLDet.DetDesc, GLDet.ForeignAmnt, GLDet.DetAmnt, "
    "GLDet.Source, GLDet.ExSrcKeyVal, GLAcct.ExCurrencyId, ";
const std::string kIn = "(GLDet.Conciliated <>0 AND GLDet.ExBankConcilHistoryId = ?)";
const std::string kOpen =
    "((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) OR GLDet.ExBankConcilHistoryId > ?)";
const std::string kFrom =
    "FROM GLDet    INNER JOIN GLAcct ON GLDet.ExAcctId = GLAcct.InGLAcctId "
    "WHERE GLDet.DetAmnt <> 0    AND (((GLDet.Conciliated = 0 OR GLDet.Conciliated is null)) ";
const std::string kOr = "OR " + kIn + " ";
const std::string kEnd = ")   AND GLDet.ExAcctId = ?    AND GLDet.DetDate <= ? ";

const std::string kServer =
    "   CASE    WHEN DetAmnt < 0 AND " + kIn + " THEN 1    WHEN DetAmnt > 0 AND " + kIn +
    " THEN 2    WHEN DetAmnt < 0 AND " + kOpen + " THEN 3    WHEN DetAmnt > 0 AND " + kOpen +
    " THEN 4    END As TransactionType ";
const std::string kServerOrder = "ORDER BY TransactionType, GLDet.DetDate, GLDet.DetRef ";

std::string Blanks(std::size_t count) { return std::string(count, ' '); }

// Nested IIFs, each further in than the one around it by four blanks.
std::string Desktop(const std::string& begin, std::size_t second) {
    return begin + "IIF(DetAmnt < 0 AND " + kIn + ", 1, " + Blanks(second) +
           "IIF(DetAmnt > 0 AND " + kIn + ", 2, " + Blanks(second + 4) + "IIF(DetAmnt < 0 AND " +
           kOpen + ", 3, " + Blanks(second + 8) + "IIF(DetAmnt > 0 AND " + kOpen + ", 4, -1) ";
}
const std::string kDesktop =
    Desktop("   ", 7) + Blanks(11) + ")" + Blanks(7) + ")" + Blanks(3) + ") AS TransactionType ";
const std::string kDesktopOrder = Desktop("ORDER BY ", 11) + Blanks(19) + ")" + Blanks(16) + ")" +
                                  Blanks(11) + "), GLDet.DetDate, GLDet.DetRef ";

void ExpectValues(const ParameterQuery& query, const std::string& values) {
    std::string bound;
    for (const auto& value : query.parameters) {
        EXPECT_TRUE(value.Holds<std::int32_t>() || value.Holds<Date>()) << value.TypeName();
        bound += value.ToText() + " ";
    }
    EXPECT_EQ(bound, values);
}

TEST(ReconciliationQueryTest, ItemsAreAskedForInTheDialectOfTheDatabase) {
    const std::tuple<int, bool, std::string, const char*> kAsked[] = {
        {0, false, kServer + kFrom + kEnd + kServerOrder, "3 3 3 3 12 2025-03-31 "},
        {0, true, kServer + kFrom + kOr + kEnd + kServerOrder, "3 3 3 3 3 12 2025-03-31 "},
        {1, false, kDesktop + kFrom + kEnd + kDesktopOrder, "3 3 3 3 12 2025-03-31 3 3 3 3 "},
        {1, true, kDesktop + kFrom + kOr + kEnd + kDesktopOrder,
         "3 3 3 3 3 12 2025-03-31 3 3 3 3 "},
        {7, false, kFrom + kEnd, "3 3 3 3 12 2025-03-31 "},
    };
    for (const auto& [type, include, text, values] : kAsked) {
        const auto query = ItemsQuery(type, kScope, include);
        EXPECT_EQ(query.text, kHead + text) << type;
        ExpectValues(query, values);
    }
}

TEST(ReconciliationQueryTest, SumsAreOfTheAmountsOfTheAccount) {
    const std::string sum = "SELECT SUM(GLDet.C) AS ", from = " FROM GLDet WHERE GLDet.";
    const std::string account = "ExAcctId = ?    AND GLDet.DetDate <= ?";
    const std::string open =
        "   AND ((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) OR "
        "GLDet.ExBankConcilHistoryId >?)    AND GLDet.";
    const auto withdrawals = OutstandingWithdrawalsQuery("C", kScope);
    const auto deposits = OutstandingDepositsQuery("C", kScope);
    const auto balance = LedgerBalanceQuery("C", kScope);
    EXPECT_EQ(withdrawals.text, sum + "ChqAmntCirc" + from + "C < 0 " + open + account);
    EXPECT_EQ(deposits.text, sum + "DepAmntCirc" + from + "C > 0 " + open + account);
    EXPECT_EQ(balance.text, sum + "GLBalAmnt" + from + account);
    for (const auto& query : {withdrawals, deposits}) ExpectValues(query, "3 12 2025-03-31 ");
    ExpectValues(balance, "12 2025-03-31 ");
}

}  // namespace
}  // namespace varnel::reports
