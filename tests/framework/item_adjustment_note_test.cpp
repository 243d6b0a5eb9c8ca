#include "framework/item_adjustment_note.h"

#include <gtest/gtest.h>

#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

const Layout kLayout{.name = "dsrTried",
                     .sections = {{.name = "Detail"},
                                  {.name = "PageFooter",
                                   .kind = SectionKind::kPageFooter,
                                   .controls = {ItemAdjustmentNoteControl()}}}};

/// The host's message of that number and source, with a date to put in.
constexpr const char* kNote = "12802 Orvotech (date 2025-02-01)";

struct NoteCase {
    const char* setting;
    const char* start;  // Empty is none.
    const char* date_to;
    const char* note;  // Empty is hidden.
};

constexpr NoteCase kModes[] = {{"True", "2025-02-01", "2025-02-01", kNote},
                               {"True", "2025-02-01", "9999-12-31", kNote},
                               {"True", "2025-02-01", "2025-01-31", ""},
                               {"True", "", "2025-02-01", ""},
                               {"False", "2025-02-01", "2025-02-01", ""}};

TEST(ItemAdjustmentNoteTest, ShowsFromTheStartDateOnInThatModeOnly) {
    for (const auto& [setting, start, date_to, note] : kModes) {
        test::MemoryHost host;
        host.company.settings["ItemAdjustGL"] = setting;
        if (*start != '\0') host.company.item_adjustment_start = Date::ParseIso(start);
        Surface surface(kLayout);
        ShowItemAdjustmentNote(host, surface, InitGLtAjust(host), Date::ParseIso(date_to));
        const bool shown = *note != '\0';
        EXPECT_EQ(surface.SectionAt("PageFooter").Visible(), shown);
        EXPECT_EQ(surface.At("lblWarningInvMaj").Visible(), shown);
        EXPECT_EQ(surface.At("lblWarningInvMaj").Text(), note);
    }
}

}  // namespace
}  // namespace varnel::framework
