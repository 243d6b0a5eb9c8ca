#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"

namespace varnel {
namespace {

using test::IncomeRun;
using test::Shown;
using test::StatementRun;
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
        EXPECT_EQ(Shown(run(), "gfAcctType", kFooter), tried.footers);
        EXPECT_EQ(Shown(run(), "gfAcctType", kFooter), tried.footers) << "again";
    }
}

TEST(IncomeSectionTest, OnlyTheLastResultStandsOverTheFinalRules) {
    struct Ruled {
        std::vector<std::int32_t> types;
        std::vector<bool> result, final;
    };
    const Ruled kCases[] = {{{4}, {false}, {false}},
                            {{4, 5}, {false, true}, {false, true}},
                            {{4, 5, 9}, {false, true, true}, {false, false, true}}};
    for (const auto& tried : kCases) {
        const auto footers = RunOf(tried.types)().Of("gfAcctType");
        ASSERT_EQ(footers.size(), tried.types.size());
        for (std::size_t i = 0; i < footers.size(); ++i) {
            for (const char* name : {"lblGTot", "linResult", "linResultCul"})
                EXPECT_EQ(footers[i][name].visible, tried.result[i]) << name << i;
            for (const char* name : {"linFinal", "linFinal2", "linFinalCul", "linFinalCul2"})
                EXPECT_EQ(footers[i][name].visible, tried.final[i]) << name << i;
        }
    }
}

TEST(IncomeSectionTest, IsCaptionedByTheHostAndLeavesRoomForAResult) {
    const auto bands = RunOf({4, 5, 9})();
    EXPECT_THAT(Shown(bands, "ghAcctType", {"lblAcctType"}),
                ElementsAre("Section 4", "Section 5", "Section 9"));
    std::vector<Twips> heights;
    for (const char* section : {"ghAcctType", "gfAcctType"})
        for (const auto& band : bands.Of(section)) heights.push_back(band.height);
    EXPECT_THAT(heights, ElementsAre(570, 570, 570, 675, 1'035, 1'035));
}

}  // namespace
}  // namespace varnel
