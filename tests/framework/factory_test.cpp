#include <gtest/gtest.h>

#include "tests/framework/factory_methods.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

/// A property, or the caption of a control.
std::string OptionOf(Object& report, const char* name) {
    const Variant value = report.Get(name);
    return value.Holds<ObjectRef>() ? value.ToObject()->Get("Caption").ToText() : value.ToText();
}

TEST(FactoryTest, MakesANewReportOfTheClassWithTheOptionsOfTheArguments) {
    clsReport factory;
    for (const auto& method : FactoryMethods()) {
        SCOPED_TRACE(method.name);
        const ObjectRef early = method.call(factory)->IReport_ReportDesigner();
        const ObjectRef late = factory.Call(method.name, method.arguments).ToObject();
        EXPECT_NE(early, late);
        for (const auto& made : {early, late}) {
            EXPECT_EQ(made->ObjectName(), method.class_name);
            for (const auto& [name, value] : method.options)
                EXPECT_EQ(OptionOf(*made, name), value) << name;
        }
    }
}

TEST(FactoryTest, LateBoundArgumentsAreConvertedOrRefused) {
    clsReport factory;
    const Variant no[] = {"False"}, too_large[] = {40'000};
    const auto report = factory.Call("trialbalancedetail", no).ToObject();
    EXPECT_FALSE(report->Get("HideInactiveAccounts").ToBool());
    EXPECT_EQ(DescriptionOf([&] { factory.Call("GeneralLedger", {}); }),
              "The method takes more arguments than the 0 it was given");
    EXPECT_EQ(ErrorOf([&] { factory.Call("GeneralLedger", too_large); }), error_number::kOverflow);
    EXPECT_EQ(DescriptionOf([&] { factory.Call("AgedReceivables", {}); }),
              "clsReport has no member \"AgedReceivables\"");
}

}  // namespace
}  // namespace varnel::test
