#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/bank/reconciliation_query.h"

namespace varnel::reports {
namespace {

using testing::ElementsAre;

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

struct Asked {
    int type;
    bool include;
    std::string text;
    std::vector<std::string> parameters;
};

const Asked kAsked[] = {
    {0,
     false,
     kHead + kServer + kFrom + kEnd + kServerOrder,
     {"3", "3", "3", "3", "12", "2025-03-31"}},
    {0,
     true,
     kHead + kServer + kFrom + kOr + kEnd + kServerOrder,
     {"3", "3", "3", "3", "3", "12", "2025-03-31"}},
    {1,
     false,
     kHead + kDesktop + kFrom + kEnd + kDesktopOrder,
     {"3", "3", "3", "3", "12", "2025-03-31", "3", "3", "3", "3"}},
    {1,
     true,
     kHead + kDesktop + kFrom + kOr + kEnd + kDesktopOrder,
     {"3", "3", "3", "3", "3", "12", "2025-03-31", "3", "3", "3", "3"}},
    {7, false, kHead + kFrom + kEnd, {"3", "3", "3", "3", "12", "2025-03-31"}},
};

std::vector<std::string> Values(const ParameterQuery& query) {
    std::vector<std::string> values;
    for (const auto& parameter : query.parameters) values.push_back(parameter.ToText());
    return values;
}

void ExpectTypes(const ParameterQuery& query) {
    for (const auto& value : query.parameters)
        EXPECT_TRUE(value.Holds<std::int32_t>() || value.Holds<Date>()) << value.TypeName();
}

TEST(ReconciliationQueryTest, ItemsAreAskedForInTheDialectOfTheDatabase) {
    for (const auto& asked : kAsked) {
        const auto query = ItemsQuery(asked.type, kScope, asked.include);
        EXPECT_EQ(query.text, asked.text) << asked.type;
        EXPECT_EQ(Values(query), asked.parameters) << asked.type;
        ExpectTypes(query);
    }
}

TEST(ReconciliationQueryTest, OutstandingItemsAreAddedUpInTheAmountsOfTheAccount) {
    const auto text = [](const char* amount, const char* name, const char* sign) {
        return std::string("SELECT SUM(GLDet.") + amount + ") AS " + name +
               " FROM GLDet WHERE GLDet." + amount + " " + sign +
               " 0    AND ((GLDet.Conciliated = 0 OR GLDet.Conciliated is null) OR "
               "GLDet.ExBankConcilHistoryId >?)    AND GLDet.ExAcctId = ?    "
               "AND GLDet.DetDate <= ?";
    };
    for (const char* amount : {"DetAmnt", "ForeignAmnt"}) {
        const auto withdrawals = OutstandingWithdrawalsQuery(amount, kScope);
        const auto deposits = OutstandingDepositsQuery(amount, kScope);
        EXPECT_EQ(withdrawals.text, text(amount, "ChqAmntCirc", "<"));
        EXPECT_EQ(deposits.text, text(amount, "DepAmntCirc", ">"));
        for (const auto& query : {withdrawals, deposits}) {
            EXPECT_THAT(Values(query), ElementsAre("3", "12", "2025-03-31"));
            ExpectTypes(query);
        }
    }
}

TEST(ReconciliationQueryTest, TheLedgerBalanceIsTheSumOfAllLinesToTheDate) {
    for (const std::string amount : {"DetAmnt", "ForeignAmnt"}) {
        const auto query = LedgerBalanceQuery(amount, kScope);
        EXPECT_EQ(query.text, "SELECT SUM(GLDet." + amount +
                                  ") AS GLBalAmnt FROM GLDet WHERE GLDet.ExAcctId = ?    "
                                  "AND GLDet.DetDate <= ?");
        EXPECT_THAT(Values(query), ElementsAre("12", "2025-03-31"));
        ExpectTypes(query);
    }
}

}  // namespace
}  // namespace varnel::reports
