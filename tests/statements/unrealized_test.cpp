#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/statements/statement_run.h"

namespace varnel {
namespace {

using test::IncomeRun;
using test::kUnrealized;
using test::RecordedCommand;
using test::Shown;
using test::StatementRun;
using testing::ElementsAre;
using testing::HasSubstr;

// The account of unrealized gains in the income statement.

/// 7 were booked on it; 3.45 have been gained.
StatementRun UnrealizedRun() {
    StatementRun run = IncomeRun();
    run.chart = {{kUnrealized, 5}, {5'910, 5}};
    run.Post(kUnrealized, "2025-02-10", "7");
    run.Post(5'910, "2025-02-10", "1");
    run.HoldForeignAmount();
    return run;
}

std::vector<const RecordedCommand*> GainCommands(const StatementRun& run) {
    std::vector<const RecordedCommand*> found;
    for (const auto& command : run.host->database.Commands())
        if (command->text.find("AcctBalHome") != std::string::npos) found.push_back(command.get());
    return found;
}

TEST(IncomeUnrealizedTest, TheGainIsTakenFromWhatWasBookedWhenRevalued) {
    StatementRun run = UnrealizedRun();
    EXPECT_THAT(run.Rows(), ElementsAre("5900|7.00|7.00", "5910|1.00|1.00"));
    EXPECT_THAT(GainCommands(run), testing::IsEmpty());
    run.Revalue();
    EXPECT_THAT(run.Rows(), ElementsAre("5900|3.55|3.55", "5910|1.00|1.00"));
}

TEST(IncomeUnrealizedTest, IsAskedForTheLastDateOfEachColumnWithProjectsAndSegments) {
    StatementRun run = UnrealizedRun();
    run.Revalue();
    run();
    ASSERT_EQ(GainCommands(run).size(), 1u) << "both columns end on the same day";
    EXPECT_EQ(GainCommands(run)[0]->parameters.back().ToDate(), run.to);
    run.host->database.Answer("ProjInfo", {{"ProjId", "Descr"}, {}});
    run.Properties().Put("ProjIds", "8");
    run.Properties().Put("CumulDateTo", Date::ParseIso("2025-04-30"));
    run.FilterSegments("3", true);
    run();
    const auto commands = GainCommands(run);
    ASSERT_EQ(commands.size(), 3u);
    EXPECT_EQ(commands[1]->parameters.back().ToDate(), run.to);
    EXPECT_EQ(commands[2]->parameters.back().ToDate(), Date::ParseIso("2025-04-30"));
    for (std::size_t i : {1u, 2u})
        EXPECT_THAT(commands[i]->text,
                    HasSubstr("AND GLDet.DetDate <= ?  AND ExProjId IN ( 8 )  AND "
                              "(GLDet.ExSegmentId IN (3) OR GLDet.ExSegmentId IS NULL) GROUP BY"));
}

TEST(IncomeUnrealizedTest, AnAccountOfItsOwnStandsBehindItInACompanyOfSeveralCurrencies) {
    StatementRun run = UnrealizedRun();
    const auto keys = [&] {
        std::vector<std::string> tags;
        for (const auto& band : run().Of("Detail"))
            for (const char* name : {"txtTotal", "txtTotalCul"}) tags.push_back(band[name].tag);
        return tags;
    };
    EXPECT_THAT(keys(), ElementsAre("GLUnrealized|5900", "GLUnrealized|5900", "5910", "5910"));
    run.host->company.currency_info.records.resize(1);
    run.Revalue();
    EXPECT_THAT(keys(), ElementsAre("5900", "5900", "5910", "5910"));
    EXPECT_THAT(run.Rows(), ElementsAre("5900|7.00|7.00", "5910|1.00|1.00")) << "and no gain";
}

TEST(IncomeUnrealizedTest, AGainThatCannotBeWorkedOutLeavesItsTotalsBlank) {
    StatementRun run = UnrealizedRun();
    run.Revalue();
    dynamic_cast<IExchangeRates&>(*run.report)
        .IExchangeRates_ExchangeRates(std::make_shared<RateCollection>());
    const auto bands = run();
    EXPECT_THAT(Rows(bands), ElementsAre("5900||", "5910|1.00|1.00"));
    EXPECT_THAT(Shown(bands, "gfAcctType", {"txtTypeTotal", "txtTotalPassCap"}), ElementsAre("|"));
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0], HasSubstr("no exchange rate for USD"));
}

}  // namespace
}  // namespace varnel
