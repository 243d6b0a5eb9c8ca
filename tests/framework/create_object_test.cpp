#include "framework/create_object.h"

#include <gtest/gtest.h>

#include "host/variant.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

TEST(CreateObjectTest, FindsPublicClassesWhateverTheCase) {
    EXPECT_EQ(CreateObject("Varnel.clsReport")->ObjectName(), "clsReport");
    EXPECT_EQ(CreateObject("VARNEL.CLSREPORT")->ObjectName(), "clsReport");
    for (const std::string name : {"CGLAcct", "CGLAccts", "CGLAcctHelper"})
        EXPECT_EQ(CreateObject("Varnel." + name)->ObjectName(), name);
    EXPECT_NE(CreateObject("Varnel.clsReport"), CreateObject("Varnel.clsReport"));
}

TEST(CreateObjectTest, SaysWhatItCannotCreateAndWhatThereIs) {
    for (const char* identifier : {"", "clsReport", "Varnel.", "Varnel.dsrGeneralJournal"})
        EXPECT_EQ(ErrorOf([&] { CreateObject(identifier); }), error_number::kCannotCreateObject);
    EXPECT_EQ(DescriptionOf([] { CreateObject("Varnel.Nothing"); }),
              "There is no class \"Varnel.Nothing\"; the public classes are Varnel.clsReport, "
              "Varnel.CGLAcct, Varnel.CGLAccts and Varnel.CGLAcctHelper");
}

TEST(CreateObjectTest, TheEntryPointForForeignCodeReturnsNumberAndMessageInsteadOfRaising) {
    ObjectRef object;
    const char* message = nullptr;
    EXPECT_EQ(VarnelCreateObject("Varnel.clsReport", &object, &message), 0);
    ASSERT_NE(object, nullptr);
    const ObjectRef kept = object;
    EXPECT_EQ(VarnelCreateObject("Varnel.Nothing", &object, &message),
              error_number::kCannotCreateObject);
    EXPECT_EQ(object, kept);
    EXPECT_TRUE(std::string(message).starts_with("There is no class \"Varnel.Nothing\""));
    EXPECT_EQ(VarnelCreateObject("Varnel.Nothing", &object, nullptr),
              error_number::kCannotCreateObject);
}

TEST(CreateObjectTest, TheEntryPointRefusesMissingArguments) {
    ObjectRef object;
    const char* message = nullptr;
    EXPECT_EQ(VarnelCreateObject(nullptr, &object, &message), error_number::kInvalidArgument);
    EXPECT_STREQ(message, "VarnelCreateObject needs an identifier and a place for the object");
    EXPECT_EQ(VarnelCreateObject("Varnel.clsReport", nullptr, &message),
              error_number::kInvalidArgument);
}

}  // namespace
}  // namespace varnel::test
