#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace varnel::cli {

/// Whether standard output or standard error is a terminal.
bool IsTerminal(int descriptor);

/// Columns of the terminal on standard output; 0 when it is none or does not say.
int TerminalColumns();

/// Whether standard output may carry terminal sequences: it is a terminal that knows them, and
/// NO_COLOR is not set.
bool UsesTerminalStyles();

/// What the program says on standard error: lines that stay, and on a terminal one line of progress
/// that comes when the work is slow and goes before anything else is said.
class Console {
  public:
    Console();
    ~Console() { EraseProgress(); }
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Prints "varnel: " and the text; its further lines are indented. Control characters
    /// become blanks: no text can steer the terminal.
    void Say(std::string_view text);

    /// For work that writes to the terminal itself.
    void SwitchProgressOff() { has_progress_ = false; }
    /// True when a line of progress is due: asked often, it is so a few times a second.
    bool ProgressIsDue();
    void ShowProgress(std::string_view text);
    void EraseProgress();

  private:
    using Clock = std::chrono::steady_clock;

    bool has_progress_;
    bool progress_shown_ = false;
    Clock::time_point next_progress_;
};

/// "1,234,567".
std::string GroupedCount(long long count);

}  // namespace varnel::cli
