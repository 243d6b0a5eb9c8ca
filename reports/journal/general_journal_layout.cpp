#include "reports/journal/general_journal_layout.h"

#include "framework/item_adjustment_note.h"
#include "framework/standard_header.h"
#include "framework/styles.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr Twips kSeqNoWidth = 680;
constexpr Twips kDateLeft = 740;
constexpr Twips kDateWidth = 1'040;
constexpr Twips kTextLeft = 1'840;
constexpr Twips kAmountWidth = 1'320;
constexpr Twips kCreditLeft = 9'480;
constexpr Twips kDebitLeft = 8'100;
constexpr Twips kProjectLeft = 7'280;
constexpr Twips kProjectWidth = 760;
constexpr Twips kTextWidth = kProjectLeft - 60 - kTextLeft;
// Only with foreign amounts.
constexpr Twips kForeignLeft = 9'120;
constexpr Twips kForeignWidth = 1'220;
constexpr Twips kCodeLeft = 10'400;
constexpr Twips kCodeWidth = 400;
constexpr Twips kLine = 220;

std::vector<ControlLayout> Captions() {
    const auto caption = [](std::string_view name, Twips left, Twips width, std::int16_t text,
                            Align align, Stretch stretch) {
        return ControlLayout{.name = name,
                             .kind = ControlKind::kLabel,
                             .box = {left, 990, width, 270},
                             .style = kCaption,
                             .align = align,
                             .caption = text,
                             .stretch = stretch};
    };
    auto foreign =
        caption("lblForeignCap", kForeignLeft, kForeignWidth, 5846, Align::kRight, Stretch::kShift);
    foreign.visible = false;
    return {
        caption("lblSeqNoCap", 0, kSeqNoWidth, 30045, Align::kLeft, Stretch::kNone),
        caption("lblDateCap", kDateLeft, kDateWidth, 1912, Align::kLeft, Stretch::kNone),
        caption("lblAccountCap", kTextLeft, kTextWidth, 30025, Align::kLeft, Stretch::kWiden),
        caption("lblProjectCap", kProjectLeft, kProjectWidth, 30046, Align::kLeft, Stretch::kShift),
        caption("lblDebitCap", kDebitLeft, kAmountWidth, 2656, Align::kRight, Stretch::kShift),
        caption("lblCreditCap", kCreditLeft, kAmountWidth, 2657, Align::kRight, Stretch::kShift),
        foreign,
        {.name = kCaptionRule,
         .kind = ControlKind::kLine,
         .box = {0, 1'250, 10'800, kThin},
         .style = kHairline,
         .stretch = Stretch::kWiden}};
}

ControlLayout Amount(std::string_view name, Twips left, Twips top, TextStyle style,
                     std::string_view column = {}) {
    return {.name = name,
            .box = {left, top, kAmountWidth, kLine},
            .style = style,
            .align = Align::kRight,
            .column = column,
            .stretch = Stretch::kShift};
}

ControlLayout RuleAbove(std::string_view name, Twips left, Twips thickness) {
    return {.name = name,
            .kind = ControlKind::kLine,
            .box = {left, 0, kAmountWidth, thickness},
            .style = kTotalLine,
            .stretch = Stretch::kShift};
}

SectionLayout EntryHeader() {
    return {.name = "ghSeqNo",
            .kind = SectionKind::kGroupHeader,
            .height = kGroupHeight,
            .group_field = "SeqNo",
            .repeat = true,
            .controls = {{.name = "txtSeqNo",
                          .box = {0, 70, kSeqNoWidth, kLine},
                          .style = kBodyBold,
                          .column = "entry"},
                         {.name = "txtDate",
                          .box = {kDateLeft, 70, kDateWidth, kLine},
                          .style = kBodyBold,
                          .column = "date"},
                         {.name = "txtDescription",
                          .box = {kTextLeft, 70, 10'800 - kTextLeft, kLine},
                          .style = kBodyBold,
                          .column = "description",
                          .can_grow = true,
                          .stretch = Stretch::kWiden}}};
}

SectionLayout Lines() {
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {{.name = "txtAccount",
                          .box = {kTextLeft, 0, kTextWidth, kLine},
                          .style = kBody,
                          .column = "account",
                          .can_grow = true,
                          .stretch = Stretch::kWiden},
                         {.name = "txtProject",
                          .box = {kProjectLeft, 0, kProjectWidth, kLine},
                          .style = kQuiet,
                          .column = "project",
                          .can_grow = true,
                          .stretch = Stretch::kShift},
                         Amount("txtDebit", kDebitLeft, 0, kBody, "debit"),
                         Amount("txtCredit", kCreditLeft, 0, kBody, "credit"),
                         {.name = "txtForeign",
                          .box = {kForeignLeft, 0, kForeignWidth, kLine},
                          .style = kQuiet,
                          .align = Align::kRight,
                          .column = "foreign",
                          .visible = false,
                          .stretch = Stretch::kShift},
                         {.name = "txtForeignCode",
                          .box = {kCodeLeft, 0, kCodeWidth, kLine},
                          .style = kQuiet,
                          .data_field = "CurrencyCode",
                          .column = "currency",
                          .visible = false,
                          .stretch = Stretch::kShift}}};
}

SectionLayout Remarks() {
    return {.name = "gfComment",
            .kind = SectionKind::kGroupFooter,
            .height = kDetailHeight,
            .controls = {{.name = "txtRemarks",
                          .box = {kTextLeft, 0, 10'800 - kTextLeft, kLine},
                          .style = kRemark,
                          .data_field = "Remarks",
                          .can_grow = true,
                          .stretch = Stretch::kWiden}}};
}

SectionLayout EntryFooter() {
    return {.name = "gfSeqNo",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {RuleAbove("linDebitTotal", kDebitLeft, kThin),
                         RuleAbove("linCreditTotal", kCreditLeft, kThin),
                         Amount("txtDebitTotal", kDebitLeft, 25, kBodyBold),
                         Amount("txtCreditTotal", kCreditLeft, 25, kBodyBold)}};
}

SectionLayout GrandTotals() {
    return {
        .name = "ReportFooter",
        .kind = SectionKind::kReportFooter,
        .height = kReportFooterHeight,
        .controls = {{.name = "linGrandTotal",
                      .kind = ControlKind::kLine,
                      .box = {0, 90, 10'800, kThick},
                      .style = kTotalLine,
                      .stretch = Stretch::kWiden},
                     {.name = "lblGrandTotal",
                      .kind = ControlKind::kLabel,
                      .box = {0, 170, 1'800, kLine},
                      .style = kHeading,
                      .caption = 1641},
                     {.name = "txtCount", .box = {kTextLeft, 170, 3'000, kLine}, .style = kQuiet},
                     Amount("txtDebitGrandTotal", kDebitLeft, 170, kHeading),
                     Amount("txtCreditGrandTotal", kCreditLeft, 170, kHeading)}};
}

}  // namespace

const Layout& GeneralJournalLayout() {
    static const Layout layout{
        .name = "dsrGeneralJournal",
        .sections = {
            {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
            {.name = "PageHeader",
             .kind = SectionKind::kPageHeader,
             .height = 1'260,
             .controls = PageHeaderControls(Captions())},
            EntryHeader(),
            {.name = "ghComment", .kind = SectionKind::kGroupHeader, .group_field = "Remarks"},
            Lines(),
            Remarks(),
            EntryFooter(),
            {.name = "PageFooter",
             .kind = SectionKind::kPageFooter,
             .height = kPageFooterHeight,
             .controls = {ItemAdjustmentNoteControl()}},
            GrandTotals(),
        }};
    return layout;
}

}  // namespace varnel::reports
