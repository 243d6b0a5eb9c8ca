#include "framework/catalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace varnel::framework {
namespace {

std::vector<CatalogueEntry> BuiltReports() {
    std::vector<CatalogueEntry> built;
    for (const auto& entry : Catalogue())
        if (entry.make != nullptr) built.push_back(entry);
    return built;
}

struct Translation {
    std::string english, french;
};

std::map<int, Translation> ReadTexts() {
    std::ifstream in(VARNEL_SOURCE_DIR "/company/texts/texts.tsv");
    std::map<int, Translation> texts;
    for (std::string line; std::getline(in, line);) {
        std::istringstream fields(line);
        std::string number;
        Translation text;
        std::getline(fields, number, '\t');
        std::getline(fields, text.english, '\t');
        std::getline(fields, text.french, '\t');
        if (!number.starts_with('#')) texts[std::stoi(number)] = text;
    }
    return texts;
}

void ExpectInBothLanguages(const std::map<int, Translation>& texts, int number,
                           std::string_view of) {
    const auto text = texts.find(number);
    ASSERT_NE(text, texts.end()) << of << ": there is no text " << number;
    EXPECT_FALSE(text->second.english.empty()) << number;
    EXPECT_FALSE(text->second.french.empty()) << number;
}

TEST(CatalogueTest, EveryTitleIsATextInBothLanguages) {
    const auto texts = ReadTexts();
    for (const auto& entry : Catalogue())
        ExpectInBothLanguages(texts, entry.title_text, entry.class_name);
}

/// The sections of a report as designed.
class ReportLayoutTest : public testing::TestWithParam<CatalogueEntry> {
  protected:
    const std::vector<SectionLayout>& Sections() {
        return report_->IReport_ReportDesigner()->GetSurface().Design().sections;
    }

  private:
    std::shared_ptr<IReport> report_ = GetParam().make();
};

TEST_P(ReportLayoutTest, NamesEachColumnOfADataExportOnce) {
    std::set<std::string_view> columns;
    for (const auto& section : Sections()) {
        for (const auto& control : section.controls) {
            const bool fresh = control.column.empty() || columns.insert(control.column).second;
            EXPECT_TRUE(fresh) << control.column;
        }
    }
    EXPECT_FALSE(columns.empty());
}

TEST_P(ReportLayoutTest, TakesItsCaptionsFromTextsInBothLanguages) {
    const auto texts = ReadTexts();
    int captions = 0;
    for (const auto& section : Sections()) {
        for (const auto& control : section.controls) {
            if (control.caption == 0) continue;
            ++captions;
            ExpectInBothLanguages(texts, control.caption, control.name);
        }
    }
    EXPECT_GT(captions, 0);
}

INSTANTIATE_TEST_SUITE_P(Reports, ReportLayoutTest, testing::ValuesIn(BuiltReports()),
                         [](const auto& report) { return std::string(report.param.class_name); });

}  // namespace
}  // namespace varnel::framework
