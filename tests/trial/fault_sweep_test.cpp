#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/trial/trial_run.h"

namespace varnel {
namespace {

using test::CollectedBands;
using test::DetailRun;
using test::GifiRun;
using test::kRetainedEarnings;
using test::kUnrealized;
using test::Shown;
using test::SummaryRun;
using test::TrialRun;
using testing::ElementsAre;

TrialRun PlainDetailRun() { return DetailRun(); }

struct Swept {
    const char* name;
    TrialRun (*make)();
    const char* object;
    /// Figures by the section they stand in.
    std::vector<std::pair<const char*, std::vector<std::string>>> figures;
    const char* last;  // Of the report footer.
};

void PrintTo(const Swept& tried, std::ostream* out) { *out << tried.name; }

const Swept kReports[] = {
    {"summary",
     SummaryRun,
     "dsrTrialBalanceSummary",
     {{"Detail", {"txtDebit"}},
      {"Detail", {"txtCredit"}},
      {"Detail", {"txtCurrency"}},
      {"ReportFooter", {"txtDebitAdj"}},
      {"ReportFooter", {"txtCreditAdj"}},
      {"ReportFooter", {"txtDebitGrandTotal"}},
      {"ReportFooter", {"txtCreditGrandTotal"}}},
     // 20 + 123.45 + 6.55 + 4 against 1 + 150.
     "154.00|154.00"},
    {"detail",
     PlainDetailRun,
     "dsrTrialBalanceDetail",
     {{"ghAccount", {"txtBalanceForward", "lblBalanceForwardType"}},
      {"ghAccount", {"txtGPUnrealized", "lblGPUnrealizedType"}},
      {"Detail", {"txtDebit"}},
      {"Detail", {"txtCredit"}},
      {"Detail", {"txtCurrency"}},
      {"Detail", {"txtDetDate"}},
      {"Detail", {"txtBalance", "lblBalanceType"}},
      {"gfAccount", {"txtDebitTotal"}},
      {"gfAccount", {"txtCreditTotal"}},
      {"gfAccount", {"txtBalanceTotal", "lblBalanceTotalType"}},
      {"ReportFooter", {"txtDebitAdj"}},
      {"ReportFooter", {"txtCreditAdj"}},
      {"ReportFooter", {"txtDebitGrandTotal"}},
      {"ReportFooter", {"txtCreditGrandTotal"}},
      {"ReportFooter", {"txtBalanceGrandTotal", "lblBalanceGrandTotalType"}}},
     // 20 and 24.69 against 25.
     "44.69|44.69"},
    {"gifi",
     GifiRun,
     "dsrGIFIReport",
     {{"Detail", {"txtAmount"}}, {"gfGIFI", {"txtTotal"}}, {"ReportFooter", {"txtCount"}}},
     "1 7630"},
};

void Post(TrialRun& run) {
    run.chart = {{1'010},    {1'030, 1, 2},    {kRetainedEarnings, 3},
                 {4'000, 4}, {kUnrealized, 5}, {6'000}};
    run.Post(1'010, "2025-02-12", "20");
    run.Post(1'030, "2025-01-10", "106", "80", 2);
    run.Post(1'030, "2025-02-10", "24", "20", 2);
    run.Post(4'000, "2024-02-10", "-1");
    run.Post(4'000, "2025-01-10", "-125");
    run.Post(4'000, "2025-02-10", "-25");
    run.Post(kUnrealized, "2025-01-12", "1");
    run.Post(6'000, "2025-01-12", "4");
}

/// A run over other amounts, then the one that counts, call `failing` of the host's life failing.
/// Nothing when that ends it with an error for the caller.
std::optional<CollectedBands> SecondRun(TrialRun& run, int failing) {
    run.host->company.settings["ItemAdjustGL"] = "True";
    run.host->company.item_adjustment_start = kOpenStart;
    run.report->IReport_DisplayForeignCurrency(true);
    run.FilterSegments("3");
    run.Revalue();
    Post(run);
    run.host->company.ledger[1].home = Currency::FromWhole(7'000);
    run();
    run.host->company.ledger[1].home = Currency::FromWhole(106);
    run.host->calls.FailAt(failing == 0 ? 0 : run.host->calls.Count() + failing);
    try {
        run.report->IReport_DateTo(run.to);
        run.report->IReport_Initialize();
        return run();
    } catch (const Error&) {
        return std::nullopt;
    }
}

class TrialFaultSweepTest : public testing::TestWithParam<Swept> {
  protected:
    void ExpectRightOrBlank(const CollectedBands& bands, const CollectedBands& right) {
        const bool empty = bands.Of("Detail").empty();
        for (const auto& [section, controls] : GetParam().figures) {
            const auto shown = Shown(bands, section, controls);
            const auto expected = Shown(right, section, controls);
            ASSERT_TRUE(empty || shown.size() == expected.size()) << section;
            for (std::size_t i = 0; i < shown.size(); ++i) {
                const bool blank = shown[i].find_first_not_of("|DCT") == std::string::npos;
                EXPECT_TRUE(blank || shown[i] == expected[i] || (empty && shown[i] == "0 7630"))
                    << controls[0] << " shows " << shown[i] << " for " << expected[i];
            }
        }
    }
};

TEST_P(TrialFaultSweepTest, EveryFailureIsToldAndEveryFigureIsRightOrBlank) {
    const Swept& swept = GetParam();
    TrialRun untroubled = swept.make();
    const auto right = SecondRun(untroubled, 0).value();
    ASSERT_TRUE(untroubled.host->message_boxes.empty()) << untroubled.host->message_boxes[0];
    const bool has_sides = right.Of("ReportFooter")[0].controls.count("txtDebitGrandTotal") != 0;
    const std::vector<std::string> last =
        has_sides ? std::vector<std::string>{"txtDebitGrandTotal", "txtCreditGrandTotal"}
                  : std::vector<std::string>{"txtCount"};
    ASSERT_THAT(Shown(right, "ReportFooter", last), ElementsAre(swept.last));
    const std::string told = std::string("Host call [0-9]+, [A-Za-z.]+, failed\r\nin Varnel\\.") +
                             "(dsrFilterAndSortByInfoSubreport|" + swept.object +
                             ")\\.[A-Za-z_]+ at line [1-9][0-9]*";
    int k = 1;
    for (;; ++k) {
        SCOPED_TRACE("host call " + std::to_string(k));
        TrialRun run = swept.make();
        const auto bands = SecondRun(run, k);
        if (bands && run.host->message_boxes.empty()) break;
        if (bands) {
            EXPECT_THAT(run.host->message_boxes[0], testing::ContainsRegex(told));
            ExpectRightOrBlank(*bands, right);
        }
        run.host->calls.FailAt(0);
        EXPECT_EQ(run().bands, right.bands) << "the run after it";
    }
    EXPECT_GT(k, 50);
}

INSTANTIATE_TEST_SUITE_P(Reports, TrialFaultSweepTest, testing::ValuesIn(kReports));

}  // namespace
}  // namespace varnel
