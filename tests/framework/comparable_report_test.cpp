#include "framework/comparable_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/collected_rows.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

using test::CollectedRows;
using testing::ElementsAre;
using testing::IsEmpty;

struct Compared final : MemberParts, ComparableReport {
    Compared() : ComparableReport(static_cast<MemberParts&>(*this), "dsrTried") {}
    using ComparableReport::StartComparing;

    void Row(const char* key, const char* amount) {
        NewComparableRow().AddOnItsSide(Currency::Parse(amount));
        AddComparableRow(key);
    }
    void Group() {
        BeginComparableGroup("7", "Seven");
        Row("1", "2.5");
        EndComparableGroup();
        EndComparableGroup();
    }
};

class ComparingTest : public testing::Test {
  protected:
    ComparingTest() { report.IComparableReport_ComparableReportGen(sink); }

    test::MemoryHost host;
    Compared report;
    std::shared_ptr<CollectedRows> sink = std::make_shared<CollectedRows>();
};

TEST_F(ComparingTest, RowsCarryTheSettingAsItWasAtTheStart) {
    for (const char* purged : {"True", "False"}) {
        host.company.settings["PurgeIncl"] = purged;
        report.StartComparing(host);
        host.company.settings["PurgeIncl"] = "changed";
        report.Row("9", "-4");
        EXPECT_EQ(sink->told.back(), "9: debit=|credit=4.0000|PurgeIncl=" + std::string(purged));
    }
}

TEST_F(ComparingTest, NobodyIsAskedOrToldWithoutASinkOrWithOneThatCameDuringTheRun) {
    report.IComparableReport_ComparableReportGen(nullptr);
    report.StartComparing(host);
    EXPECT_THAT(host.calls.Names(), IsEmpty());
    report.IComparableReport_ComparableReportGen(sink);
    report.Group();
    EXPECT_THAT(sink->told, IsEmpty());
    report.StartComparing(host);
    const auto second = std::make_shared<CollectedRows>();
    report.IComparableReport_ComparableReportGen(second);
    report.Group();
    EXPECT_THAT(sink->told, IsEmpty());
    EXPECT_EQ(sink.use_count(), 1);
}

TEST_F(ComparingTest, ASinkThatFailsHearsNoMoreOfTheRun) {
    sink->failing = 2;
    report.StartComparing(host);
    EXPECT_EQ(test::DescriptionOf([&] { report.Group(); }), "The sink is full");
    report.Group();
    EXPECT_EQ(sink->told.size(), 2u);
    report.StartComparing(host);
    report.Group();
    EXPECT_EQ(sink->told.size(), 5u);
}

TEST_F(ComparingTest, ASettingThatCannotBeReadLeavesNoRowsRatherThanWrongOnes) {
    host.company.settings["PurgeIncl"] = "maybe";
    EXPECT_EQ(test::ErrorOf([&] { report.StartComparing(host); }), error_number::kTypeMismatch);
    report.Group();
    EXPECT_THAT(sink->told, IsEmpty());
}

TEST_F(ComparingTest, AnswersToTheNamesOfTheInterface) {
    Variant name;
    EXPECT_TRUE(report.Get("IComparableReport_FullName", name));
    EXPECT_EQ(name.ToText(), "Varnel.dsrTried");
    const auto late = std::make_shared<CollectedRows>();
    EXPECT_TRUE(report.Put("IComparableReport_ComparableReportGen", ObjectRef(late)));
    report.StartComparing(host);
    report.Group();
    EXPECT_EQ(late->told.size(), 3u);
    EXPECT_EQ(test::ErrorOf([&] {
                  report.Put("IComparableReport_ComparableReportGen",
                             ObjectRef(std::make_shared<RateCollection>()));
              }),
              error_number::kTypeMismatch);
}

}  // namespace
}  // namespace varnel::framework
