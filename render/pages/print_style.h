#pragma once

#include "engine/document.h"
#include "render/fonts/font_set.h"
#include "render/pdf/pdf_page.h"

namespace varnel::render {

/// Twips to points.
constexpr double Points(Twips twips) { return twips / 20.0; }

constexpr FontStyle PrintFont(const TextStyle& style) {
    if (style.bold) return style.italic ? FontStyle::kBoldItalic : FontStyle::kBold;
    return style.italic ? FontStyle::kItalic : FontStyle::kRegular;
}

/// Dark enough to stay readable when printed in gray.
constexpr Colour PrintColour(Ink ink) {
    switch (ink) {
        case Ink::kMuted:
            return {0x5F, 0x66, 0x70};
        case Ink::kAccent:
            return {0x1B, 0x3F, 0x66};
        case Ink::kRule:
            return {0xA3, 0xAB, 0xB5};
        case Ink::kText:
            break;
    }
    return {0x16, 0x1A, 0x20};
}

}  // namespace varnel::render
