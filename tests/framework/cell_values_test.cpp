#include "framework/cell_values.h"

#include <gtest/gtest.h>

namespace varnel::framework {
namespace {

struct CaptionCase {
    const char* number;
    const char* description;
    bool with_number;
    const char* caption;
};

class AccountCaptionTest : public testing::TestWithParam<CaptionCase> {};

TEST_P(AccountCaptionTest, JoinsTheNumberAndTheDescriptionThatThereAre) {
    const auto& [number, description, with_number, caption] = GetParam();
    EXPECT_EQ(AccountCaption(with_number ? number : "", description), caption);
    Row row;
    row.Start(2);
    row.AddText(number);
    row.AddText(description);
    std::string read = "what was there before";
    ReadAccountCaption(row, Column{0}, Column{1}, with_number, read);
    EXPECT_EQ(read, caption);
}

INSTANTIATE_TEST_SUITE_P(Parts, AccountCaptionTest,
                         testing::Values(CaptionCase{"1060", "Bank", true, "1060 - Bank"},
                                         CaptionCase{"1060", "Bank", false, "Bank"},
                                         CaptionCase{"", "Bank", true, "Bank"},
                                         CaptionCase{"1060", "", true, "1060"},
                                         CaptionCase{"1060", "", false, ""}));

TEST(AccountCaptionOfARowTest, ReadsAnAccountThatTheRowDoesNotHaveAsNothing) {
    Row row;
    row.Start(2);
    row.AddNull();
    row.AddNull();
    std::string read = "what was there before";
    ReadAccountCaption(row, Column{0}, Column{1}, true, read);
    EXPECT_EQ(read, "");
}

}  // namespace
}  // namespace varnel::framework
