#pragma once

#include <string>
#include <vector>

#include "host/dialogs.h"

namespace varnel::test {

/// A dialog of two check boxes and OK that notes how it was closed.
class TwoBoxForm final : public Form {
  public:
    CheckBox first{.name = "chkFirst", .caption = "Show accounts with a &zero balance", .box = {}};
    CheckBox second{.name = "chkSecond", .caption = "Show &comments", .box = {0, 400, 0, 0}};
    Button ok{.name = "cmdOk", .caption = "&OK", .box = {0, 800, 0, 0}};
    std::string closed_by;

    std::string Caption() const override { return "Filter"; }
    Twips InnerWidth() const override { return 3000; }
    Twips InnerHeight() const override { return 1200; }
    std::vector<CheckBox*> CheckBoxes() override { return {&first, &second}; }
    std::vector<Button*> Buttons() override { return {&ok}; }
    bool Shown() const override { return closed_by.empty(); }
    void Click(Button& button) override { closed_by = button.name; }
    void CloseBox() override { closed_by = "close box"; }
};

}  // namespace varnel::test
