#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/journal/journal_run.h"
#include "tests/support/collected_rows.h"
#include "tests/support/picking_tool.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// What sets the general ledger apart from the journal, with which it shares everything else.

JournalRun LedgerRun(std::int16_t type = 0) { return JournalRun(clsReport().GeneralLedger(type)); }

std::string StatementAfterRun(JournalRun& run) {
    run({});
    const std::string& text = run.host->database.Commands().back()->text;
    return text.substr(text.find("WHERE"));
}

#define PERIOD "WHERE GLDet.DetDate BETWEEN ? AND ? "
#define BY_ENTRY " ORDER BY GLDet.SeqNo, GLDet.InGLDetId"

TEST(GeneralLedgerTest, TheCaptionOfItsLabelSaysWhoseLinesTheyAre) {
    const std::pair<const char*, const char*> cases[] = {
        {"0", PERIOD BY_ENTRY},
        {"4", PERIOD " AND GLAcct.AcctType = 4 " BY_ENTRY},
        {"-3", PERIOD " AND GLAcct.AcctType = -3 " BY_ENTRY},
        {"abc", PERIOD BY_ENTRY},
        {"4 or 5", PERIOD BY_ENTRY},
        {"99999999999", PERIOD BY_ENTRY},
        {"", PERIOD BY_ENTRY}};
    JournalRun run = LedgerRun(7);
    EXPECT_EQ(StatementAfterRun(run), PERIOD " AND GLAcct.AcctType = 7 " BY_ENTRY);
    for (const auto& [caption, statement] : cases) {
        const auto label = run.report->IReport_ReportDesigner()->Get("lblType").ToObject();
        label->Put("Caption", caption);
        EXPECT_EQ(StatementAfterRun(run), statement) << caption;
    }
}

TEST(GeneralLedgerTest, AsksForTheColumnsOfTheJournal) {
    JournalRun ledger = LedgerRun(), journal;
    const auto columns = [](JournalRun& run) {
        run({});
        const auto& command = *run.host->database.Commands().back();
        EXPECT_EQ(command.parameters.size(), 2u);
        return command.text.substr(0, command.text.find("WHERE"));
    };
    EXPECT_EQ(columns(ledger), columns(journal));
}

TEST(GeneralLedgerTest, SegmentsDocumentsCriteriaAndOrderFollowTheType) {
    JournalRun run = LedgerRun(4);
    const auto tool = std::make_shared<PickingTool>();
    tool->picked = {"12"};
    const auto report = run.report->IReport_ReportDesigner();
    report->Put("ISegmentFilter_SegmentFilter", "3");
    report->Put("IFilterableReport_Filter", "GLDet.DetAmnt > 5|GLDet.DetRef");
    report->Put("IFilterableReport_FilterTool", ObjectRef(tool));
    EXPECT_EQ(StatementAfterRun(run), PERIOD
              " AND GLAcct.AcctType = 4  AND GLDet.ExSrcKeyVal IN (12) AND (GLDet.ExSegmentId IN "
              "(3)) AND (GLDet.DetAmnt > 5)  ORDER BY GLDet.SeqNo, GLDet.DetRef");
}

TEST(GeneralLedgerTest, NamesTheTypeInALineOfItsOwnThatAllAccountsDoWithout) {
    JournalRun all = LedgerRun(), one = LedgerRun(4);
    one.host->texts = {{30013, "&General Ledger"}, {30047, "Account types"}};
    const auto plain = all({}).Of("PageHeader").at(0);
    const auto named = one({}).Of("PageHeader").at(0);
    EXPECT_EQ(named.Text("hdrTitle"), "General Ledger");
    EXPECT_EQ(named.Text("lblAcctType"), "Account types: Section 4");
    EXPECT_FALSE(plain["lblAcctType"].visible);
    EXPECT_FALSE(named["lblType"].visible);
    EXPECT_EQ(named.height - plain.height, named["lblAcctType"].box.height);
    EXPECT_LE(named["lblAcctType"].box.Bottom(), named["lblDebitCap"].box.top);
}

TEST(GeneralLedgerTest, ATypeWithoutACaptionIsToldAndItsLinesPrint) {
    JournalRun run = LedgerRun(4);
    const auto& names = run.host->calls.Names();
    const auto before = static_cast<std::ptrdiff_t>(names.size());
    run({});
    const auto asked = std::find(names.begin(), names.end(), "AccountTypes.Caption");
    ASSERT_NE(asked, names.end());
    const auto place = asked - names.begin() - before + 1;
    run.host->calls.FailAt(run.host->calls.Count() + static_cast<int>(place));
    const auto bands = run({Amount("10"), Amount("-10")});
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0], HasSubstr("AccountTypes.Caption, failed"));
    EXPECT_THAT(bands.Texts("Detail", "txtDebit"), ElementsAre("10.00", ""));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtDebitGrandTotal"), ElementsAre("10.00"));
}

TEST(GeneralLedgerTest, GivesAComparisonAllThatALineHasByItsId) {
    JournalRun run = LedgerRun();
    const auto sink = std::make_shared<CollectedRows>();
    dynamic_cast<IComparableReport&>(*run.report).IComparableReport_ComparableReportGen(sink);
    run.report->IReport_DisplayForeignCurrency(true);
    auto dollars = Amount("-135.50", 4), bare = Amount("5", 7);
    dollars.currency_id = 2;
    dollars.currency_code = "USD";
    dollars.foreign = Currency::FromWhole(-100);
    dollars.remarks = "Late";
    dollars.project_id = 3;
    dollars.project = "P3";
    bare.date = Variant::Null{};
    run({dollars, bare});
    EXPECT_THAT(sink->told,
                ElementsAre("1: entry=4|source=GJ|date=2025-01-15|account=1000|description=Rent|"
                            "reference=R-1|project=P3|remarks=Late|foreign=-100.0000|currency=USD|"
                            "amount=-135.5000|PurgeIncl=False",
                            "2: entry=7|source=GJ|account=1000|description=Rent|reference=R-1|"
                            "project=|remarks=|amount=5.0000|PurgeIncl=False"));
}

}  // namespace
}  // namespace varnel::test
