#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/framework/factory_methods.h"
#include "tests/framework/recorded_reports.h"
#include "tests/support/error_of.h"

namespace varnel {
namespace {

using test::DescriptionOf;
using test::FactoryMethod;
using test::RecordedReport;

class FactoryTest : public testing::TestWithParam<FactoryMethod> {
  protected:
    void ExpectMade(const ObjectRef& made) {
        const auto report = std::dynamic_pointer_cast<RecordedReport>(made);
        ASSERT_NE(report, nullptr);
        EXPECT_EQ(report->ObjectName(), GetParam().class_name);
        EXPECT_EQ(report->options, GetParam().options);
        EXPECT_EQ(report->GetSurface().At("lblType").Text(), GetParam().type_caption);
    }

    clsReport factory_;
};

TEST_P(FactoryTest, MakesAReportOfItsClassWithTheOptionsOfItsArguments) {
    ExpectMade(GetParam().call(factory_)->IReport_ReportDesigner());
    ExpectMade(factory_.Call(GetParam().name, GetParam().arguments).ToObject());
}

TEST_P(FactoryTest, MakesANewReportWithEachCall) {
    const auto first = GetParam().call(factory_);
    const auto second = GetParam().call(factory_);
    EXPECT_NE(first, second);
    const ObjectRef label = first->IReport_ReportDesigner()->Get("lblType").ToObject();
    label->Put("Caption", "changed");
    ExpectMade(second->IReport_ReportDesigner());
}

INSTANTIATE_TEST_SUITE_P(Methods, FactoryTest, testing::ValuesIn(test::FactoryMethods()));

TEST(FactoryOptionsTest, LateBoundArgumentsAreConvertedOrRefused) {
    clsReport factory;
    const Variant yes[] = {"True"};
    const auto report = std::dynamic_pointer_cast<RecordedReport>(
        factory.Call("trialbalancedetail", yes).ToObject());
    EXPECT_THAT(report->options, testing::ElementsAre("HideInactiveAccounts = True"));
    EXPECT_EQ(DescriptionOf([&] { factory.Call("GeneralLedger", {}); }),
              "The method takes more arguments than the 0 it was given");
    const Variant too_large[] = {40'000};
    EXPECT_EQ(test::ErrorOf([&] { factory.Call("GeneralLedger", too_large); }),
              error_number::kOverflow);
    EXPECT_EQ(DescriptionOf([&] { factory.Call("AgedReceivables", {}); }),
              "clsReport has no member \"AgedReceivables\"");
}

}  // namespace
}  // namespace varnel
