#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/document.h"
#include "render/byte_sink.h"

namespace varnel::render::testing {

/// A control of a made-up layout, written in the order that tests care for.
inline ControlLayout Field(std::string_view name, Box box, std::string_view column = {},
                           Align align = Align::kLeft) {
    ControlLayout control;
    control.name = name;
    control.box = box;
    control.column = column;
    control.align = align;
    return control;
}

inline ControlLayout Other(ControlKind kind, std::string_view name, Box box) {
    ControlLayout control = Field(name, box);
    control.kind = kind;
    return control;
}

inline SectionLayout Band(SectionKind kind, std::string_view name,
                          std::vector<ControlLayout> controls, Twips height = 260) {
    SectionLayout section;
    section.name = name;
    section.kind = kind;
    section.height = height;
    section.controls = std::move(controls);
    return section;
}

/// An item of a page or placed band.
inline engine::Item TextItem(Box box, Align align = Align::kLeft, bool figure = false) {
    return {.align = align, .figure = figure, .style = {}, .box = box};
}

inline engine::Item RuleItem(Box box) {
    return {.kind = engine::ItemKind::kRule, .style = {.ink = Ink::kRule}, .box = box};
}

}  // namespace varnel::render::testing
