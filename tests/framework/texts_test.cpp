#include "framework/texts.h"

#include <gtest/gtest.h>

#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

TEST(TextsTest, EveryAcceleratorMarkGoes) {
    EXPECT_EQ(WithoutAccelerators("&General Journal"), "General Journal");
    EXPECT_EQ(WithoutAccelerators("A&&B&"), "AB");
    EXPECT_EQ(WithoutAccelerators("plain"), "plain");
    test::MemoryHost host;
    host.texts[1376] = "&All &dates";
    EXPECT_EQ(PlainText(host, 1376), "All dates");
}

TEST(TextsTest, TrimmingTakesBlanksAtTheEndsOnly) {
    EXPECT_EQ(Trimmed("  two  words "), "two  words");
    EXPECT_EQ(Trimmed("   "), "");
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed("\tkept\t"), "\tkept\t");
}

}  // namespace
}  // namespace varnel::framework
