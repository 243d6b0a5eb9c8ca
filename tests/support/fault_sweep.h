#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/report_run.h"

namespace varnel::test {

/// Figures by the section they stand in, each by itself: one may be blank where another is right.
/// Those of several controls are joined by blanks.
using Figures = std::vector<std::pair<const char*, std::vector<std::string>>>;

/// What a fault sweep looks at.
struct Swept {
    const char* object;
    Figures figures;
    /// What a figure may be in a report without rows besides blank.
    const char* when_empty = "";
};

/// A report over its rows.
template <class Run, class Row>
struct RunOver : Run {
    std::vector<Row> rows;
    CollectedBands operator()() { return Run::operator()(rows); }
};

/// Sets the report up again and runs it, call `failing` of the host from then on failing; 0 lets
/// all pass. Nothing when that ends it with an error for the caller.
template <class Run>
std::optional<CollectedBands> RunFailing(Run& run, int failing) {
    run.host->calls.FailAt(failing == 0 ? 0 : run.host->calls.Count() + failing);
    try {
        run.report->IReport_DateTo(run.to);
        run.report->IReport_Initialize();
        return run();
    } catch (const Error&) {
        return std::nullopt;
    }
}

inline void ExpectRightOrBlank(const Swept& swept, const char* section, const std::string& figure,
                               const CollectedBands& bands, const CollectedBands& right) {
    std::istringstream names(figure);
    const std::vector<std::string> controls(std::istream_iterator<std::string>(names), {});
    const bool empty = bands.Of("Detail").empty();
    const auto shown = Shown(bands, section, controls);
    const auto expected = Shown(right, section, controls);
    ASSERT_TRUE(empty || shown.size() == expected.size()) << section;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const bool blank = shown[i].find_first_not_of("|DCT") == std::string::npos;
        EXPECT_TRUE(blank || shown[i] == expected[i] || (empty && shown[i] == swept.when_empty))
            << figure << " shows " << shown[i] << " for " << expected[i];
    }
}

inline void ExpectRightOrBlank(const Swept& swept, const CollectedBands& bands,
                               const CollectedBands& right) {
    for (const auto& [section, figures] : swept.figures)
        for (const auto& figure : figures) ExpectRightOrBlank(swept, section, figure, bands, right);
}

/// Makes each call of the host fail in turn. Every failure is told by the report, every figure is
/// right or blank, and the run after it is right. `make` gives a report that has run before, over
/// other amounts. Returns what the report shows when nothing fails.
template <class Make>
CollectedBands SweepFaults(const Swept& swept, Make make) {
    const std::string told =
        std::string("Host call [0-9]+, [A-Za-z.]+, failed[^\r]*\r\nin Varnel\\.") +
        "(dsrFilterAndSortByInfoSubreport|" + swept.object +
        ")\\.[A-Za-z0-9_]+ at line [1-9][0-9]*";
    auto untroubled = make();
    const auto right = RunFailing(untroubled, 0).value();
    EXPECT_THAT(untroubled.host->message_boxes, testing::IsEmpty());
    if (testing::Test::HasFailure()) return right;  // The sweep ends at a run that tells nothing.
    int k = 1;
    for (;; ++k) {
        SCOPED_TRACE("host call " + std::to_string(k));
        auto run = make();
        const auto bands = RunFailing(run, k);
        if (bands && run.host->message_boxes.empty()) break;
        if (bands) {
            EXPECT_THAT(run.host->message_boxes[0], testing::ContainsRegex(told));
            ExpectRightOrBlank(swept, *bands, right);
        }
        run.host->calls.FailAt(0);
        EXPECT_EQ(run().bands, right.bands) << "the run after it";
    }
    EXPECT_GT(k, 50);
    return right;
}

}  // namespace varnel::test
