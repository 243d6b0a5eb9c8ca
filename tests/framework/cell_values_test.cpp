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

constexpr CaptionCase kCaptions[] = {{"1060", "Bank", true, "1060 - Bank"},
                                     {"1060", "Bank", false, "Bank"},
                                     {"", "Bank", true, "Bank"},
                                     {"1060", "", true, "1060"}};

TEST(AccountCaptionTest, JoinsTheNumberAndTheDescriptionThatThereAre) {
    for (const auto& [number, description, with_number, caption] : kCaptions) {
        EXPECT_EQ(AccountCaption(with_number ? number : "", description), caption);
        Row row;
        row.Start(2);
        row.AddText(number);
        row.AddText(description);
        std::string read = "what was there before";
        ReadAccountCaption(row, Column{0}, Column{1}, with_number, read);
        EXPECT_EQ(read, caption);
    }
}

}  // namespace
}  // namespace varnel::framework
