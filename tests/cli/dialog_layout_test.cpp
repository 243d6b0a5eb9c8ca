#include "cli/dialogs/dialog_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/two_box_form.h"

namespace varnel::cli {
namespace {

using test::TwoBoxForm;
using testing::ElementsAre;

TEST(DialogLayout, CaptionsBreakAtBlanksAndLongWordsAreCut) {
    EXPECT_THAT(WrapCaption("détail du journal", 9).lines, ElementsAre("détail du", "journal"));
    EXPECT_THAT(WrapCaption("détail du journal", 8).lines, ElementsAre("détail", "du", "journal"))
        << "characters count, not bytes";
    EXPECT_THAT(WrapCaption("anticonstitutionnel", 8).lines,
                ElementsAre("anticons", "titution", "nel"));
    EXPECT_THAT(WrapCaption("", 8).lines, ElementsAre(""));
}

TEST(DialogLayout, TheAcceleratorIsFoundInTheLineThatItFallsInto) {
    const auto caption = WrapCaption("Comptes à sol&de nul && gelés", 12);
    EXPECT_THAT(caption.lines, ElementsAre("Comptes à", "solde nul &", "gelés"));
    EXPECT_EQ(caption.accelerator, "d");
    EXPECT_EQ(caption.accelerator_line, 1U);
    EXPECT_EQ(caption.accelerator_offset, 3U);
    EXPECT_EQ(WrapCaption("à &éviter", 40).accelerator, "é");
    EXPECT_EQ(WrapCaption("plain", 40).accelerator, "");
}

TEST(DialogLayout, VisibleItemsStandInTheOrderOfTheFormsGeometry) {
    TwoBoxForm form;
    form.first.box.top = 900;
    auto layout = LayOutDialog(form, {24, 80}, 0);
    ASSERT_EQ(layout.items.size(), 3U);
    EXPECT_EQ(layout.items[0].box, &form.second);
    EXPECT_EQ(layout.items[1].button, &form.ok);
    EXPECT_EQ(layout.items[2].box, &form.first);
    EXPECT_LT(layout.items[1].area.top, layout.items[2].area.top);

    form.second.visible = false;
    EXPECT_EQ(LayOutDialog(form, {24, 80}, 0).items.size(), 2U);
}

TEST(DialogLayout, TheFrameIsCentredHoldsEverythingAndFitsTheScreen) {
    TwoBoxForm form;
    for (const int columns : {200, 80, 30, 14}) {
        const auto layout = LayOutDialog(form, {40, columns}, 0);
        const auto& frame = layout.frame;
        EXPECT_LE(frame.Right(), columns);
        EXPECT_LE(std::abs(frame.left - (columns - frame.Right())), 1);
        EXPECT_LE(std::abs(frame.top - (40 - frame.Bottom())), 1);
        int row = frame.top;
        for (const auto& item : layout.items) {
            EXPECT_GT(item.area.top, row - 1) << "below the one before it";
            EXPECT_GT(item.area.left, frame.left);
            EXPECT_LT(item.area.Right(), frame.Right());
            row = item.area.Bottom();
        }
        EXPECT_LT(row, frame.Bottom());
    }
}

TEST(DialogLayout, OnALowScreenTheItemWithTheFocusIsSeen) {
    TwoBoxForm form;
    for (const int rows : {3, 5, 7}) {
        for (const std::size_t focus : {0U, 1U, 2U}) {
            const auto area = LayOutDialog(form, {rows, 80}, focus).items[focus].area;
            EXPECT_GE(area.top, 0) << rows << " rows, item " << focus;
            EXPECT_LE(area.Bottom(), rows) << rows << " rows, item " << focus;
        }
    }
}

}  // namespace
}  // namespace varnel::cli
