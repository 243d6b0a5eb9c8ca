// Apart from the screen: <term.h> makes macros of words like "columns".
#include "cli/dialogs/terminal_ability.h"

#include <curses.h>
#include <fcntl.h>
#include <term.h>
#include <unistd.h>

namespace varnel::cli {

namespace {

bool CanPlaceCursor(int terminal) {
    int ignored = 0;
    if (::setupterm(nullptr, terminal, &ignored) != OK) return false;
    // The library answers -1 for what is no text.
    const char* const sequence = ::tigetstr("cup");
    const bool can = sequence != nullptr && sequence != reinterpret_cast<const char*>(-1);
    ::del_curterm(cur_term);
    return can;
}

}  // namespace

bool TerminalShowsDialogs() {
    const int terminal = ::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY);
    if (terminal < 0) return false;
    const bool can = CanPlaceCursor(terminal);
    ::close(terminal);
    return can;
}

}  // namespace varnel::cli
