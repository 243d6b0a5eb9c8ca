#include "render/bands/csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "render/bands/csv_quote.h"
#include "tests/render/made_up_report.h"

namespace varnel::render {

namespace {

using engine::BandMark;
using testing::Band;
using testing::Field;
using ::testing::HasSubstr;

TEST(CsvField, IsQuotedOnlyWhenItMust) {
    struct Case {
        std::string_view text, field;
    };
    constexpr Case kCases[] = {
        {"", ""},
        {"Cash", "Cash"},
        {" Petty cash ", " Petty cash "},
        {"Smith, John", "\"Smith, John\""},
        {"12\" pipe", "\"12\"\" pipe\""},
        {"\"", "\"\"\"\""},
        {"two\nlines", "\"two\nlines\""},
        {"return\r", "\"return\r\""},
        {"Café; crème", "Café; crème"},
        {"=1+1", "=1+1"},
    };
    for (const auto& [text, field] : kCases) {
        std::string out;
        AppendCsvField(out, text);
        EXPECT_EQ(out, field);
    }
}

/// Two group levels around a detail; the inner header has one column, the outer one two.
class Csv : public ::testing::Test {
  protected:
    static Layout TwoGroups() {
        return {.name = "dsrTwoGroups",
                .sections = {
                    Band(SectionKind::kReportHeader, "ReportHeader", {Field("h", {}, "Ignored")}),
                    Band(SectionKind::kGroupHeader, "ghOuter",
                         {Field("fldYear", {}, "Year"), Field("fldBook", {}, "Book"),
                          Field("lblPlain", {})}),
                    Band(SectionKind::kGroupHeader, "ghInner", {Field("fldAcct", {}, "Account")}),
                    Band(SectionKind::kDetail, "Detail",
                         {Field("txtText", {}, "Text, free"), Field("txtAmount", {}, "Amount")}),
                    Band(SectionKind::kGroupFooter, "gfInner", {Field("t", {}, "Total")}),
                    Band(SectionKind::kGroupFooter, "gfOuter", {}),
                }};
    }

    Csv() : layout_(TwoGroups()), surface_(layout_), writer_(sink_) { writer_.Begin({}, surface_); }

    static constexpr BandMark kOuter{.level = 0};
    static constexpr BandMark kInner{.level = 1};

    void Print(std::string_view section, const BandMark& mark = {}) {
        writer_.Write(surface_.SectionAt(section), mark);
    }
    Control& At(std::string_view name) { return surface_.At(name); }

    /// What was written after the header line.
    std::string Records() {
        writer_.End();
        return sink_.Bytes().substr(sink_.Bytes().find('\n') + 1);
    }

    Layout layout_;
    Surface surface_;
    MemorySink sink_;
    CsvWriter writer_;
};

TEST_F(Csv, PutsTheFieldsOfItsGroupsInFrontOfEachDetail) {
    At("fldYear").SetValue(std::int32_t{2025}, "Fiscal year 2025");
    At("fldBook").SetText("GJ");
    At("fldAcct").SetText("1010");
    Print("ghOuter", kOuter);
    Print("ghInner", kInner);
    At("txtText").SetText("first");
    Print("Detail");
    At("txtText").SetText("second");
    Print("Detail");
    Print("gfInner", kInner);
    writer_.End();
    EXPECT_EQ(sink_.Bytes(),
              "Year,Book,Account,\"Text, free\",Amount\r\n"
              "2025,GJ,1010,first,\r\n2025,GJ,1010,second,\r\n");
}

TEST_F(Csv, WritesValuesPlainAndExact) {
    struct Case {
        ControlValue value;
        std::string_view field;
    };
    const Case cases[] = {
        {Currency::FromScaled(500'000), "50.00"},
        {Currency::FromScaled(-12'345'678), "-1234.5678"},
        {Currency::FromScaled(12'345'000), "1234.50"},
        {Currency::FromScaled(1), "0.0001"},
        {Currency(), "0.00"},
        {Currency::FromScaled(INT64_MIN), "-922337203685477.5808"},
        {Date::FromYearMonthDay(2025, 3, 31), "2025-03-31"},
        {std::int32_t{-7}, "-7"},
        {std::monostate{}, "as printed"},
    };
    std::string expected;
    for (const Case& c : cases) {
        At("txtAmount").SetValue(c.value, "as printed");
        Print("Detail");
        expected += ",,,," + std::string(c.field) + "\r\n";
    }
    EXPECT_EQ(Records(), expected);
}

TEST_F(Csv, LeavesTheFieldOfAnInvisibleControlEmpty) {
    At("txtText").SetText("shown");
    At("txtAmount").SetValue(Currency::FromWhole(5), "5.00");
    At("txtAmount").SetVisible(false);
    Print("Detail");
    EXPECT_EQ(Records(), ",,,shown,\r\n");
}

TEST_F(Csv, GivesAGroupWhoseHeaderDoesNotPrintEmptyFieldsAndNotThoseOfTheOneBefore) {
    At("fldBook").SetText("GJ");
    At("fldAcct").SetText("1010");
    Print("ghOuter", kOuter);
    Print("ghInner", kInner);
    Print("Detail");
    Print("ghInner", {.level = 1, .printed = false});
    Print("Detail");
    Print("ghOuter", {.level = 0, .printed = false});
    Print("ghInner", kInner);
    Print("Detail");
    EXPECT_EQ(Records(), ",GJ,1010,,\r\n,GJ,,,\r\n,,1010,,\r\n");
}

TEST_F(Csv, LeavesOutTheBandsOfSubReports) {
    Print("Detail", {.depth = 1});
    Print("ghOuter", {.depth = 1, .level = 0});
    EXPECT_EQ(Records(), "");
}

TEST_F(Csv, HandsLongOutputOnBeforeTheEnd) {
    At("txtText").SetText(std::string(1000, 'x'));
    for (int i = 0; i < 100; ++i) Print("Detail");
    EXPECT_GT(sink_.Bytes().size(), 64'000u);
    EXPECT_EQ(Records().size(), 100u * (1000 + 6));
}

/// What is written of a layout, after its texts are set, for those bands.
std::string Written(const Layout& layout, const std::vector<const char*>& texts,
                    const std::vector<std::pair<const char*, BandMark>>& bands) {
    Surface surface(layout);
    MemorySink sink;
    CsvWriter writer(sink);
    writer.Begin({}, surface);
    for (const char* name : texts) surface.At(name).SetText(name);
    for (const auto& [section, mark] : bands) writer.Write(surface.SectionAt(section), mark);
    writer.End();
    return sink.Take();
}

TEST(CsvRecord, OfOneEmptyFieldIsNotAnEmptyLine) {
    const Layout layout{.name = "dsrOne",
                        .sections = {Band(SectionKind::kDetail, "Detail", {Field("a", {}, "A")})}};
    EXPECT_EQ(Written(layout, {}, {{"Detail", {}}}), "A\r\n\"\"\r\n");
}

TEST(CsvRecord, IsAFooterOfTheInnermostGroupWhereDetailsNameNoColumns) {
    const Layout layout{
        .name = "dsrSums",
        .sections = {Band(SectionKind::kGroupHeader, "ghOuter", {Field("g", {}, "Group")}),
                     Band(SectionKind::kGroupHeader, "ghInner", {}),
                     Band(SectionKind::kDetail, "Detail", {Field("d", {})}),
                     Band(SectionKind::kGroupFooter, "gfInner", {Field("s", {}, "Sum")}),
                     Band(SectionKind::kGroupFooter, "gfOuter", {Field("t", {}, "Total")})}};
    EXPECT_EQ(Written(layout, {"g", "s", "t"},
                      {{"ghOuter", {.level = 0}},
                       {"Detail", {}},
                       {"gfInner", {.level = 1}},
                       {"gfInner", {.level = 1, .printed = false}},
                       {"gfOuter", {.level = 0}}}),
              "Group,Sum\r\ng,s\r\n");
}

TEST(CsvLayout, WithoutColumnsIsRefusedByName) {
    const Layout layout{.name = "dsrMute",
                        .sections = {Band(SectionKind::kDetail, "Detail", {Field("a", {})})}};
    try {
        Written(layout, {}, {});
        FAIL() << "no error";
    } catch (const std::invalid_argument& error) {
        EXPECT_THAT(error.what(), HasSubstr("dsrMute"));
    }
}

}  // namespace

}  // namespace varnel::render
