#include <gtest/gtest.h>

#include "tests/drivers/odbc_fixture.h"

namespace varnel::drivers {

namespace {

class OdbcConforms : public testing::TestWithParam<DriverCase> {};

TEST_P(OdbcConforms, Case) {
    if (ServerFolder().empty()) GTEST_SKIP() << "there is no PostgreSQL server for the tests";
    OdbcFixture fixture;
    GetParam().run(fixture);
}

INSTANTIATE_TEST_SUITE_P(Driver, OdbcConforms, testing::ValuesIn(EveryDriverCase()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace

}  // namespace varnel::drivers
