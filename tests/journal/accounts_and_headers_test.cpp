#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/journal_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

JournalLine Described(Variant description, Variant reference) {
    JournalLine line;
    line.description = std::move(description);
    line.reference = std::move(reference);
    return line;
}

struct DescriptionCase {
    Variant description;
    Variant reference;
    const char* text;
};

TEST(JournalHeaderTest, DescribesByDescriptionMarkerAndReferenceWithoutOuterBlanks) {
    const DescriptionCase kCases[] = {{"Rent", "R-1", "Rent  #Ref: R-1"},
                                      {"  Rent ", " R 1 ", "Rent   #Ref:  R 1"},
                                      {"", Variant::Null{}, "#Ref:"},
                                      {Variant::Null{}, "R-1", "#Ref: R-1"}};
    JournalRun run;
    for (const auto& [description, reference, text] : kCases)
        EXPECT_THAT(run({Described(description, reference)}).Texts("ghSeqNo", "txtDescription"),
                    ElementsAre(text));
}

TEST(JournalHeaderTest, ShowsNumberAndDateWithTheirValuesThatOpenTheSourceDocument) {
    JournalRun run;
    auto undated = Amount("5", 12);
    undated.date = Variant::Null{};
    undated.source = "BKT";
    undated.source_key = "X7";
    const auto headers = run({Amount("5", 1), undated}).Of("ghSeqNo");
    EXPECT_EQ(headers.at(0).Text("txtDate"), "2025-01-15");
    EXPECT_EQ(headers.at(0)["txtDate"].value, ControlValue(Date::ParseIso("2025-01-15")));
    EXPECT_EQ(headers.at(1).Text("txtDate"), "") << "not the one before";
    EXPECT_EQ(headers.at(1)["txtDate"].value, ControlValue());
    EXPECT_EQ(headers.at(1).Text("txtSeqNo"), "12");
    EXPECT_EQ(headers.at(1)["txtSeqNo"].value, ControlValue(std::int32_t{12}));
    for (const char* control : {"txtSeqNo", "txtDate", "txtDescription"}) {
        EXPECT_EQ(headers.at(0)[control].tag, "GJ|11");
        EXPECT_EQ(headers.at(1)[control].tag, "BKT|X7");
    }
}

JournalLine Remarked(std::int32_t entry, Variant remarks) {
    auto line = Amount("5", entry);
    line.remarks = std::move(remarks);
    return line;
}

TEST(JournalRemarksTest, AreShownExactlyWhereThereAreAny) {
    JournalRun run;
    const auto bands = run({Remarked(1, Variant::Null{}), Remarked(2, "See the lease"),
                            Remarked(3, ""), Remarked(4, "Approved"), Remarked(5, " ")});
    EXPECT_THAT(bands.Texts("gfComment", "txtRemarks"),
                ElementsAre("See the lease", "Approved", " "));
}

TEST(JournalRemarksTest, StandBetweenTheLinesOfTheEntryAndItsTotals) {
    JournalRun run;
    std::vector<std::string> order;
    for (const auto& band : run({Remarked(1, "Why"), Remarked(1, "Why")}).bands)
        if (band.depth == 0) order.push_back(band.section);
    EXPECT_THAT(order,
                testing::ElementsAre("ReportHeader", "PageHeader", "ghSeqNo", "ghComment", "Detail",
                                     "Detail", "gfComment", "gfSeqNo", "ReportFooter"));
}

TEST(JournalProjectTest, IsShownForLinesOfAProjectOnly) {
    JournalRun run;
    auto of_project = Amount("5");
    of_project.project_id = 3;
    of_project.project = "BRIDGE";
    EXPECT_THAT(run({Amount("5"), of_project, Amount("5")}).Texts("Detail", "txtProject"),
                ElementsAre("", "BRIDGE", ""));
}

JournalLine OfAccount(Variant number, Variant description) {
    JournalLine line;
    line.account_number = std::move(number);
    line.account = std::move(description);
    return line;
}

TEST(JournalAccountTest, ShowsTheNumberOnlyWhenTheCompanyUsesNumbers) {
    JournalRun run;
    const std::vector lines{OfAccount("1000", "Cash"), OfAccount(2100, "Payables"),
                            OfAccount(Variant::Null{}, Variant::Null{})};
    EXPECT_THAT(run(lines).Texts("Detail", "txtAccount"),
                ElementsAre("1000 - Cash", "2100 - Payables", ""));
    run.host->company.settings["UseAccountNumbers"] = "False";
    EXPECT_THAT(run(lines).Texts("Detail", "txtAccount"), ElementsAre("Cash", "Payables", ""));
}

}  // namespace
}  // namespace varnel::test
