#include "render/fonts/unicode.h"

#include <hb.h>

namespace varnel::render {

namespace {

hb_unicode_general_category_t Category(char32_t code_point) {
    return hb_unicode_general_category(hb_unicode_funcs_get_default(), code_point);
}

}  // namespace

bool IsMark(char32_t code_point) {
    const auto category = Category(code_point);
    return category == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK;
}

bool IsDigit(char32_t code_point) {
    return Category(code_point) == HB_UNICODE_GENERAL_CATEGORY_DECIMAL_NUMBER;
}

bool IsFormatting(char32_t code_point) {
    return Category(code_point) == HB_UNICODE_GENERAL_CATEGORY_FORMAT;
}

std::uint32_t ScriptOf(char32_t code_point) {
    return hb_unicode_script(hb_unicode_funcs_get_default(), code_point);
}

bool IsSharedScript(std::uint32_t script) {
    return script == HB_SCRIPT_COMMON || script == HB_SCRIPT_INHERITED ||
           script == HB_SCRIPT_UNKNOWN;
}

bool IsPlainScript(std::uint32_t script) {
    if (IsSharedScript(script)) return true;
    switch (script) {
        case HB_SCRIPT_LATIN:
        case HB_SCRIPT_GREEK:
        case HB_SCRIPT_CYRILLIC:
        case HB_SCRIPT_ARMENIAN:
        case HB_SCRIPT_GEORGIAN:
        case HB_SCRIPT_HAN:
        case HB_SCRIPT_HIRAGANA:
        case HB_SCRIPT_KATAKANA:
        case HB_SCRIPT_BOPOMOFO:
        case HB_SCRIPT_BRAILLE:
            return true;
        default:
            return false;
    }
}

bool IsRightToLeft(std::uint32_t script) {
    return hb_script_get_horizontal_direction(static_cast<hb_script_t>(script)) == HB_DIRECTION_RTL;
}

char32_t Compose(char32_t base, char32_t mark) {
    hb_codepoint_t composed = 0;
    const bool composes = hb_unicode_compose(hb_unicode_funcs_get_default(), base, mark, &composed);
    return composes ? composed : 0;
}

}  // namespace varnel::render
