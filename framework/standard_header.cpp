#include "framework/standard_header.h"

#include "framework/styles.h"
#include "framework/texts.h"

namespace varnel::framework {

namespace {

constexpr Twips kFilterGap = 50;
constexpr Twips kRightLeft = 7'800;
constexpr Twips kRightWidth = 3'000;
constexpr std::int16_t kPageText = 30044;

}  // namespace

std::vector<ControlLayout> PageHeaderControls(std::vector<ControlLayout> column_controls) {
    std::vector<ControlLayout> controls = {
        {.name = kHeaderBlock,
         .kind = ControlKind::kBlock,
         .box = {0, 0, kLayoutWidth, kHeaderBlockHeight},
         .stretch = Stretch::kWiden},
        {.name = "hdrCompany",
         .kind = ControlKind::kLabel,
         .box = {0, 0, kRightLeft - 60, 260},
         .style = kCompany,
         .stretch = Stretch::kWiden},
        {.name = "hdrTitle",
         .kind = ControlKind::kLabel,
         .box = {0, 250, kRightLeft - 60, 400},
         .style = kTitle,
         .stretch = Stretch::kWiden},
        {.name = kPeriodLabel,
         .kind = ControlKind::kLabel,
         .box = {0, 640, kRightLeft - 60, 250},
         .style = kPeriod,
         .stretch = Stretch::kWiden},
        {.name = "hdrRunDate",
         .kind = ControlKind::kLabel,
         .box = {kRightLeft, 0, kRightWidth, 260},
         .style = kQuiet,
         .align = Align::kRight,
         .stretch = Stretch::kShift},
        {.name = "hdrPage",
         .kind = ControlKind::kPageNumber,
         .box = {kRightLeft, 640, kRightWidth, 250},
         .style = kQuiet,
         .align = Align::kRight,
         .stretch = Stretch::kShift},
        {.name = kFilterSubReport,
         .kind = ControlKind::kSubReport,
         .box = {0, kHeaderBlockHeight + kFilterGap, kLayoutWidth, 0},
         .stretch = Stretch::kWiden},
    };
    controls.insert(controls.end(), column_controls.begin(), column_controls.end());
    return controls;
}

void SetHeaderBlockHeight(Surface& surface, Twips height) {
    Control& block = surface.At(kHeaderBlock);
    block.SetHeight(height);
    surface.At(kFilterSubReport).SetTop(block.Place().Bottom() + kFilterGap);
}

void FillStandardHeader(Surface& surface, Application& application, const std::string& title) {
    surface.At("hdrCompany").SetText(application.CurrentContext().CurrentCompany().Name());
    surface.At("hdrTitle").SetText(title);
    const Date today = application.SessionDate();
    surface.At("hdrRunDate").SetValue(today, ShortDate(application, today));
    surface.At("hdrPage").SetText(PlainText(application, kPageText));
}

void ReplacePageHeaderControls(Section& page_header) {
    Box block;
    for (const auto& control : page_header.Controls())
        if (control.Design().name == kHeaderBlock) block = control.Place();
    Box row{0, block.Bottom(), 0, 0};  // Without captions the section ends under the block.
    for (auto& control : page_header.Controls()) {
        if (control.Design().caption == 0) continue;
        if (row.height == 0) row = {0, block.Bottom() + kCaptionGap, 0, control.Place().height};
        control.SetTop(row.top);
    }
    for (auto& control : page_header.Controls())
        if (control.Design().name == kCaptionRule)
            control.SetTop(row.Bottom() - control.Place().height);
    page_header.SetHeight(row.Bottom());
}

}  // namespace varnel::framework
