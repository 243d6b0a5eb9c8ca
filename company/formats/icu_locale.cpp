#include "company/formats/icu_locale.h"

#include <unicode/udat.h>
#include <unicode/uloc.h>
#include <unicode/unum.h>
#include <unicode/ures.h>
#include <unicode/ustring.h>

#include "host/error.h"

namespace varnel::company {

namespace {

constexpr std::u16string_view kNarrowNoBreakSpace = u"\u202F";
constexpr std::u16string_view kNoBreakSpace = u"\u00A0";

[[noreturn]] void RaiseUnknownLocale(std::string_view locale) {
    throw Error(error_number::kInvalidArgument, "Formats",
                "There is no locale \"" + std::string(locale) +
                    "\"; name a language and a country, for example en-CA or fr-CA");
}

std::string ToUtf8(std::u16string_view text) {
    char buffer[256];
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8(buffer, sizeof buffer, &length, text.data(), static_cast<std::int32_t>(text.size()),
                &status);
    if (U_FAILURE(status)) return {};
    return {buffer, static_cast<std::size_t>(length)};
}

std::string Cleaned(std::u16string_view text) {
    std::u16string cleaned;
    for (const char16_t c : text) {
        const bool direction_mark = c == u'\u200E' || c == u'\u200F' || c == u'\u061C';
        if (c == kNarrowNoBreakSpace[0])
            cleaned += kNoBreakSpace;
        else if (!direction_mark)
            cleaned += c;
    }
    return ToUtf8(cleaned);
}

/// Calls an ICU function that writes text: `write(buffer, capacity, status)`.
template <class Write>
std::string TextFrom(Write write) {
    UChar buffer[128];
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t length = write(buffer, 128, &status);
    if (U_FAILURE(status) || length < 0 || length > 128) return {};
    return Cleaned({buffer, static_cast<std::size_t>(length)});
}

std::string IcuName(std::string_view locale) {
    char name[ULOC_FULLNAME_CAPACITY] = "";
    UErrorCode status = U_ZERO_ERROR;
    uloc_canonicalize(std::string(locale).c_str(), name, sizeof name, &status);
    const bool names_language = name[0] != '\0' && std::string_view(name) != "root";
    if (U_FAILURE(status) || !names_language) RaiseUnknownLocale(locale);
    const icu::LocalUResourceBundlePointer data(ures_open(nullptr, name, &status));
    // The data of another language, taken for want of any, is not what was asked for.
    if (U_FAILURE(status) || status == U_USING_DEFAULT_WARNING) RaiseUnknownLocale(locale);
    status = U_ZERO_ERROR;
    uloc_setKeywordValue("numbers", "latn", name, sizeof name, &status);
    uloc_setKeywordValue("calendar", "gregorian", name, sizeof name, &status);
    if (U_FAILURE(status)) RaiseUnknownLocale(locale);
    return name;
}

void ReadGrouping(UNumberFormat* format, NumberStyle& style) {
    style.first_group = unum_getAttribute(format, UNUM_GROUPING_USED) != 0
                            ? unum_getAttribute(format, UNUM_GROUPING_SIZE)
                            : 0;
    const int further = unum_getAttribute(format, UNUM_SECONDARY_GROUPING_SIZE);
    style.further_groups = further > 0 ? further : style.first_group;
}

NumberStyle ReadNumberStyle(UNumberFormat* format) {
    const auto symbol = [format](UNumberFormatSymbol which) {
        return TextFrom([=](UChar* buffer, std::int32_t capacity, UErrorCode* status) {
            return unum_getSymbol(format, which, buffer, capacity, status);
        });
    };
    const auto affix = [format](UNumberFormatTextAttribute which) {
        return TextFrom([=](UChar* buffer, std::int32_t capacity, UErrorCode* status) {
            return unum_getTextAttribute(format, which, buffer, capacity, status);
        });
    };
    NumberStyle style;
    style.decimal_mark = symbol(UNUM_DECIMAL_SEPARATOR_SYMBOL);
    style.group_mark = symbol(UNUM_GROUPING_SEPARATOR_SYMBOL);
    style.negative_prefix = affix(UNUM_NEGATIVE_PREFIX);
    style.negative_suffix = affix(UNUM_NEGATIVE_SUFFIX);
    ReadGrouping(format, style);
    return style;
}

std::string ReadShortDatePattern(const char* locale) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUDateFormatPointer format(
        udat_open(UDAT_NONE, UDAT_SHORT, locale, nullptr, 0, nullptr, 0, &status));
    if (U_FAILURE(status)) return {};
    return TextFrom([&](UChar* buffer, std::int32_t capacity, UErrorCode* error) {
        return udat_toPattern(format.getAlias(), 0, buffer, capacity, error);
    });
}

}  // namespace

LocaleData ReadLocale(std::string_view locale) {
    const std::string name = IcuName(locale);
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUNumberFormatPointer format(
        unum_open(UNUM_DECIMAL, nullptr, 0, name.c_str(), nullptr, &status));
    if (U_FAILURE(status)) RaiseUnknownLocale(locale);
    return {ReadNumberStyle(format.getAlias()), ReadShortDatePattern(name.c_str())};
}

}  // namespace varnel::company
