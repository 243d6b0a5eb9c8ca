#include <array>

#include "company/texts/embedded_texts.h"
#include "company/texts/messages.h"
#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

TEST(Texts, SpeakTheLanguageOfTheLocale) {
    EXPECT_EQ(LanguageOf("fr"), Language::kFrench);
    EXPECT_EQ(LanguageOf("FR_ca"), Language::kFrench);
    EXPECT_EQ(LanguageOf("fro"), Language::kEnglish);
    EXPECT_EQ(LanguageOf("de-DE"), Language::kEnglish);
}

TEST(Texts, ReportAMissingNumberOnce) {
    std::vector<std::int16_t> missing;
    Texts texts(Language::kEnglish, [&](std::int16_t number) { missing.push_back(number); });
    for (const int number : {777, 778, 777, 2656}) texts.Get(static_cast<std::int16_t>(number));
    EXPECT_THAT(missing, testing::ElementsAre(777, 778));
    EXPECT_EQ(texts.Get(777), "777");
}

TEST(Texts, FallBackToTheNumberInTheOneLanguageThatLacksAText) {
    const std::string_view file = "7\tSeven\t\twhere\n8\t\tHuit\n";
    const struct {
        Language language;
        const char *seven, *eight;
        std::int16_t missing;
    } cases[] = {{Language::kEnglish, "Seven", "8", 8}, {Language::kFrench, "7", "Huit", 7}};
    for (const auto& [language, seven, eight, lacking] : cases) {
        std::vector<std::int16_t> missing;
        Texts texts(
            language, [&](std::int16_t number) { missing.push_back(number); }, file);
        EXPECT_EQ(texts.Get(7), seven);
        EXPECT_EQ(texts.Get(8), eight);
        texts.Get(lacking);
        EXPECT_THAT(missing, testing::ElementsAre(lacking)) << "told once";
    }
}

// A place or an accelerator that a translation lacks is a report that prints wrong in that
// language.
TEST(Texts, HaveTheSamePlacesInBothLanguages) {
    Texts english(Language::kEnglish, {}), french(Language::kFrench, {});
    for (std::int16_t number = 1; number < 32767; ++number) {
        const std::string a = english.Get(number), b = french.Get(number);
        for (const char* mark : {"{0}", "{1}", "&"})
            EXPECT_EQ(a.find(mark) == std::string::npos, b.find(mark) == std::string::npos) << a;
    }
}

TEST(Texts, NameTheLineThatIsNotWellFormed) {
    for (const char* line : {"12\tOnly English", "x\tEnglish\tFrench", "0\tA\tB", "99999\tA\tB",
                             "1\tTwice\tDeux fois", "1\t\t"}) {
        const std::string file = std::string("# texts\n1\tA\tB\twhere\n") + line + "\n";
        EXPECT_THAT(ErrorOf([&] { Texts(Language::kEnglish, {}, file); }),
                    testing::HasSubstr("Line 3"))
            << line;
    }
}

std::string MessageIn(const char* locale, std::int32_t number, Variant argument) {
    LocaleFormats formats(locale, DateStyle::kLocale);
    HostMessages messages(LanguageOf(locale), formats, {});
    const std::array arguments{std::move(argument)};
    return messages.Message(number, kMessageSource, arguments);
}

TEST(HostMessages, PutTheirArgumentsInTheUsersFormat) {
    const Variant date = Day("2024-07-01");
    EXPECT_EQ(MessageIn("en-CA", 12802, date),
              "Inventory adjustments are posted to the ledger from 7/1/24.");
    EXPECT_EQ(MessageIn("fr-CA", 12802, date),
              "Les ajustements d'inventaire sont reportés au grand livre depuis le 2024-07-01.");
    EXPECT_EQ(MessageIn("en-CA", 12802, "{0}"),
              "Inventory adjustments are posted to the ledger from {0}.");
    EXPECT_EQ(MessageIn("en-CA", 1, date), "1 (Orvotech)");
}

TEST(HostMessages, LeaveAPlaceWithoutArgument) {
    LocaleFormats formats("en-CA");
    HostMessages messages(Language::kEnglish, formats, {});
    EXPECT_EQ(messages.Message(12802, kMessageSource, {}),
              "Inventory adjustments are posted to the ledger from {0}.");
}

}  // namespace
}  // namespace varnel::company
