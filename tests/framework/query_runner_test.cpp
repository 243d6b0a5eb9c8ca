#include "framework/query_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

using testing::ElementsAre;

TEST(QueryRunnerTest, AsksTheCommandInTheOrderThatHostsExpect) {
    test::MemoryHost host;
    host.database.Answer("", {{"A"}, {{1}}});
    const Variant parameters[] = {kOpenStart, kOpenEnd, 7};
    const auto rows = RunQuery(host, "SELECT ?, ?, ?", parameters);
    EXPECT_EQ(rows->Current().Integer(rows->GetColumns().At("A")), 1);

    const auto& command = *host.database.Commands().at(0);
    EXPECT_THAT(command.calls,
                ElementsAre("timeout 0", "connection memory", "text", "parameter 1899-12-31",
                            "parameter 9999-12-31", "parameter 7", "execute -1"));
    EXPECT_EQ(command.text, "SELECT ?, ?, ?");
    EXPECT_TRUE(command.parameters[0].Holds<Date>());
    EXPECT_TRUE(command.parameters[2].Holds<std::int32_t>());
}

TEST(QueryRunnerTest, ASettingThatIsNotThereIsOff) {
    test::MemoryHost host;
    EXPECT_FALSE(ReadSwitch(host, "ItemAdjustGL"));
    for (const char* on : {"True", "true", "-1", "1"}) {
        host.company.settings["ItemAdjustGL"] = on;
        EXPECT_TRUE(ReadSwitch(host, "ItemAdjustGL")) << on;
    }
    for (const char* off : {"False", "0", ""}) {
        host.company.settings["ItemAdjustGL"] = off;
        EXPECT_FALSE(ReadSwitch(host, "ItemAdjustGL")) << off;
    }
}

TEST(QueryRunnerTest, ASettingThatIsNeitherOnNorOffIsNamed) {
    test::MemoryHost host;
    host.company.settings["ItemAdjustGL"] = "no";
    std::string description;
    EXPECT_EQ(test::ErrorOf([&] { ReadSwitch(host, "ItemAdjustGL"); }, &description),
              error_number::kTypeMismatch);
    EXPECT_EQ(description, "The company's setting ItemAdjustGL is \"no\": set it to True or False");
}

}  // namespace
}  // namespace varnel::framework
