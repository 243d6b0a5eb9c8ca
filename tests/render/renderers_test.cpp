// What every renderer does with the same report.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <system_error>

#include "render/bands/csv.h"
#include "render/bands/jsonl.h"
#include "render/pages/pdf_pages.h"
#include "render/text/text_writer.h"
#include "tests/render/made_up_report.h"
#include "tests/render/pdf_tools.h"

namespace varnel::render {

namespace {

using testing::Band;
using testing::FailingSink;
using testing::Field;
using ::testing::HasSubstr;

/// Takes the report's sections as they are printed, whatever the renderer makes of them.
using Print = std::function<void(const Section&)>;

const Layout& JournalLayout() {
    using enum SectionKind;
    constexpr auto kRight = Align::kRight;
    static const Layout layout{
        .name = "dsrJournal",
        .sections = {
            Band(kPageHeader, "PageHeader", {Field("lblTitle", {0, 0, 9000, 240})}),
            Band(kGroupHeader, "ghAcct", {Field("fldAcct", {0, 0, 9000, 240}, "Account")}),
            Band(kDetail, "Detail",
                 {Field("txtDate", {0, 0, 1100, 240}, "Date"),
                  Field("txtText", {1200, 0, 5000, 240}, "Text"),
                  Field("txtAmount", {6300, 0, 1400, 240}, "Amount", kRight)}),
            Band(kGroupFooter, "gfAcct", {Field("txtTotal", {6300, 0, 1400, 240}, {}, kRight)})}};
    return layout;
}

struct Entry {
    std::string_view text;
    std::int64_t scaled;
    std::string_view printed;
    std::string_view plain;
};

constexpr Entry kEntries[] = {
    {"Café «Élan»", 500'000, "50.00", "50.00"},
    {"Über Größe, naïve", -12'345'678'900, "(1,234,567.89)", "-1234567.89"},
    {"Łódź œuvre", 9'223'372'036'854'775'807, "922,337,203,685,477.5807", "922337203685477.5807"},
};

void PrintJournal(Surface& surface, bool with_rows, const Print& print) {
    surface.At("lblTitle").SetText("General Journal");
    print(surface.SectionAt("PageHeader"));
    if (!with_rows) return;
    surface.At("fldAcct").SetText("1010 Caisse générale");
    print(surface.SectionAt("ghAcct"));
    for (const Entry& entry : kEntries) {
        surface.At("txtDate").SetValue(Date::FromYearMonthDay(2025, 3, 31), "31/03/2025");
        surface.At("txtText").SetText(entry.text);
        surface.At("txtAmount").SetValue(Currency::FromScaled(entry.scaled), entry.printed);
        print(surface.SectionAt("Detail"));
    }
    print(surface.SectionAt("gfAcct"));
}

template <class Writer>
void RunBands(ByteSink& sink, bool with_rows) {
    Surface surface(JournalLayout());
    Writer writer(sink);
    writer.Begin({}, surface);
    PrintJournal(surface, with_rows, [&](const Section& s) {
        const bool in_group =
            s.Kind() == SectionKind::kGroupHeader || s.Kind() == SectionKind::kGroupFooter;
        writer.Write(s, {.level = in_group ? 0 : -1});
    });
    writer.End();
}

void RunText(ByteSink& sink, bool with_rows) {
    Surface surface(JournalLayout());
    TextWriter writer(sink);
    writer.Begin({}, surface.Width());
    PrintJournal(surface, with_rows, [&](const Section& s) { writer.Write(testing::Place(s)); });
    writer.End();
}

void RunPdf(ByteSink& sink, bool with_rows) {
    static FontSet fonts;
    Surface surface(JournalLayout());
    engine::Page page{.width = 12'240, .height = 15'840, .content = {}};
    Twips top = 720;
    PrintJournal(surface, with_rows, [&](const Section& s) {
        page.content.Append(testing::Place(s).content, 720, top);
        top += s.Height();
    });
    PdfPageWriter writer(sink, fonts);
    writer.Begin({}, 1);
    writer.Write(page, 1, 1);
    writer.End();
}

std::string AsItIs(const std::string& output) { return output; }

struct Renderer {
    const char* name;
    void (*run)(ByteSink& sink, bool with_rows);
    std::string (*readable)(const std::string& output);
    std::string_view Entry::*amount;
};

class Renderers : public ::testing::TestWithParam<Renderer> {
  protected:
    void SetUp() override {
        if (GetParam().readable == ExtractText && !HasTool("pdftotext"))
            GTEST_SKIP() << "pdftotext is not installed";
    }
    std::string Output(bool with_rows = true) {
        MemorySink sink;
        GetParam().run(sink, with_rows);
        return GetParam().readable(sink.Bytes());
    }
};

TEST_P(Renderers, ShowEveryAmountExactly) {
    const std::string output = Output();
    for (const Entry& entry : kEntries)
        EXPECT_THAT(output, HasSubstr(std::string(entry.*GetParam().amount)));
}

TEST_P(Renderers, KeepAccents) {
    const std::string output = Output();
    EXPECT_THAT(output, HasSubstr("1010 Caisse générale"));
    for (const Entry& entry : kEntries) EXPECT_THAT(output, HasSubstr(std::string(entry.text)));
}

TEST_P(Renderers, ManageWithoutRows) {
    const std::string output = Output(false);
    EXPECT_FALSE(output.empty());
    EXPECT_THAT(output, ::testing::Not(HasSubstr("1010")));
}

TEST_P(Renderers, GiveTheSameBytesForTheSameReport) {
    MemorySink first;
    MemorySink second;
    GetParam().run(first, true);
    GetParam().run(second, true);
    EXPECT_EQ(first.Bytes(), second.Bytes());
}

TEST_P(Renderers, PassOnTheErrorsOfTheDestination) {
    FailingSink sink;
    EXPECT_THROW(GetParam().run(sink, true), std::system_error);
}

INSTANTIATE_TEST_SUITE_P(
    All, Renderers,
    ::testing::Values(Renderer{"csv", RunBands<CsvWriter>, AsItIs, &Entry::plain},
                      Renderer{"jsonl", RunBands<JsonLinesWriter>, AsItIs, &Entry::printed},
                      Renderer{"text", RunText, AsItIs, &Entry::printed},
                      Renderer{"pdf", RunPdf, ExtractText, &Entry::printed}),
    [](const auto& renderer) { return renderer.param.name; });

}  // namespace

}  // namespace varnel::render
