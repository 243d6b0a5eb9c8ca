#include "company/texts/messages.h"

#include <array>

namespace varnel::company {

namespace {

struct MessageText {
    std::int32_t number;
    std::string_view source, english, french;
};

constexpr std::array kMessages{
    MessageText{12802, kMessageSource, "Inventory adjustments are posted to the ledger from {0}.",
                "Les ajustements d'inventaire sont reportés au grand livre depuis le {0}."},
};

std::string TextOf(std::int32_t number, std::string_view source, Language language) {
    for (const auto& message : kMessages)
        if (message.number == number && SameName(message.source, source))
            return std::string(language == Language::kFrench ? message.french : message.english);
    return std::to_string(number) + " (" + std::string(source) + ")";
}

}  // namespace

HostMessages::HostMessages(Language language, Formats& formats, Sink sink)
    : language_(language), formats_(formats), sink_(std::move(sink)) {}

void HostMessages::AppendArgument(const Variant& argument, std::string& out) {
    if (argument.Holds<Date>()) return formats_.AppendShortDate(argument.ToDate(), out);
    if (argument.Holds<Currency>()) return formats_.AppendAmount(argument.ToCurrency(), out);
    if (!argument.IsNull()) out += argument.ToText();
}

// One pass from left to right, so that an argument that looks like a place is not filled again.
std::string HostMessages::Message(std::int32_t number, std::string_view source,
                                  std::span<const Variant> arguments) {
    const std::string pattern = TextOf(number, source, language_);
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool place = pattern[i] == '{' && i + 2 < pattern.size() && pattern[i + 2] == '}';
        const auto index = place ? static_cast<std::size_t>(pattern[i + 1] - '0') : 10;
        if (index >= arguments.size()) {
            text += pattern[i];
            continue;
        }
        AppendArgument(arguments[index], text);
        i += 2;
    }
    return text;
}

void HostMessages::ShowMessageBox(const std::string& text) {
    ++boxes_shown_;
    if (sink_) sink_(text);
}

}  // namespace varnel::company
