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

struct NoteCase {
    const char* setting;
    const char* start;  // Empty is none.
    const char* date_to;
    const char* note;  // Empty is hidden.
};

class ItemAdjustmentNoteTest : public testing::TestWithParam<NoteCase> {};

TEST_P(ItemAdjustmentNoteTest, ShowsFromTheStartDateOnInThatModeOnly) {
    const auto& [setting, start, date_to, note] = GetParam();
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

INSTANTIATE_TEST_SUITE_P(
    Modes, ItemAdjustmentNoteTest,
    testing::Values(NoteCase{"True", "2025-02-01", "2025-02-01", "12802 (2025-02-01)"},
                    NoteCase{"True", "2025-02-01", "9999-12-31", "12802 (2025-02-01)"},
                    NoteCase{"True", "2025-02-01", "2025-01-31", ""},
                    NoteCase{"True", "", "2025-02-01", ""},
                    NoteCase{"False", "2025-02-01", "2025-02-01", ""}));

TEST(ItemAdjustmentNoteTest, ALaterRunWithoutItHidesItAgain) {
    test::MemoryHost host;
    Surface surface(kLayout);
    ShowItemAdjustmentNote(host, surface, kOpenStart, kOpenEnd);
    ShowItemAdjustmentNote(host, surface, std::nullopt, kOpenEnd);
    EXPECT_FALSE(surface.SectionAt("PageFooter").Visible());
}

TEST(ItemAdjustmentNoteTest, TheMessageComesFromItsOwnSourceWithADateAsArgument) {
    struct Listener final : Application, MessageService {
        std::string GetText(std::int16_t) override { return {}; }
        Date SessionDate() override { return {}; }
        Context& CurrentContext() override { RaiseUnknownMember("Listener", "CurrentContext"); }
        Formats& GetFormats() override { RaiseUnknownMember("Listener", "GetFormats"); }
        MessageService& Messages() override { return *this; }
        void ShowMessageBox(const std::string&) override {}
        std::string Message(std::int32_t number, std::string_view source,
                            std::span<const Variant> arguments) override {
            asked = std::to_string(number) + " " + std::string(source);
            argument_is_date = arguments.size() == 1 && arguments[0].Holds<Date>();
            return "the host's words";
        }
        std::string asked;
        bool argument_is_date = false;
    } host;
    Surface surface(kLayout);
    ShowItemAdjustmentNote(host, surface, kOpenStart, kOpenEnd);
    EXPECT_EQ(host.asked, "12802 Orvotech");
    EXPECT_TRUE(host.argument_is_date);
    EXPECT_EQ(surface.At("lblWarningInvMaj").Text(), "the host's words");
}

}  // namespace
}  // namespace varnel::framework
