#include "reports/bank/bank_concil_config.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/dialogs/captions.h"
#include "tests/support/memory_host.h"

namespace varnel::reports {
namespace {

using test::CaptionsOf;
using test::MemoryHost;
using testing::ElementsAre;
using testing::MatchesRegex;

TEST(BankConcilConfig, TheBoxShowsTheValueThatWasSet) {
    FBankConcilConfig form;
    for (const bool value : {true, false}) {
        form.Put("IncludeReconciledAmnt", value);
        EXPECT_EQ(form.CheckBoxes()[0]->checked, value);
        EXPECT_EQ(form.Get("includereconciledamnt").ToBool(), value);
    }
}

/// What the host's user answers who turns the box over and then closes the dialog in that way.
bool TurnOver(MemoryHost& host, bool current, void (*close)(Form&)) {
    host.use_dialog = [=](Form& form) {
        EXPECT_TRUE(form.Shown());
        EXPECT_EQ(form.CheckBoxes()[0]->checked, current);
        form.CheckBoxes()[0]->checked = !current;
        close(form);
        EXPECT_FALSE(form.Shown());
    };
    return AskIncludeReconciledAmount(host, current);
}

TEST(BankConcilConfig, OkTakesTheChoiceOverAndTheCloseBoxLeavesWhatWasSet) {
    MemoryHost host;
    for (const bool current : {true, false}) {
        EXPECT_EQ(TurnOver(host, current, [](Form& form) { form.Click(*form.Buttons()[0]); }),
                  !current);
        EXPECT_EQ(TurnOver(host, current, [](Form& form) { form.CloseBox(); }), current);
    }
}

TEST(BankConcilConfig, CaptionsComeFromTheHost) {
    auto host = std::make_shared<MemoryHost>();
    FBankConcilConfig form;
    form.Call("PrepareConfigDialog", std::vector<Variant>{ObjectRef(host)});
    EXPECT_THAT(CaptionsOf(form), ElementsAre("1449", "7653", "1323"));
    test::ExpectTexts(CaptionsOf(form));
}

TEST(BankConcilConfig, FailuresAreShownWithObjectAndProcedure) {
    auto host = std::make_shared<MemoryHost>();
    SetRunningHost(host);
    FBankConcilConfig form;
    form.PrepareConfigDialog(nullptr);
    host->calls.FailAt(2);
    form.PrepareConfigDialog(host);
    const std::string place = "\r\nin Varnel.FBankConcilConfig.TranslateForm at line [1-9][0-9]*";
    EXPECT_THAT(host->message_boxes,
                ElementsAre(MatchesRegex("The dialog has no application [^\r]*" + place),
                            MatchesRegex("Host call 2, GetText, failed" + place)));
    EXPECT_EQ(form.Buttons()[0]->caption, "1323") << "what came before the failure stays";
}

}  // namespace
}  // namespace varnel::reports
