#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "company/texts/texts.h"
#include "host/dialogs.h"
#include "tests/support/memory_host.h"

namespace varnel::test {

/// Of the form, its check boxes and its buttons.
inline std::vector<std::string> CaptionsOf(Form& form) {
    std::vector<std::string> captions{form.Caption()};
    for (const auto* box : form.CheckBoxes()) captions.push_back(box->caption);
    for (const auto* button : form.Buttons()) captions.push_back(button->caption);
    return captions;
}

/// Gives the host the texts of those numbers as the command's users read them.
inline void TranslateInto(company::Language language, MemoryHost& host,
                          std::initializer_list<std::int16_t> numbers) {
    company::Texts texts(language, {});
    for (const auto number : numbers) host.texts[number] = texts.Get(number);
}

}  // namespace varnel::test
