#include "cli/dialogs/dialog_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/two_box_form.h"

namespace varnel::cli {
namespace {

class DialogModelTest : public testing::Test {
  protected:
    void Click(const Cells& area) { dialog_.ClickAt(area.top, area.left); }

    test::TwoBoxForm form_;
    DialogModel dialog_{form_, {24, 80}};
};

TEST_F(DialogModelTest, TheFocusGoesRoundInBothDirections) {
    EXPECT_EQ(dialog_.Focus(), 0U);
    dialog_.Press(DialogKey::kPrevious);
    EXPECT_EQ(dialog_.Focus(), 2U);
    dialog_.Press(DialogKey::kNext);
    dialog_.Press(DialogKey::kNext);
    EXPECT_EQ(dialog_.Focus(), 1U);
}

TEST_F(DialogModelTest, SpaceTurnsABoxOverAndPressesAButton) {
    dialog_.Press(DialogKey::kSpace);
    EXPECT_TRUE(form_.first.checked);
    dialog_.Press(DialogKey::kSpace);
    EXPECT_FALSE(form_.first.checked);
    dialog_.Press(DialogKey::kPrevious);
    dialog_.Press(DialogKey::kSpace);
    EXPECT_EQ(form_.closed_by, "cmdOk");
    EXPECT_TRUE(dialog_.Done());
}

TEST_F(DialogModelTest, EnterIsOkAlsoOnABoxWhichItLeavesAsItIs) {
    dialog_.Press(DialogKey::kEnter);
    EXPECT_EQ(form_.closed_by, "cmdOk");
    EXPECT_FALSE(form_.first.checked);
}

TEST_F(DialogModelTest, AnAcceleratorTurnsItsBoxOverInEitherCaseAndTakesTheFocus) {
    dialog_.PressCharacter("C");
    EXPECT_TRUE(form_.second.checked);
    EXPECT_EQ(dialog_.Focus(), 1U);
    dialog_.PressCharacter("q");
    dialog_.PressCharacter("");
    EXPECT_FALSE(dialog_.Done());
    dialog_.PressCharacter("o");
    EXPECT_EQ(form_.closed_by, "cmdOk");
}

TEST_F(DialogModelTest, TheMouseTurnsOverPressesAndCloses) {
    const auto layout = dialog_.Layout();
    Click(layout.items[1].area);
    EXPECT_TRUE(form_.second.checked);
    dialog_.ClickAt(layout.frame.top, layout.frame.left);
    dialog_.ClickAt(0, 0);
    EXPECT_FALSE(dialog_.Done()) << "neither edge nor outside is anything";
    Click(layout.close_mark);
    EXPECT_EQ(form_.closed_by, "close box");
}

TEST_F(DialogModelTest, TheMouseFindsItemsWhereANewSizeHasPutThem) {
    const auto before = dialog_.Layout().items[2].area;
    dialog_.Resize({50, 160});
    dialog_.ClickAt(before.top, before.left);
    EXPECT_FALSE(dialog_.Done());
    Click(dialog_.Layout().items[2].area);
    EXPECT_EQ(form_.closed_by, "cmdOk");
}

TEST_F(DialogModelTest, AFocusOnABoxThatWasHiddenGoesToTheFirstItem) {
    dialog_.Press(DialogKey::kPrevious);
    form_.second.visible = false;
    dialog_.Resize({24, 80});
    EXPECT_EQ(dialog_.Focus(), 0U);
}

}  // namespace
}  // namespace varnel::cli
