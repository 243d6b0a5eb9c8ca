#include "framework/filter_sort_subreport.h"

#include <gtest/gtest.h>

#include "framework/standard_header.h"
#include "tests/support/collected_bands.h"
#include "tests/support/memory_host.h"
#include "tests/support/picking_tool.h"

namespace varnel::framework {
namespace {

using Info = dsrFilterAndSortByInfoSubreport::Info;

struct InfoCase {
    Info info;
    std::vector<std::string> lines;
};

/// The lines of a band from top to bottom, caption and text side by side.
std::vector<std::string> LinesOf(const test::CollectedBand& band) {
    std::map<Twips, std::string> lines;
    for (const std::string what : {"Segments", "Filter", "SortedBy"}) {
        const auto& caption = band["lbl" + what];
        const auto& text = band["txt" + what];
        EXPECT_EQ(caption.visible, text.visible);
        EXPECT_EQ(caption.box.top, text.box.top);
        EXPECT_LT(caption.box.Right(), text.box.left);
        if (text.visible) lines[text.box.top] += caption.text + ": " + text.text;
    }
    std::vector<std::string> found;
    for (const auto& [top, line] : lines) {
        EXPECT_EQ(top, 220 * static_cast<Twips>(found.size()));
        found.push_back(line);
    }
    return found;
}

const InfoCase kInfos[] = {
    {{}, {}},
    {{"East", "", ""}, {"Segments: East"}},
    {{"", "", "by account"}, {"Sorted by: by account"}},
    {{"East", "", "by account"}, {"Segments: East", "Sorted by: by account"}},
    {{"East", "Amount > 5", "by account"},
     {"Segments: East", "Filter: Amount > 5", "Sorted by: by account"}}};

TEST(FilterSubReportTest, TakesOneLineForEachThingThatThereIsToSay) {
    const auto host = std::make_shared<test::MemoryHost>();
    host->texts = {{30041, "&Segments"}, {30042, "Filter"}, {30043, "Sorted by"}};
    for (const auto& [info, lines] : kInfos) {
        const auto report = std::make_shared<dsrFilterAndSortByInfoSubreport>(host, info);
        for (int run = 1; run <= 2; ++run) {
            const auto collected = test::Collect(*report);
            ASSERT_EQ(collected.bands.size(), lines.empty() ? 0u : 1u) << "run " << run;
            if (lines.empty()) continue;
            EXPECT_EQ(LinesOf(collected.bands[0]), lines);
            EXPECT_EQ(collected.bands[0].height, 220 * static_cast<Twips>(lines.size()));
        }
    }
}

std::string ShownIn(const std::shared_ptr<Application>& host, FilterTool* tool,
                    const char* control) {
    static const Layout layout{.name = "dsrTried",
                               .sections = {{.name = "PageHeader",
                                             .kind = SectionKind::kPageHeader,
                                             .controls = PageHeaderControls({})},
                                            {.name = "Detail"}}};
    Surface surface(layout);
    FillFilterSubReport(surface, host, "", CustomCriteria::Split("A = 1|B"), tool);
    const auto report = surface.At(kFilterSubReport).SubReport();
    return test::Collect(*report).bands.at(0).Text(control);
}

TEST(FilterSubReportTest, UsesTheWordsOfTheHostsFilterToolOrElseTheTextsThemselves) {
    const auto host = std::make_shared<test::MemoryHost>();
    test::PickingTool tool;
    EXPECT_EQ(ShownIn(host, &tool, "txtFilter"), "<A = 1>");
    EXPECT_EQ(ShownIn(host, &tool, "txtSortedBy"), "<B>");
    EXPECT_EQ(ShownIn(host, nullptr, "txtFilter"), "A = 1");
    EXPECT_EQ(ShownIn(host, nullptr, "txtSortedBy"), "B");
}

}  // namespace
}  // namespace varnel::framework
