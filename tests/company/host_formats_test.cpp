#include <clocale>
#include <limits>

#include "company/formats/date_pattern.h"
#include "company/formats/locale_formats.h"
#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

std::string Shown(const char* locale, Currency amount, int decimals = 2) {
    std::string text;
    LocaleFormats(locale).AppendAmount(amount, decimals, text);
    return text;
}

std::string ShownNumber(double value, int decimals) {
    std::string text;
    LocaleFormats("en-CA").AppendNumber(value, decimals, text);
    return text;
}

TEST(LocaleFormats, WriteAmountsAsTheLocaleDoes) {
    const struct {
        const char *locale, *text;
    } cases[] = {
        {"en-CA", "-1,234,567.90"},
        {"en_CA.UTF-8", "-1,234,567.90"},
        {"fr-CA", "-1\u00A0234\u00A0567,90"},
        {"fr-FR", "-1\u00A0234\u00A0567,90"},  // Its narrow space is not in every font.
        {"de-CH", "-1’234’567.90"},
        {"hi-IN", "-12,34,567.90"},
        {"sv-SE", "−1\u00A0234\u00A0567,90"},
        {"ar-EG-u-nu-arab", "-1,234,567.90"},  // Digits are always 0 to 9.
    };
    for (const auto& [locale, text] : cases)
        EXPECT_EQ(Shown(locale, Amount("-1234567.895")), text) << locale;
}

TEST(LocaleFormats, WriteTheLargestAmounts) {
    EXPECT_EQ(Shown("en-CA", Currency::FromScaled(std::numeric_limits<std::int64_t>::max())),
              "922,337,203,685,477.58");
    EXPECT_EQ(Shown("en-CA", Currency::FromScaled(std::numeric_limits<std::int64_t>::min()), 4),
              "-922,337,203,685,477.5808");
}

TEST(LocaleFormats, WriteEveryNumberOfDecimals) {
    const char* const texts[] = {"1,235", "1,234.6", "1,234.57", "1,234.568", "1,234.5678"};
    for (int decimals = 0; decimals <= 4; ++decimals)
        EXPECT_EQ(Shown("en-CA", Amount("1234.5678"), decimals), texts[decimals]);
    EXPECT_NE(ErrorOf([] { Shown("en-CA", {}, 5); }), "");
    EXPECT_NE(ErrorOf([] { Shown("en-CA", {}, -1); }), "");
}

TEST(LocaleFormats, AppendToWhatIsThere) {
    LocaleFormats formats("fr-CA");
    std::string text = "Total ";
    formats.AppendAmount(Amount("1234.5"), text);
    formats.AppendCount(-12345, text);
    EXPECT_EQ(text, "Total 1\u00A0234,50-12\u00A0345");
}

TEST(LocaleFormats, WriteNumbersWithTheirGroups) {
    EXPECT_EQ(ShownNumber(-1234.56, 1), "-1,234.6");
    EXPECT_EQ(ShownNumber(0.125, 2), "0.13");
    EXPECT_EQ(ShownNumber(-0.04, 1), "0.0");
    EXPECT_EQ(ShownNumber(1e25, 1), "1e+25");
}

TEST(LocaleFormats, DoNotDependOnTheLocaleOfTheProcess) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"fr_CA.UTF-8", "de_DE.UTF-8", "C.UTF-8"}) std::setlocale(LC_ALL, name);
    EXPECT_EQ(Shown("en-CA", Amount("1234.5")), "1,234.50");
    std::setlocale(LC_ALL, before.c_str());
}

TEST(LocaleFormats, RefuseALocaleThatThereIsNoDataFor) {
    for (const char* name : {"", "xx", "english", "zz-ZZ", "root"})
        EXPECT_THAT(ErrorOf([&] { LocaleFormats formats(name); }),
                    testing::HasSubstr("\"" + std::string(name) + "\""));
}

TEST(LocaleFormats, WriteDatesInIsoUnlessTheLocaleIsAskedFor) {
    std::string text;
    LocaleFormats("fr-FR").AppendShortDate(Day("2025-03-01"), text);
    text += " ";
    LocaleFormats("fr-FR", DateStyle::kLocale).AppendShortDate(Day("2025-03-01"), text);
    text += " ";
    LocaleFormats("de-DE", DateStyle::kLocale).AppendShortDate(Day("2025-03-01"), text);
    EXPECT_EQ(text, "2025-03-01 01/03/2025 01.03.25");
}

TEST(DatePattern, ReadsLettersTextsAndApostrophes) {
    const struct {
        const char *pattern, *text;
    } cases[] = {{"d/M/y", "5/3/2025"},    {"dd.MM.yy", "05.03.25"}, {"yyyy-MM-dd", "2025-03-05"},
                 {"d 'de' M", "5 de 3"},   {"d''M", "5'3"},          {"MMM d", "2025-03-05"},
                 {"d/M/y G", "2025-03-05"}};
    for (const auto& [pattern, expected] : cases) {
        std::string text;
        DatePattern(pattern).Append(Day("2025-03-05"), text);
        EXPECT_EQ(text, expected) << pattern;
    }
}

}  // namespace
}  // namespace varnel::company
