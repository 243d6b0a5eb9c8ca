#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/journal/journal_run.h"
#include "tests/journal/picking_tool.h"

namespace varnel {
namespace {

using test::Amount;
using test::CollectedBands;
using test::JournalLine;

JournalLine InDollars(const char* amount, const char* foreign) {
    JournalLine line = Amount(amount, 2);
    line.foreign = Currency::Parse(foreign);
    line.currency_id = 2;
    line.remarks = "At 1.35";
    return line;
}

/// Both sides twice in a row, with different amounts, so that a leftover would show.
std::vector<JournalLine> Entries() {
    return {Amount("50"),           Amount("15"),
            Amount("-65"),          InDollars("135", "100"),
            InDollars("0", "0"),    InDollars("-54", "-40"),
            InDollars("-81", "-60")};
}

/// What came of one run.
struct Outcome {
    CollectedBands bands;
    std::vector<std::string> messages;
    std::string error;  // That reached the caller.
    int calls = 0;
};

/// One journal of its own host; host call `failing` of its life fails. With `runs` of 2 it has been
/// run before, over other rows.
Outcome RunWithFault(int failing, int runs) {
    const auto host = std::make_shared<test::MemoryHost>();
    host->company.currency_info.records.push_back(
        {.id = 2, .code = "USD", .description = "US dollar"});
    host->company.settings = {{"ItemAdjustGL", "True"}, {"UseAccountNumbers", "True"}};
    host->company.item_adjustment_start = kOpenStart;
    host->calls.FailAt(failing);
    const auto report = clsReport().GeneralJournal();
    dynamic_cast<IFilterableReport&>(*report).IFilterableReport_FilterTool(
        std::make_shared<test::PickingTool>());
    dynamic_cast<IFilterableReport&>(*report).IFilterableReport_Filter("A|B");
    report->IReport_Application(host);
    report->IReport_DisplayForeignCurrency(true);
    report->IReport_Initialize();

    Outcome outcome;
    try {
        for (int run = 1; run <= runs; ++run) {
            auto lines = Entries();
            if (run < runs) lines.front().amount = Currency::FromWhole(7'000);
            host->database.Answer("GLDet", JournalRows(lines));
            outcome.bands = {};
            engine::RunToBands(*report->IReport_ReportDesigner(), {}, outcome.bands);
        }
    } catch (const Error& error) {
        outcome.error = error.Description();
    }
    outcome.messages = host->message_boxes;
    outcome.calls = host->calls.Count();
    return outcome;
}

/// Figures by the section they stand in.
constexpr std::pair<const char*, const char*> kFigures[] = {{"ghSeqNo", "txtSeqNo"},
                                                            {"ghSeqNo", "txtDate"},
                                                            {"Detail", "txtDebit"},
                                                            {"Detail", "txtCredit"},
                                                            {"gfSeqNo", "txtDebitTotal"},
                                                            {"gfSeqNo", "txtCreditTotal"},
                                                            {"ReportFooter", "txtDebitGrandTotal"},
                                                            {"ReportFooter", "txtCreditGrandTotal"},
                                                            {"ReportFooter", "txtCount"}};

/// Every figure is the right one or left blank; a report that got no rows is an empty one.
void ExpectNoWrongFigure(const CollectedBands& bands, const CollectedBands& right) {
    const bool empty = bands.Of("Detail").empty();
    for (const auto& [section, control] : kFigures) {
        const auto shown = bands.Texts(section, control);
        const auto expected = right.Texts(section, control);
        ASSERT_TRUE(empty || shown.size() == expected.size()) << section;
        for (std::size_t i = 0; i < shown.size(); ++i) {
            const bool none = empty && shown[i] == "0 5860";
            EXPECT_TRUE(shown[i].empty() || shown[i] == expected[i] || none)
                << control << " shows " << shown[i] << " for " << expected[i];
        }
    }
}

class FaultSweepTest : public testing::TestWithParam<int> {};

TEST_P(FaultSweepTest, NoHostCallFailsSilentlyOrLeavesAWrongFigure) {
    const Outcome right = RunWithFault(0, GetParam());
    ASSERT_TRUE(right.messages.empty() && right.error.empty());
    ASSERT_EQ(right.bands.Texts("ReportFooter", "txtDebitGrandTotal").at(0), "200.00");
    int told_by_message = 0;
    for (int k = 1; k <= right.calls; ++k) {
        const Outcome outcome = RunWithFault(k, GetParam());
        SCOPED_TRACE("host call " + std::to_string(k));
        const std::string failure = "Host call " + std::to_string(k) + ", [A-Za-z.]+, failed";
        if (!outcome.error.empty()) {
            EXPECT_THAT(outcome.error, testing::MatchesRegex(failure));
            continue;
        }
        ASSERT_FALSE(outcome.messages.empty());
        ++told_by_message;
        EXPECT_THAT(
            outcome.messages[0],
            testing::MatchesRegex(failure + "\r\nin Varnel\\.dsr[A-Za-z]+\\.[A-Za-z_]+ at line "
                                            "[1-9][0-9]*"));
        EXPECT_TRUE(outcome.bands.ended);
        ExpectNoWrongFigure(outcome.bands, right.bands);
    }
    EXPECT_GT(told_by_message, 50);
}

INSTANTIATE_TEST_SUITE_P(Runs, FaultSweepTest, testing::Values(1, 2));

}  // namespace
}  // namespace varnel
