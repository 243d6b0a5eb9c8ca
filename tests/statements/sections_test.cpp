#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// Sections of the income statement: captions, totals, results.

const std::vector<std::string> kFooter{"lblTypeCap", "txtTypeTotal",    "txtTypeTotalCul",
                                       "lblGTot",    "txtTotalPassCap", "txtTotalPassCapCul"};

/// Revenue 100 after 50, expenses 40 after 20, other items 70 after nothing.
StatementRun RunOf(const std::vector<std::int32_t>& types) {
    StatementRun run = IncomeRun();
    for (const std::int32_t type : types) run.chart.push_back({type * 1'000, type});
    run.Post(4'000, "2025-02-10", "-100");
    run.Post(4'000, "2025-01-10", "-50");
    run.Post(5'000, "2025-02-10", "40");
    run.Post(5'000, "2025-01-10", "20");
    run.Post(9'000, "2025-02-10", "70");
    return run;
}

struct Sections {
    std::vector<std::int32_t> types;
    std::vector<std::string> footers;
};

// Only the last result stands over the final rules.
TEST(IncomeSectionTest, EndsWithItsTotalAndFromExpensesOnWithTheResult) {
    const Sections kCases[] = {
        {{4}, {"2674|100.00|150.00|||"}},
        {{5}, {"2676|40.00|60.00|2679|-40.00|-60.00"}},
        {{4, 5}, {"2674|100.00|150.00|||", "2676|40.00|60.00|2679|60.00|90.00"}},
        {{4, 9}, {"2674|100.00|150.00|||", "2678|70.00|70.00|2680|30.00|80.00"}},
        {{4, 5, 9},
         {"2674|100.00|150.00|||", "2676|40.00|60.00|2679|60.00|90.00",
          "2678|70.00|70.00|2680|-10.00|20.00"}}};
    for (const auto& tried : kCases) {
        StatementRun run = RunOf(tried.types);
        const auto bands = run();
        EXPECT_EQ(Shown(bands, "gfAcctType", kFooter), tried.footers);
        EXPECT_EQ(run().bands, bands.bands) << "again";
        const auto headers = bands.Texts("ghAcctType", "lblAcctType");
        const auto footers = bands.Of("gfAcctType");
        for (std::size_t i = 0; i < footers.size(); ++i) {
            EXPECT_EQ(headers.at(i), "Section " + std::to_string(tried.types[i]));
            const bool result = !tried.footers[i].ends_with("|||");
            for (const char* name : {"linResult", "linResultCul"})
                EXPECT_EQ(footers[i][name].visible, result) << name << i;
            EXPECT_EQ(footers[i].height >= footers[i]["linFinal2"].box.Bottom(), result) << i;
            const bool final = result && i + 1 == footers.size();
            for (const char* name : {"linFinal", "linFinal2", "linFinalCul", "linFinalCul2"})
                EXPECT_EQ(footers[i][name].visible, final) << name << i;
        }
    }
}

/// Of 7 booked on the account of unrealized gains; 3.45 have been gained.
StatementRun UnrealizedRun() {
    StatementRun run = IncomeRun();
    run.chart = {{kUnrealized, 5}, {5'910, 5}};
    run.Post(kUnrealized, "2025-02-10", "7");
    run.Post(5'910, "2025-02-10", "1");
    run.HoldForeignAmount();
    run.Revalue();
    return run;
}

TEST(IncomeUnrealizedTest, IsAskedOnceForEachDayThatAColumnEndsWithProjectsAndSegments) {
    StatementRun run = UnrealizedRun();
    run.host->database.Answer("ProjInfo", {{"ProjId", "Descr"}, {}});
    run.Properties().Put("ProjIds", "8");
    run.FilterSegments("3", true);
    for (const Date cumul_to : {run.to, Date::ParseIso("2025-04-30")}) {
        run.Properties().Put("CumulDateTo", cumul_to);
        run();
    }
    std::vector<std::string> days;
    for (const auto& command : run.host->database.Commands()) {
        if (command->text.find("AcctBalHome") == std::string::npos) continue;
        days.push_back(command->parameters.back().ToDate().ToIso());
        EXPECT_THAT(
            command->text,
            testing::HasSubstr("AND GLDet.DetDate <= ?  AND ExProjId IN ( 8 )  AND "
                               "(GLDet.ExSegmentId IN (3) OR GLDet.ExSegmentId IS NULL) GROUP BY"));
    }
    EXPECT_THAT(days, ElementsAre("2025-03-31", "2025-03-31", "2025-04-30"));
}

TEST(IncomeUnrealizedTest, AGainThatCannotBeWorkedOutLeavesItsTotalsBlank) {
    StatementRun run = UnrealizedRun();
    dynamic_cast<IExchangeRates&>(*run.report)
        .IExchangeRates_ExchangeRates(std::make_shared<RateCollection>());
    const auto bands = run();
    EXPECT_THAT(Rows(bands), ElementsAre("5900||", "5910|1.00|1.00"));
    EXPECT_THAT(Shown(bands, "gfAcctType", {"txtTypeTotal", "txtTotalPassCap"}), ElementsAre("|"));
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0], testing::HasSubstr("no exchange rate for USD"));
}

}  // namespace
}  // namespace varnel::test
