#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"
#include "tests/support/picking_tool.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// Texts are joined by JOINED.
#define PAYMENTS_JOINED_BY(JOINED)                                                             \
    "SELECT CurrPmtDet_View.PmtAmnt, CurrPmtDet_View.PmtDisc, CurrPmtDet_View.ExchangeRate, "  \
    "CurrPmtDet_View.PmtRate, CurrPmtDet_View.CurrPmtType, CurrPmtDet_View.Source, "           \
    "CurrPmtDet_View.InInvoiId, CurrPmtDet_View.InPmtId, CurrPmtDet_View.ExCurrencyId, "       \
    "CurrPmtDet_View.ExGLAcctId, CurrPmtDet_View.PmtDate, CurrPmtDet_View.Name, "              \
    "CurrPmtDet_View.InvoiId, CurrPmtDet_View.ChqNo, WorldCurrency.CurrencyCode, "             \
    "WorldCurrency.Descr, (WorldCurrency.CurrencyCode " JOINED " ' - ' " JOINED                \
    " WorldCurrency.Descr) AS FullCurrencyDescr FROM CurrPmtDet_View LEFT JOIN WorldCurrency " \
    "ON WorldCurrency.InCurrencyId = CurrPmtDet_View.ExCurrencyId WHERE "                      \
    "CurrPmtDet_View.PmtDate BETWEEN ? AND ? AND CurrPmtDet_View.ExCurrencyId <> ? "
#define PAYMENTS PAYMENTS_JOINED_BY("&")
#define IN_ORDER \
    " ORDER BY  ExCurrencyId, CurrPmtType, CurrPmtDet_View.PmtDate, CurrPmtDet_View.ChqNo "
#define BY_DATE_AND " ORDER BY ExCurrencyId, CurrPmtType, CurrPmtDet_View.PmtDate, "

TEST(RealizedQueryTest, IsExactlyThis) {
    const struct {
        const char* segments;
        bool also_none;
        const char* filter;
        const char* statement;
    } cases[] = {{"", false, "|", PAYMENTS IN_ORDER},
                 {"3", true, "PmtAmnt > 5|Name DESC",
                  PAYMENTS " AND (CurrPmtDet_View.ExSegmentId IN (3) OR "
                           "CurrPmtDet_View.ExSegmentId IS NULL)  AND (PmtAmnt > 5) " BY_DATE_AND
                           "Name DESC"}};
    for (const auto& [segments, also_none, filter, statement] : cases) {
        RealizedRun run;
        const auto tool = std::make_shared<PickingTool>();
        run.FilterSegments(segments, also_none);
        run.Filter(filter, tool);
        run({});
        EXPECT_EQ(run.Command().text, statement);
        EXPECT_EQ(tool->tables, "CurrPmtDet_View, WorldCurrency");
    }
}

TEST(RealizedQueryTest, JoinsTextsAsTheDatabaseDoes) {
    RealizedRun run;
    for (const auto& [type, statement] :
         {std::pair{1, PAYMENTS IN_ORDER}, std::pair{0, PAYMENTS_JOINED_BY("+") IN_ORDER},
          std::pair{2, PAYMENTS_JOINED_BY("+") IN_ORDER},
          std::pair{-1, PAYMENTS_JOINED_BY("+") IN_ORDER}}) {
        run.host->database.type = type;
        run({});
        EXPECT_EQ(run.Command().text, statement) << "database type " << type;
    }
}

TEST(RealizedQueryTest, HasBothDatesAsTheyAreAndTheHomeCurrency) {
    RealizedRun run;
    run.host->company.currency_info.home_id = 7;
    run.report->IReport_Initialize();
    run.report->IReport_DateFrom(kOpenStart);
    run({});
    const auto& query = run.Command();
    ASSERT_EQ(query.parameters.size(), 3u);
    EXPECT_EQ(query.parameters[0].ToDate(), kOpenStart);
    EXPECT_EQ(query.parameters[1].ToDate(), run.to);
    EXPECT_EQ(query.parameters[2].ToInteger32(), 7);
}

TEST(RealizedQueryTest, AccountsAreLoadedOnceARunBeforeThePayments) {
    RealizedRun run;
    run({Paid("1", 1), Paid("1", 2), Paid("1", 1, 3)});
    run({});
    std::vector<std::string> starts;
    for (const auto& command : run.host->database.Commands())
        starts.push_back(command->text.substr(0, 13));
    EXPECT_THAT(starts,
                ElementsAre("Select * from", "SELECT CurrPm", "Select * from", "SELECT CurrPm"));
}

}  // namespace
}  // namespace varnel::test
