#include "cli/message_log.h"

#include <utility>

namespace varnel::cli {

namespace {

constexpr std::int64_t kShownInFull = 20;

}  // namespace

void MessageLog::Add(const std::string& text) {
    ++count_;
    if (count_ <= kShownInFull) console_.Say(text);
    if (count_ == kShownInFull + 1) console_.Say("further messages are counted but not shown");
}

void MessageLog::AddLoss(const std::string& text) {
    if (!std::exchange(lost_, true)) Add(text);
}

void MessageLog::AddMissingText(std::int16_t number) {
    console_.Say("text " + std::to_string(number) +
                 " is missing in this language; its number stands in its place");
}

}  // namespace varnel::cli
