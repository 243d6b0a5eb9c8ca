#include "framework/texts.h"

#include <algorithm>

namespace varnel::framework {

std::string WithoutAccelerators(std::string_view text) {
    std::string plain(text);
    std::erase(plain, '&');
    return plain;
}

std::string PlainText(Application& application, std::int16_t number) {
    return WithoutAccelerators(application.GetText(number));
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string ShortDate(Application& application, Date date) {
    std::string text;
    application.GetFormats().AppendShortDate(date, text);
    return text;
}

}  // namespace varnel::framework
