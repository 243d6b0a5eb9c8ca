#include <gtest/gtest.h>

#include "tests/drivers/sqlite_fixture.h"

namespace varnel::drivers {

namespace {

class SqliteConforms : public testing::TestWithParam<DriverCase> {};

TEST_P(SqliteConforms, Case) {
    SqliteFixture fixture;
    GetParam().run(fixture);
}

INSTANTIATE_TEST_SUITE_P(Driver, SqliteConforms, testing::ValuesIn(EveryDriverCase()),
                         [](const auto& test) { return std::string(test.param.name); });
INSTANTIATE_TEST_SUITE_P(DesktopDriver, SqliteConforms, testing::ValuesIn(MixedTextCases()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace

}  // namespace varnel::drivers
