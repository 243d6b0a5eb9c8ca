#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/catalogue.h"
#include "framework/create_object.h"
#include "tests/framework/factory_methods.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel {

// This program's own: it was built without any report.
std::span<const framework::CatalogueEntry> framework::Catalogue() { return {}; }

std::span<const framework::PublicClass> framework::PublicClasses() {
    static constexpr PublicClass kClasses[] = {{"Varnel.CGLAcctHelper", nullptr}};
    return kClasses;
}

namespace test {
namespace {

using testing::MatchesRegex;

/// Of a call while no report can be made, early- or late-bound: form A or form B.
void ExpectFailure(const FactoryMethod& method, MemoryHost& host, bool late) {
    clsReport factory;
    ObjectRef made;
    const std::string error = DescriptionOf([&] {
        if (late)
            made = factory.Call(method.name, method.arguments).ToObject();
        else if (const auto report = method.call(factory))
            made = report->IReport_ReportDesigner();
    });
    EXPECT_EQ(made, nullptr);
    const std::string description =
        "The report " + std::string(method.class_name) + " is not part of this version";
    const std::string member = "Varnel\\.clsReport\\." + method.name;
    if (!method.shows_message) {
        EXPECT_THAT(host.message_boxes, testing::IsEmpty());
        EXPECT_THAT(error, MatchesRegex(description + " \\(" + member +
                                        " component failure at line:[1-9][0-9]*"));
        return;
    }
    EXPECT_EQ(error, "");
    EXPECT_THAT(host.message_boxes,
                testing::ElementsAre(
                    MatchesRegex(description + "\r\nin " + member + " at line [1-9][0-9]*")));
}

TEST(FactoryFailureTest, AReportThatIsNotBuiltFailsInTheFormOfTheMethod) {
    for (const auto& method : FactoryMethods()) {
        for (const bool late : {false, true}) {
            SCOPED_TRACE(method.name);
            const auto host = std::make_shared<MemoryHost>();
            SetRunningHost(host);
            ExpectFailure(method, *host, late);
        }
    }
    SetRunningHost({});
    EXPECT_EQ(ErrorOf([] { clsReport().BalanceSheet(); }), error_number::kCannotCreateObject);
}

TEST(FactoryFailureTest, AClassThatIsNotBuiltSaysSo) {
    EXPECT_EQ(DescriptionOf([] { CreateObject("varnel.cglaccthelper"); }),
              "The class Varnel.CGLAcctHelper is not part of this version");
}

}  // namespace
}  // namespace test
}  // namespace varnel
