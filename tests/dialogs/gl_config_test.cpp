#include "framework/gl_config.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/dialogs/captions.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

using test::CaptionsOf;
using test::MemoryHost;
using testing::ElementsAre;
using testing::MatchesRegex;

const CheckBox& Comments(frmGLConfig& form) { return *form.CheckBoxes()[1]; }
const Button& Ok(frmGLConfig& form) { return *form.Buttons()[0]; }

TEST(GLConfig, ItsTwoOptionsAreIndependentAndThereIsNoOther) {
    frmGLConfig form;
    form.Properties(2, true);
    form.Properties(3, true);
    EXPECT_FALSE(form.Properties(1));
    EXPECT_TRUE(form.Properties(2));
    EXPECT_FALSE(form.Properties(3));
    EXPECT_FALSE(form.Properties(0));
    form.Properties(2, false);
    EXPECT_FALSE(form.Properties(2));
}

TEST(GLConfig, LateBoundOnlyTrueChecksABox) {
    frmGLConfig form;
    const auto checked_by = [&](const Variant& value) {
        form.Call("Properties", std::vector<Variant>{1, value});
        return form.Call("properties", std::vector<Variant>{1}).ToInteger16();
    };
    EXPECT_EQ(checked_by(true), -1);
    EXPECT_EQ(checked_by(1), 0);
    EXPECT_EQ(checked_by(-1), -1);
    EXPECT_EQ(checked_by(false), 0);
    EXPECT_EQ(test::DescriptionOf([&] { form.Call("Properties", {}); }),
              "The method takes more arguments than the 0 it was given");
    EXPECT_EQ(test::ErrorOf([&] { form.Get("Colour"); }), error_number::kUnknownMember);
}

TEST(GLConfig, LateBoundItIsTranslatedAndConfirmedLikeAnyOptionsForm) {
    frmGLConfig form;
    auto host = std::make_shared<MemoryHost>();
    form.PrepareInvConfigDialog(host, 1);
    host->texts[1449] = "Options";
    form.Call("TranslateForm", {});
    EXPECT_EQ(form.Caption(), "Options");
    form.Call("cmdOk_Click", {});
    EXPECT_FALSE(form.Shown());
}

TEST(GLConfig, WithoutOption2TheFormIsShorterByItsBoxAnd120AndOkMovesUp) {
    frmGLConfig form;
    EXPECT_FALSE(Comments(form).visible);
    const Twips short_height = form.InnerHeight();
    EXPECT_EQ(Ok(form).box.Bottom(), short_height - 60);

    form.ShowProperty(2, true);
    EXPECT_TRUE(Comments(form).visible);
    EXPECT_EQ(form.InnerHeight(), short_height + Comments(form).box.height + 120);
    EXPECT_EQ(Ok(form).box.Bottom(), form.InnerHeight() - 60);
    EXPECT_GT(Ok(form).box.top, Comments(form).box.Bottom());

    form.ShowProperty(2, false);
    EXPECT_EQ(form.InnerHeight(), short_height);
    EXPECT_GT(Ok(form).box.top, form.CheckBoxes()[0]->box.Bottom());
}

TEST(GLConfig, Option1AloneDoesNotChangeTheHeight) {
    frmGLConfig form;
    const Twips height = form.InnerHeight();
    form.ShowProperty(1, false);
    EXPECT_FALSE(form.CheckBoxes()[0]->visible);
    EXPECT_EQ(form.InnerHeight(), height);
}

TEST(GLConfig, CaptionsAreFrenchUntilTheHostTranslatesThem) {
    frmGLConfig form;
    EXPECT_THAT(
        CaptionsOf(form),
        ElementsAre("Filtre avancé", "Afficher les comptes dont le solde est à zero",
                    "Afficher les commentaires provenant du détail du journal général", "OK"));
    auto host = std::make_shared<MemoryHost>();
    form.Call("PrepareInvConfigDialog", std::vector<Variant>{ObjectRef(host), 1});
    EXPECT_THAT(CaptionsOf(form), ElementsAre("1449", "5885", "9581", "1323"));
    test::ExpectTexts(CaptionsOf(form));
}

TEST(GLConfig, OkAndTheCloseBoxBothKeepTheChoice) {
    MemoryHost host;
    for (const bool ok : {true, false}) {
        host.use_dialog = [&](Form& form) {
            EXPECT_TRUE(form.Shown());
            auto& box = *form.CheckBoxes()[0];
            box.checked = !box.checked;
            ok ? form.Click(*form.Buttons()[0]) : form.CloseBox();
            EXPECT_FALSE(form.Shown());
        };
        EXPECT_TRUE(AskIncludeZeroBalance(host, false));
        EXPECT_FALSE(AskIncludeZeroBalance(host, true));
    }
}

}  // namespace
}  // namespace varnel::framework
