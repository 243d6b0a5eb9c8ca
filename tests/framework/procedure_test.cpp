#include "framework/procedure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

/// A host that cannot even show a message.
struct BrokenHost final : test::MemoryHost {
    void ShowMessageBox(const std::string&) override {
        throw std::runtime_error("the host is broken");
    }
};

std::string InLine(const std::string& description, int line) {
    return description + "\r\nin Varnel.dsrTried.Detail_Format at line " + std::to_string(line);
}

class FormATest : public testing::Test {
  protected:
    template <class Body>
    std::string MessageOf(Body&& body, std::uint_least32_t line = 0) {
        GuardFormA(&host_, "dsrTried", "Detail_Format", body, line);
        return host_.message_boxes.empty() ? "" : host_.message_boxes.back();
    }

    test::MemoryHost host_;
};

TEST_F(FormATest, AFailureRaisedInTheLibraryTellsTheLineThatRaisedIt) {
    const int line = __LINE__ + 1;
    const auto body = [] { Raise(error_number::kOther, "Varnel", "It is full"); };
    EXPECT_EQ(MessageOf(body), InLine("It is full", line));
}

TEST_F(FormATest, AFailureOfTheHostTellsTheLastStatementMarked) {
    const int line = __LINE__ + 3;
    const auto body = [] {
        Mark();
        Mark(), throw std::runtime_error("No connection");
        Mark();
    };
    EXPECT_EQ(MessageOf(body), InLine("No connection", line));
}

TEST_F(FormATest, AnErrorOfTheHostThatBringsNoLineTellsTheLastStatementMarked) {
    const auto body = [] {
        Mark(7);
        throw Error(error_number::kDatabase, "Host", "No such table");
    };
    EXPECT_EQ(MessageOf(body), InLine("No such table", 7));
}

TEST_F(FormATest, BeforeAnyMarkTheProcedureItselfIsTheLine) {
    EXPECT_EQ(MessageOf([] { throw 42; }, 123), InLine("An unknown failure", 123));
    GuardFormA(&host_, "o", "p", [] { throw 42; });
    EXPECT_THAT(host_.message_boxes.back(), testing::EndsWith(std::to_string(__LINE__ - 1)));
}

TEST_F(FormATest, MarksOfAProcedureCalledDoNotChangeTheCallersLine) {
    const auto body = [&] {
        Mark(10);
        GuardFormA(&host_, "dsrTried", "Inner", [] { Mark(20), throw 1; });
        throw std::runtime_error("outer");
    };
    EXPECT_EQ(MessageOf(body), InLine("outer", 10));
    EXPECT_EQ(host_.message_boxes.front(),
              "An unknown failure\r\nin Varnel.dsrTried.Inner at line 20");
}

TEST_F(FormATest, AComponentFailureIsShownByTheProcedureThatCalledIt) {
    const auto body = [] {
        Mark(30);
        GuardFormB("CGLAcct", "Descr", [] { Mark(40), throw Error(5, "Host", "No account"); });
    };
    EXPECT_EQ(MessageOf(body),
              InLine("No account (Varnel.CGLAcct.Descr component failure at line:40", 30));
}

TEST_F(FormATest, MarkingOutsideOfAnyProcedureIsHarmless) {
    Mark(50);
    EXPECT_EQ(MessageOf([] { throw 42; }, 60), InLine("An unknown failure", 60));
}

class NoHostTest : public testing::Test {
  protected:
    ~NoHostTest() override { SetRunningHost({}); }

    std::string StandardErrorOf(Application* application) {
        testing::internal::CaptureStderr();
        GuardFormA(
            application, "dsrTried", "Detail_Format",
            [] { throw std::runtime_error("It is full"); }, 9);
        return testing::internal::GetCapturedStderr();
    }
};

TEST_F(NoHostTest, WithoutAnApplicationTheRunningHostShowsTheMessage) {
    const auto host = std::make_shared<test::MemoryHost>();
    SetRunningHost(host);
    EXPECT_EQ(StandardErrorOf(nullptr), "");
    EXPECT_THAT(host->message_boxes, testing::ElementsAre(InLine("It is full", 9)));
}

TEST_F(NoHostTest, TheReportsOwnApplicationComesBeforeTheRunningHost) {
    const auto running = std::make_shared<test::MemoryHost>();
    test::MemoryHost own;
    SetRunningHost(running);
    StandardErrorOf(&own);
    EXPECT_THAT(running->message_boxes, testing::IsEmpty());
    EXPECT_THAT(own.message_boxes, testing::SizeIs(1));
}

TEST_F(NoHostTest, WithoutAnyHostTheMessageGoesToStandardError) {
    EXPECT_EQ(StandardErrorOf(nullptr), InLine("It is full", 9) + "\n");
    SetRunningHost(std::make_shared<test::MemoryHost>());  // Gone at once.
    EXPECT_EQ(StandardErrorOf(nullptr), InLine("It is full", 9) + "\n");
}

TEST_F(NoHostTest, AHostThatCannotShowAMessageDoesNotHideTheFailure) {
    BrokenHost broken;
    EXPECT_EQ(StandardErrorOf(&broken), InLine("It is full", 9) + "\n");
}

TEST(FormBTest, RaisesAgainWithTheProcedureAppendedAndNumberAndSourceUnchanged) {
    try {
        GuardFormB("clsReport", "BalanceSheet", [] {
            Mark(77), throw Error(error_number::kCannotCreateObject, "Host", "Not there");
        });
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), error_number::kCannotCreateObject);
        EXPECT_EQ(error.Source(), "Host");
        EXPECT_EQ(error.Description(),
                  "Not there (Varnel.clsReport.BalanceSheet component failure at line:77");
    }
}

}  // namespace
}  // namespace varnel::framework
