#include <gtest/gtest.h>

#include "tests/drivers/sqlite_fixture.h"

namespace varnel::drivers {

namespace {

std::vector<DriverCase> AllCases() {
    std::vector<DriverCase> all;
    for (const auto& cases : {RowCases(), TextCases(), SumCases(), ErrorCases()})
        all.insert(all.end(), cases.begin(), cases.end());
    return all;
}

class SqliteConforms : public testing::TestWithParam<DriverCase> {};

TEST_P(SqliteConforms, Case) {
    SqliteFixture fixture;
    GetParam().run(fixture);
}

INSTANTIATE_TEST_SUITE_P(Driver, SqliteConforms, testing::ValuesIn(AllCases()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace

}  // namespace varnel::drivers
