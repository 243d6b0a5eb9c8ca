#include "framework/item_adjustment_note.h"

#include "framework/query_runner.h"
#include "framework/styles.h"

namespace varnel::framework {

namespace {

constexpr std::int32_t kAdjustmentMessage = 12802;

}  // namespace

ControlLayout ItemAdjustmentNoteControl() {
    return {.name = kItemAdjustmentNote,
            .kind = ControlKind::kLabel,
            .box = {0, 80, kLayoutWidth, 210},
            .style = kRemark,
            .visible = false,
            .can_grow = true,
            .stretch = Stretch::kWiden};
}

std::optional<Date> InitGLtAjust(Application& application) {
    if (!ReadSwitch(application, "ItemAdjustGL")) return std::nullopt;
    return application.CurrentContext().CurrentCompany().ItemAdjustmentStart();
}

void ShowItemAdjustmentNote(Application& application, Surface& surface, std::optional<Date> start,
                            Date date_to) {
    const bool shown = start.has_value() && date_to >= *start;
    Control& note = surface.At(kItemAdjustmentNote);
    if (shown) {
        const Variant arguments[] = {*start};
        note.SetText(application.Messages().Message(kAdjustmentMessage, kMessageSource, arguments));
    }
    note.SetVisible(shown);
    surface.SectionAt("PageFooter").SetVisible(shown);
}

}  // namespace varnel::framework
