#include "framework/catalogue.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "company/texts/texts.h"

namespace varnel::framework {
namespace {

/// Gives `look` each control of the report as designed.
void ForEachControl(const CatalogueEntry& entry,
                    const std::function<void(const ControlLayout& control)>& look) {
    const auto report = entry.make();
    for (const auto& section : report->IReport_ReportDesigner()->GetSurface().Design().sections)
        for (const auto& control : section.controls) look(control);
}

TEST(CatalogueTest, EveryTitleAndCaptionIsATextInBothLanguages) {
    for (const auto language : {company::Language::kEnglish, company::Language::kFrench}) {
        for (const auto& entry : Catalogue()) {
            company::Texts texts(language, [&](std::int16_t number) {
                ADD_FAILURE() << entry.class_name << ": there is no text " << number;
            });
            texts.Get(entry.title_text);
            int captions = 0;
            ForEachControl(entry, [&](const ControlLayout& control) {
                if (control.caption == 0) return;
                ++captions;
                texts.Get(control.caption);
            });
            EXPECT_GT(captions, 0) << entry.class_name;
        }
    }
}

TEST(CatalogueTest, EveryReportNamesEachColumnOfADataExportOnce) {
    for (const auto& entry : Catalogue()) {
        std::set<std::string_view> columns;
        ForEachControl(entry, [&](const ControlLayout& control) {
            EXPECT_TRUE(control.column.empty() || columns.insert(control.column).second)
                << entry.class_name << ": " << control.column;
        });
        EXPECT_FALSE(columns.empty()) << entry.class_name;
    }
}

}  // namespace
}  // namespace varnel::framework
