#include "cli/console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace varnel::cli {

namespace {

constexpr auto kQuietTime = std::chrono::seconds(1);
constexpr auto kProgressInterval = std::chrono::milliseconds(200);

bool IsSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool TerminalKnowsSequences() {
    const char* terminal = std::getenv("TERM");
    return terminal != nullptr && *terminal != '\0' && std::string_view(terminal) != "dumb";
}

void Print(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stderr); }

/// Line breaks become LF and an indent, so that a text of several lines stays one thing.
std::string Indented(std::string_view text) {
    while (text.ends_with('\n') || text.ends_with('\r')) text.remove_suffix(1);
    std::string lines;
    for (const char c : text) {
        if (c == '\r') continue;
        const bool is_control = (c >= '\0' && c < ' ' && c != '\n') || c == '\x7f';
        lines += is_control ? ' ' : c;
        if (c == '\n') lines += "  ";
    }
    return lines;
}

}  // namespace

bool IsTerminal(int descriptor) { return ::isatty(descriptor) == 1; }

int TerminalColumns() {
    winsize size{};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return 0;
    return size.ws_col;
}

bool UsesTerminalStyles() {
    return IsTerminal(STDOUT_FILENO) && TerminalKnowsSequences() && !IsSet("NO_COLOR");
}

Console::Console()
    : has_progress_(IsTerminal(STDERR_FILENO) && TerminalKnowsSequences()),
      next_progress_(Clock::now() + kQuietTime) {}

void Console::Say(std::string_view text) {
    EraseProgress();
    Print("varnel: " + Indented(text) + "\n");
}

bool Console::ProgressIsDue() { return has_progress_ && Clock::now() >= next_progress_; }

void Console::ShowProgress(std::string_view text) {
    Print("\r\x1b[K" + std::string(text));
    progress_shown_ = true;
    next_progress_ = Clock::now() + kProgressInterval;
}

void Console::EraseProgress() {
    if (progress_shown_) Print("\r\x1b[K");
    progress_shown_ = false;
}

std::string GroupedCount(long long count) {
    std::string digits = std::to_string(count);
    for (auto place = static_cast<int>(digits.size()) - 3; place > 0; place -= 3)
        digits.insert(static_cast<std::size_t>(place), 1, ',');
    return digits;
}

}  // namespace varnel::cli
