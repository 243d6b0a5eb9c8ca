#include "drivers/query_faults.h"

namespace varnel::drivers {

namespace {

std::string Count(std::size_t count, const std::string& noun) {
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

}  // namespace

std::string WrongParameterCount(std::size_t wanted, std::size_t given) {
    return "The statement has " + Count(wanted, "parameter") + "; " + Count(given, "value") +
           " came with it.";
}

std::string MoreThanOneStatement(std::string_view first_word) {
    return "A command is one statement; another one begins at \"" + std::string(first_word) + "\".";
}

std::string TimeLimitReached(int seconds) {
    return "The query was stopped after " + Count(static_cast<std::size_t>(seconds), "second") +
           ", its time limit: narrow it or raise the limit.";
}

}  // namespace varnel::drivers
