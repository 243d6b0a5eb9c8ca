#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/framework/factory_methods.h"
#include "tests/framework/recorded_reports.h"
#include "tests/support/memory_host.h"

namespace varnel {
namespace {

using test::FactoryMethod;
using testing::MatchesRegex;

class FactoryFailureTest : public testing::TestWithParam<FactoryMethod> {
  protected:
    FactoryFailureTest() { SetRunningHost(host_); }
    ~FactoryFailureTest() override {
        SetRunningHost({});
        std::ranges::copy(entries_, test::RecordedCatalogue().begin());
    }

    /// Calls the method while no report can be made, early- and late-bound.
    void ExpectFailure(std::int32_t number, const std::string& description) {
        if (GetParam().shows_message) return ExpectMessage(description);
        ExpectError(number, description, [this] { GetParam().call(factory_); });
        ExpectError(number, description,
                    [this] { factory_.Call(GetParam().name, GetParam().arguments); });
    }

    std::shared_ptr<test::MemoryHost> host_ = std::make_shared<test::MemoryHost>();
    clsReport factory_;

  private:
    const std::vector<framework::CatalogueEntry> entries_{test::RecordedCatalogue().begin(),
                                                          test::RecordedCatalogue().end()};

    void ExpectMessage(const std::string& description) {
        EXPECT_EQ(GetParam().call(factory_), nullptr);
        EXPECT_EQ(factory_.Call(GetParam().name, GetParam().arguments).ToObject(), nullptr);
        EXPECT_THAT(
            host_->message_boxes,
            testing::AllOf(testing::SizeIs(2),
                           testing::Each(MatchesRegex(description + "\r\nin Varnel\\.clsReport\\." +
                                                      GetParam().name + " at line [1-9][0-9]*"))));
    }

    template <class Action>
    void ExpectError(std::int32_t number, const std::string& description, Action&& action) {
        try {
            action();
            FAIL() << "no error";
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), number);
            EXPECT_THAT(error.Description(),
                        MatchesRegex(description + " \\(Varnel\\.clsReport\\." + GetParam().name +
                                     " component failure at line:[1-9][0-9]*"));
        }
        EXPECT_THAT(host_->message_boxes, testing::IsEmpty());
    }
};

TEST_P(FactoryFailureTest, AReportThatIsNotBuiltFailsInTheFormOfTheMethod) {
    for (auto& entry : test::RecordedCatalogue()) entry.make = nullptr;
    ExpectFailure(
        error_number::kCannotCreateObject,
        "The report " + std::string(GetParam().class_name) + " is not part of this version");
}

INSTANTIATE_TEST_SUITE_P(Methods, FactoryFailureTest, testing::ValuesIn(test::FactoryMethods()));

}  // namespace
}  // namespace varnel
