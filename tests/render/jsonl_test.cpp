#include "render/bands/jsonl.h"

#include <gtest/gtest.h>

#include "render/bands/json_escape.h"
#include "tests/render/made_up_report.h"

namespace varnel::render {

namespace {

using testing::Band;
using testing::Field;
using testing::Other;

TEST(JsonString, EscapesWhatJsonOrItsReadersCannotTake) {
    struct Case {
        std::string_view text, json;
    };
    using namespace std::string_view_literals;
    constexpr Case kCases[] = {
        {"", R"("")"},
        {"Café 漢 😀", R"("Café 漢 😀")"},
        {R"(a "b" \c /d)", R"("a \"b\" \\c /d")"},
        {"\b\f\n\r\t", R"("\b\f\n\r\t")"},
        {"\x01\x1F\x7F"sv, "\"\\u0001\\u001f\x7F\""},
        {"nul\0nul"sv, R"("nul\u0000nul")"},
        {"a\u2028b\u2029c", R"("a\u2028b\u2029c")"},
        {"\uFFFD", "\"\uFFFD\""},
        {"caf\xE9!", "\"caf\uFFFD!\""},
        {"cut \xE2\x82", "\"cut \uFFFD\""},
        {"\xC0\x80", "\"\uFFFD\uFFFD\""},
    };
    for (const auto& [text, json] : kCases) {
        std::string out;
        AppendJsonString(out, text);
        EXPECT_EQ(out, json);
    }
}

class JsonLines : public ::testing::Test {
  protected:
    static Layout AllKinds() {
        ControlLayout label = Field("lblTotal", {});
        label.kind = ControlKind::kLabel;
        return {.name = "dsrAllKinds",
                .sections = {Band(SectionKind::kDetail, "Detail",
                                  {label, Field("txtDebit", {}), Field("txtNote", {}),
                                   Other(ControlKind::kLine, "linTop", {}),
                                   Other(ControlKind::kBlock, "blkRoom", {}),
                                   Other(ControlKind::kPageNumber, "lblPage", {}),
                                   Other(ControlKind::kSubReport, "subFilter", {})})}};
    }

    JsonLines() : layout_(AllKinds()), surface_(layout_), writer_(sink_) {
        writer_.Begin({}, surface_);
    }

    Control& At(std::string_view name) { return surface_.At(name); }
    std::string Written(const engine::BandMark& mark = {}) {
        writer_.Write(surface_.SectionAt("Detail"), mark);
        writer_.End();
        return sink_.Take();
    }

    Layout layout_;
    Surface surface_;
    MemorySink sink_;
    JsonLinesWriter writer_;
};

TEST_F(JsonLines, CarryTextValueAndKeyOfEachControlAlsoOfABlock) {
    At("lblTotal").SetText("Total");
    At("txtDebit").SetValue(Currency::FromWhole(50), "50.00");
    At("txtDebit").SetTag("GJ|17");
    At("txtNote").SetTag("42");
    At("blkRoom").SetText("USD");
    EXPECT_EQ(Written(), R"({"section":"Detail","controls":{"lblTotal":{"text":"Total"},)"
                         R"("txtDebit":{"text":"50.00","value":"50.0000","key":"GJ|17"},)"
                         R"("txtNote":{"text":"","key":"42"},)"
                         R"("blkRoom":{"text":"USD"}}})"
                         "\n");
}

TEST_F(JsonLines, WriteEachKindOfValueExactly) {
    struct Case {
        ControlValue value;
        std::string_view json;
    };
    const Case cases[] = {
        {Currency::FromScaled(-12'345'678), R"("-1234.5678")"},
        {Currency(), R"("0.0000")"},
        {Date::FromYearMonthDay(2025, 3, 31), R"("2025-03-31")"},
        {std::int32_t{1200}, "1200"},
    };
    for (const Case& c : cases) {
        At("txtDebit").SetValue(c.value, "");
        EXPECT_EQ(Written(), R"({"section":"Detail","controls":{"txtDebit":{"text":"","value":)" +
                                 std::string(c.json) + "}}}\n");
    }
}

TEST_F(JsonLines, LeaveOutWhatIsNotVisibleTextOfTheBand) {
    At("txtDebit").SetText("hidden");
    At("txtDebit").SetVisible(false);
    for (const char* name : {"linTop", "lblPage", "subFilter"}) At(name).SetText("no");
    EXPECT_EQ(Written(), "{\"section\":\"Detail\",\"controls\":{}}\n");
}

TEST_F(JsonLines, LeaveOutABandThatDoesNotPrint) {
    EXPECT_EQ(Written({.level = 0, .printed = false}), "");
}

TEST_F(JsonLines, TellTheDepthOfASubReportsBand) {
    EXPECT_EQ(Written({.depth = 2}), "{\"section\":\"Detail\",\"depth\":2,\"controls\":{}}\n");
}

}  // namespace

}  // namespace varnel::render
