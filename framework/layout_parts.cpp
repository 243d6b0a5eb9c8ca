#include "framework/layout_parts.h"

#include <utility>

namespace varnel::framework {

namespace {

constexpr Twips kCaptionTop = kHeaderBlockHeight + kCaptionGap;
constexpr Twips kPageHeaderHeight = kCaptionTop + kCaptionHeight;

}  // namespace

SectionLayout PageHeader(std::vector<ControlLayout> controls) {
    return {.name = "PageHeader",
            .kind = SectionKind::kPageHeader,
            .height = kPageHeaderHeight,
            .controls = std::move(controls)};
}

SectionLayout PageFooter(std::vector<ControlLayout> controls) {
    return {.name = "PageFooter",
            .kind = SectionKind::kPageFooter,
            .height = kPageFooterHeight,
            .controls = std::move(controls)};
}

ControlLayout ColumnCaption(std::string_view name, const ColumnPlace& place, std::int16_t text) {
    return {.name = name,
            .kind = ControlKind::kLabel,
            .box = {place.left, kCaptionTop, place.width, kCaptionHeight},
            .style = kCaption,
            .align = place.align,
            .caption = text,
            .stretch = place.stretch};
}

ControlLayout CaptionRule() {
    return {.name = kCaptionRule,
            .kind = ControlKind::kLine,
            .box = {0, kPageHeaderHeight - kThin, kLayoutWidth, kThin},
            .style = kHairline,
            .stretch = Stretch::kWiden};
}

ControlLayout ColumnText(std::string_view name, const ColumnPlace& place, Twips top,
                         const TextStyle& style, std::string_view column) {
    return {.name = name,
            .box = {place.left, top, place.width, kLineHeight},
            .style = style,
            .align = place.align,
            .column = column,
            .stretch = place.stretch};
}

ControlLayout ColumnLabel(std::string_view name, const ColumnPlace& place, Twips top,
                          const TextStyle& style, std::int16_t text) {
    auto label = ColumnText(name, place, top, style);
    label.kind = ControlKind::kLabel;
    label.caption = text;
    return label;
}

ControlLayout TotalRule(std::string_view name, const ColumnPlace& place, Twips top,
                        Twips thickness) {
    return {.name = name,
            .kind = ControlKind::kLine,
            .box = {place.left, top, place.width, thickness},
            .style = kTotalLine,
            .stretch = place.stretch};
}

ControlLayout Closing(ControlLayout rule) {
    rule.follows_column = true;
    return rule;
}

ControlLayout Growing(ControlLayout text) {
    text.can_grow = true;
    return text;
}

ControlLayout Bound(ControlLayout text, std::string_view field) {
    text.data_field = field;
    return text;
}

ControlLayout Hidden(ControlLayout control) {
    control.visible = false;
    return control;
}

ControlLayout ExportedText(std::string_view name, std::string_view column, std::string_view field) {
    return {.name = name,
            .kind = ControlKind::kBlock,
            .box = {},
            .data_field = field,
            .column = column};
}

}  // namespace varnel::framework
