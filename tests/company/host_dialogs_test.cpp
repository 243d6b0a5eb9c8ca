#include "company/scripted_dialogs.h"
#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

class OptionsForm final : public Form {
  public:
    CheckBox zero{.name = "chkZero", .caption = "Show &zero", .checked = true, .box = {}};
    CheckBox notes{.name = "chkNotes", .caption = "&Notes", .box = {}};
    CheckBox hidden{.name = "chkHidden", .caption = "Hidden", .visible = false, .box = {}};
    Button cancel{.name = "cmdCancel", .caption = "Cancel", .box = {}};
    Button ok{.name = "cmdOk", .caption = "&OK", .box = {}};
    std::string_view clicked;

    std::string Caption() const override { return "&Options"; }
    Twips InnerWidth() const override { return 3000; }
    Twips InnerHeight() const override { return 1500; }
    std::vector<CheckBox*> CheckBoxes() override { return {&zero, &notes, &hidden}; }
    std::vector<Button*> Buttons() override { return {&cancel, &ok}; }
    bool Shown() const override { return clicked.empty(); }
    void Click(Button& button) override { clicked = button.name; }
    void CloseBox() override { clicked = "close box"; }
};

TEST(ScriptedDialogs, SetTheAnsweredBoxesAndClickOk) {
    OptionsForm form;
    ScriptedDialogs dialogs({{"CHKZERO", "False"}, {"Notes", "1"}});
    dialogs.ShowModal(form);
    EXPECT_FALSE(form.zero.checked);
    EXPECT_TRUE(form.notes.checked);
    EXPECT_EQ(form.clicked, "cmdOk");
}

TEST(ScriptedDialogs, LeaveOtherBoxesAndRecordWhatWasShown) {
    OptionsForm form;
    ScriptedDialogs dialogs;
    dialogs.ShowModal(form);
    ASSERT_EQ(dialogs.Shown().size(), 1U);
    const auto& shown = dialogs.Shown().front();
    EXPECT_EQ(shown.caption, "&Options");
    ASSERT_EQ(shown.boxes.size(), 2U) << "a hidden one is not shown";
    EXPECT_EQ(shown.boxes[0].name, "chkZero");
    EXPECT_TRUE(shown.boxes[0].checked);
    EXPECT_FALSE(shown.boxes[1].checked);
}

TEST(ScriptedDialogs, RefuseAnAnswerToABoxThatIsNotThere) {
    for (const char* name : {"chkOther", "chkHidden"}) {
        OptionsForm form;
        ScriptedDialogs dialogs(ScriptedDialogs::Answers{{name, "True"}});
        EXPECT_THAT(
            ErrorOf([&] { dialogs.ShowModal(form); }),
            testing::AllOf(testing::HasSubstr(name), testing::HasSubstr("chkZero, chkNotes")));
        EXPECT_TRUE(form.Shown()) << "nothing was clicked";
    }
}

}  // namespace
}  // namespace varnel::company
