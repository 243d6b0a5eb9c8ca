#pragma once

#include <cstdint>

namespace varnel::render {

// The few properties of code points that text layout asks for.

/// Combining marks of every kind: they belong to the character before them.
bool IsMark(char32_t code_point);
/// Decimal digits of any script.
bool IsDigit(char32_t code_point);
/// Joiners, direction marks, soft hyphen and their like: no shape of their own.
bool IsFormatting(char32_t code_point);
/// C0, DEL and C1.
inline bool IsControl(char32_t code_point) {
    return code_point < 0x20 || (code_point >= 0x7F && code_point < 0xA0);
}

/// The script as HarfBuzz numbers it.
std::uint32_t ScriptOf(char32_t code_point);
/// Common, inherited or unknown: the script is that of the neighbours.
bool IsSharedScript(std::uint32_t script);
/// Scripts whose glyphs simply stand side by side, left to right.
bool IsPlainScript(std::uint32_t script);
bool IsRightToLeft(std::uint32_t script);

/// Canonical composition of a character and a mark, 0 when there is none.
char32_t Compose(char32_t base, char32_t mark);

}  // namespace varnel::render
