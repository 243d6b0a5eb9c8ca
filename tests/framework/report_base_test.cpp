#include "framework/report_base.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/standard_header.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

using test::DescriptionOf;
using test::ErrorOf;
using testing::ElementsAre;

const Layout kLayout{.name = "dsrTried",
                     .sections = {{.name = "PageHeader",
                                   .kind = SectionKind::kPageHeader,
                                   .controls = PageHeaderControls({})},
                                  {.name = "Detail",
                                   .controls = {{.name = "lblType", .box = {}, .caption = 1912},
                                                {.name = "txtDebit", .box = {}}}}}};

class dsrTried : public ReportBase {
  public:
    dsrTried() : ReportBase(kLayout, {.title_text = 6173}) {}
    using ReportBase::DateFrom;
    using ReportBase::DateTo;
    using ReportBase::DisplayForeignCurrency;
    using ReportBase::HomeCurrencyId;
};

/// Binds a control that its layout does not have.
class dsrMisspelt : public dsrTried {
    Control& txtCredit = At("txtCredit");
};

/// Handles the event of a section that its layout does not have.
class dsrMishandled : public dsrTried {
  public:
    dsrMishandled() { Handle("ghSeqNo_Format", &dsrMishandled::ghSeqNo_Format); }

  private:
    void ghSeqNo_Format() {}
};

class ReportBaseTest : public testing::Test {
  protected:
    std::shared_ptr<test::MemoryHost> host_ = std::make_shared<test::MemoryHost>();
    std::shared_ptr<dsrTried> report_ = std::make_shared<dsrTried>();
};

TEST_F(ReportBaseTest, AMisspeltControlOrSectionStopsTheReportFromBeingBuilt) {
    EXPECT_EQ(DescriptionOf([] { dsrMisspelt(); }), "dsrTried has no member \"txtCredit\"");
    EXPECT_EQ(DescriptionOf([] { dsrMishandled(); }), "dsrTried has no member \"ghSeqNo\"");
}

TEST_F(ReportBaseTest, KeepsWhatTheHostSetsByNameAndAsksTheHostForTheRest) {
    host_->company.currency_info.home_id = 9;
    host_->texts[6173] = "&General &Journal";
    report_->Put("ireport_application", ObjectRef(host_));
    report_->Put("IReport_DateFrom", "1899-12-31");
    report_->Put("IReport_DateTo", kOpenEnd);
    report_->Put("IReport_DisplayForeignCurrency", true);
    EXPECT_EQ(report_->HomeCurrencyId(), 0);
    report_->Call("IReport_Initialize", {});
    EXPECT_EQ(report_->HomeCurrencyId(), 9);
    EXPECT_EQ(report_->DateFrom(), kOpenStart);
    EXPECT_EQ(report_->DateTo(), kOpenEnd);
    EXPECT_TRUE(report_->DisplayForeignCurrency());
    EXPECT_EQ(report_->Get("IReport_DateDisplayOptions").ToInteger16(), 1);
    EXPECT_FALSE(report_->Get("IReport_NoHeaders").ToBool());
    EXPECT_FALSE(report_->Get("IReport_UseCurrency").ToBool());
    host_->company.currency_info.records.push_back(
        {.id = 2, .code = "USD", .description = "US dollar"});
    EXPECT_TRUE(report_->IReport_UseCurrency());
    EXPECT_EQ(report_->Get("IReport_ReportTitle").ToText(), "General Journal");
    EXPECT_EQ(report_->Get("IReport_ReportDesigner").ToObject(), report_);
}

TEST_F(ReportBaseTest, AnUnknownMemberIsError438NamingReportAndMember) {
    EXPECT_EQ(DescriptionOf([&] { report_->Get("lblNone"); }),
              "dsrTried has no member \"lblNone\"");
    EXPECT_EQ(ErrorOf([&] { report_->Get("lblNone"); }), error_number::kUnknownMember);
    EXPECT_EQ(DescriptionOf([&] { report_->Put("IReport_ReportTitle", "x"); }),
              "dsrTried has no member \"IReport_ReportTitle\"");
    EXPECT_EQ(DescriptionOf([&] { report_->Call("Print", {}); }),
              "dsrTried has no member \"Print\"");
}

TEST_F(ReportBaseTest, AnApplicationThatIsNoneIsRefused) {
    EXPECT_EQ(ErrorOf([&] { report_->Put("IReport_Application", ObjectRef(report_)); }),
              error_number::kTypeMismatch);
    report_->Put("IReport_Application", ObjectRef(host_));
    report_->Put("IReport_Application", ObjectRef());
    testing::internal::CaptureStderr();
    report_->IReport_Initialize();
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::HasSubstr("set IReport_Application before running it"));
}

TEST_F(ReportBaseTest, AControlReachedThroughTheReportIsLiveAndOutlivesTheReference) {
    ObjectRef label = report_->Get("LBLTYPE").ToObject();
    label->Put("Caption", "7");
    EXPECT_EQ(report_->GetSurface().At("lblType").Text(), "7");
    const std::weak_ptr<dsrTried> watched = report_;
    report_.reset();
    EXPECT_FALSE(watched.expired());
    EXPECT_EQ(label->Get("Text").ToText(), "7");
    label.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(ReportBaseTest, AQuestionThatTheHostFailsAtIsToldAndAnsweredWithNothing) {
    report_->IReport_Application(host_);
    host_->calls.FailAt(1);
    EXPECT_FALSE(report_->IReport_UseCurrency());
    host_->calls.FailAt(host_->calls.Count() + 1);
    EXPECT_EQ(report_->IReport_ReportTitle(), "");
    using testing::MatchesRegex;
    constexpr const char* kFailed = "Host call [0-9]+, .*, failed\r\nin Varnel\\.dsrTried\\.";
    constexpr const char* kAtALine = " at line [1-9][0-9]*";
    EXPECT_THAT(host_->message_boxes,
                ElementsAre(MatchesRegex(kFailed + std::string("IReport_UseCurrency") + kAtALine),
                            MatchesRegex(kFailed + std::string("IReport_ReportTitle") + kAtALine)));
}

TEST_F(ReportBaseTest, CaptionsAreTranslatedWithoutAcceleratorsBeforeTheRun) {
    host_->texts[1912] = "&Date";
    report_->IReport_Application(host_);
    report_->ActiveReport_Initialize();
    EXPECT_EQ(report_->GetSurface().At("lblType").Text(), "Date");
    EXPECT_EQ(report_->GetSurface().At("hdrTitle").Text(), "6173");
    EXPECT_THAT(host_->message_boxes, testing::IsEmpty());
}

TEST_F(ReportBaseTest, ARunReadsTheCompanyAsItWasAtItsStart) {
    report_->IReport_Application(host_);
    report_->ActiveReport_Initialize();
    EXPECT_TRUE(host_->database.SnapshotIsHeld());
    report_->ActiveReport_Terminate();
    EXPECT_FALSE(host_->database.SnapshotIsHeld());
}

}  // namespace
}  // namespace varnel::framework
