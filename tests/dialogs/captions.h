#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "company/texts/texts.h"
#include "host/dialogs.h"

namespace varnel::test {

/// Of the form, its check boxes and its buttons.
inline std::vector<std::string> CaptionsOf(Form& form) {
    std::vector<std::string> captions{form.Caption()};
    for (const auto* box : form.CheckBoxes()) captions.push_back(box->caption);
    for (const auto* button : form.Buttons()) captions.push_back(button->caption);
    return captions;
}

/// The captions are the numbers of texts, as the in-memory host has them; there are such texts.
inline void ExpectTexts(const std::vector<std::string>& captions) {
    for (const auto language : {company::Language::kEnglish, company::Language::kFrench}) {
        company::Texts texts(language, [](std::int16_t number) { ADD_FAILURE() << number; });
        for (const auto& caption : captions)
            texts.Get(static_cast<std::int16_t>(std::stoi(caption)));
    }
}

}  // namespace varnel::test
