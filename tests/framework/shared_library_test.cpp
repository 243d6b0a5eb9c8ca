#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "host/report.h"
#include "host/variant.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::test {
namespace {

using CreateFunction = int (*)(const char* identifier, void* object, const char** message);

/// The library as a host loads it at run time.
class SharedLibraryTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        void* library = dlopen(VARNEL_SHARED_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(library, nullptr) << dlerror();
        create_ = reinterpret_cast<CreateFunction>(dlsym(library, "VarnelCreateObject"));
        ASSERT_NE(create_, nullptr);
        EXPECT_EQ(dlsym(library,
                        "_ZN6varnel12CreateObjectESt17basic_string_viewIcSt11char_"
                        "traitsIcEE"),
                  nullptr);
    }

    ObjectRef Create(const char* identifier) {
        ObjectRef object;
        EXPECT_EQ(create_(identifier, &object, nullptr), 0);
        return object;
    }

    static CreateFunction create_;
};

CreateFunction SharedLibraryTest::create_ = nullptr;

TEST_F(SharedLibraryTest, TheFactoryWorksLateBoundFromOutside) {
    const auto host = std::make_shared<MemoryHost>();
    host->texts[6173] = "&General Journal";
    const ObjectRef factory = Create("Varnel.clsReport");
    const ObjectRef journal = factory->Call("GeneralJournal", {}).ToObject();
    ASSERT_NE(journal, nullptr);
    EXPECT_EQ(journal->ObjectName(), "dsrGeneralJournal");
    journal->Put("IReport_Application", ObjectRef(host));
    journal->Put("IReport_DateFrom", kOpenStart);
    journal->Call("IReport_Initialize", {});
    EXPECT_EQ(journal->Get("IReport_ReportTitle").ToText(), "General Journal");
    journal->Get("txtCount").ToObject()->Put("Text", "12");
    EXPECT_EQ(journal->Get("txtCount").ToObject()->Get("Caption").ToText(), "12");
    EXPECT_THAT(host->message_boxes, testing::IsEmpty());
}

TEST_F(SharedLibraryTest, ErrorsKeepTheirNumberAcrossTheBorder) {
    const ObjectRef factory = Create("Varnel.clsReport");
    std::string description;
    EXPECT_EQ(ErrorOf([&] { factory->Call("Nothing", {}); }, &description),
              error_number::kUnknownMember);
    EXPECT_EQ(description, "clsReport has no member \"Nothing\"");

    ObjectRef object;
    const char* message = nullptr;
    EXPECT_EQ(create_("Varnel.Nothing", &object, &message), error_number::kCannotCreateObject);
    EXPECT_EQ(object, nullptr);
    EXPECT_THAT(message, testing::StartsWith("There is no class \"Varnel.Nothing\""));
}

TEST_F(SharedLibraryTest, CompanionInterfacesAreReachedByCast) {
    const auto journal = Create("Varnel.clsReport")->Call("GeneralJournal", {}).ToObject();
    EXPECT_NE(dynamic_cast<IReport*>(journal.get()), nullptr);
    EXPECT_NE(dynamic_cast<ISegmentFilter*>(journal.get()), nullptr);
    EXPECT_NE(dynamic_cast<IFilterableReport*>(journal.get()), nullptr);
    EXPECT_EQ(dynamic_cast<IReportConfig*>(journal.get()), nullptr);
    EXPECT_EQ(dynamic_cast<IExchangeRates*>(journal.get()), nullptr);
}

}  // namespace
}  // namespace varnel::test
