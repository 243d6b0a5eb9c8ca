#include "cli/dialogs/terminal_screen.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <climits>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cwchar>
#include <string>

#define NCURSES_NOMACROS
#include <curses.h>

#include "cli/errors.h"
#include "cli/interrupt.h"
#include "render/text/cell_width.h"

namespace varnel::cli {

namespace {

constexpr int kWait = 100;         // Milliseconds, for input: signals are looked at in between.
constexpr int kEscapeDelay = 100;  // Milliseconds that the rest of a key's sequence may take.
constexpr wint_t kEscape = 27;

/// Captions are UTF-8, also where the locale says something else.
class Utf8Locale {
  public:
    Utf8Locale() : former_(std::setlocale(LC_CTYPE, nullptr)) {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
    ~Utf8Locale() { std::setlocale(LC_CTYPE, former_.c_str()); }
    Utf8Locale(const Utf8Locale&) = delete;
    Utf8Locale& operator=(const Utf8Locale&) = delete;

  private:
    std::string former_;
};

/// Signals that curses handles and does not give back.
class KeptSignals {
  public:
    KeptSignals() {
        for (std::size_t i = 0; i < kSignals.size(); ++i)
            ::sigaction(kSignals[i], nullptr, &actions_[i]);
    }
    ~KeptSignals() {
        for (std::size_t i = 0; i < kSignals.size(); ++i)
            ::sigaction(kSignals[i], &actions_[i], nullptr);
    }
    KeptSignals(const KeptSignals&) = delete;
    KeptSignals& operator=(const KeptSignals&) = delete;

  private:
    static constexpr std::array kSignals{SIGTSTP, SIGWINCH, SIGINT, SIGTERM};
    std::array<struct sigaction, kSignals.size()> actions_{};
};

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

/// Puts a text on the screen as far as it lies there.
void Put(int row, int column, std::string_view text) {
    if (row < 0 || row >= ::getmaxy(stdscr) || column < 0) return;
    std::string cells;
    render::AppendCells(cells, text);
    cells.resize(render::CellPrefix(cells, std::max(0, ::getmaxx(stdscr) - column)));
    ::mvaddstr(row, column, cells.c_str());
}

std::string Repeated(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

void DrawFrame(const DialogLayout& layout) {
    const auto& frame = layout.frame;
    const std::string edge = Repeated("─", frame.columns - 2);
    Put(frame.top, frame.left, "┌" + edge + "┐");
    for (int row = frame.top + 1; row < frame.Bottom() - 1; ++row) {
        Put(row, frame.left, "│");
        Put(row, frame.Right() - 1, "│");
    }
    Put(frame.Bottom() - 1, frame.left, "└" + edge + "┘");
    Put(layout.close_mark.top, layout.close_mark.left, "[×]");

    const int room = frame.columns - 2 - 2 * (layout.close_mark.columns + 1);
    const std::string title = layout.title.substr(0, render::CellPrefix(layout.title, room));
    ::attron(A_BOLD);
    Put(frame.top, frame.left + (frame.columns - render::CellWidth(title) - 2) / 2,
        " " + title + " ");
    ::attroff(A_BOLD);
}

void DrawCaption(const PlacedItem& item, int column) {
    const auto& caption = item.caption;
    for (std::size_t i = 0; i < caption.lines.size(); ++i)
        Put(item.area.top + static_cast<int>(i), column, caption.lines[i]);
    if (caption.accelerator.empty()) return;
    const auto& line = caption.lines[caption.accelerator_line];
    const int before = render::CellWidth(line.substr(0, caption.accelerator_offset));
    ::attron(A_UNDERLINE | A_BOLD);
    Put(item.area.top + static_cast<int>(caption.accelerator_line), column + before,
        caption.accelerator);
    ::attroff(A_UNDERLINE | A_BOLD);
}

void DrawItem(const PlacedItem& item) {
    const auto& area = item.area;
    if (item.box != nullptr) {
        Put(area.top, area.left, item.box->checked ? "[x] " : "[ ] ");
        DrawCaption(item, area.left + kMarkColumns);
    } else {
        Put(area.top, area.left, "< ");
        Put(area.Bottom() - 1, area.Right() - 2, " >");
        DrawCaption(item, area.left + 2);
    }
}

std::string ToUtf8(wint_t character) {
    std::array<char, MB_LEN_MAX> bytes{};
    std::mbstate_t state{};
    const auto size = std::wcrtomb(bytes.data(), static_cast<wchar_t>(character), &state);
    return size == static_cast<std::size_t>(-1) ? std::string() : std::string(bytes.data(), size);
}

void PassMouse(DialogModel& dialog) {
    MEVENT event;
    if (::getmouse(&event) == OK && (event.bstate & BUTTON1_PRESSED) != 0)
        dialog.ClickAt(event.y, event.x);
}

/// Escape alone closes; what follows it at once was pressed together with Alt.
void PassEscape(DialogModel& dialog) {
    ::timeout(0);
    wint_t next = 0;
    const int kind = ::get_wch(&next);
    ::timeout(kWait);
    if (kind != OK || next == kEscape) return dialog.Press(DialogKey::kClose);
    dialog.PressCharacter(ToUtf8(next));
}

void PassCharacter(wint_t character, DialogModel& dialog) {
    switch (character) {
        case '\t':
            return dialog.Press(DialogKey::kNext);
        case ' ':
            return dialog.Press(DialogKey::kSpace);
        case '\n':
        case '\r':
            return dialog.Press(DialogKey::kEnter);
        case kEscape:
            return PassEscape(dialog);
        default:
            return dialog.PressCharacter(ToUtf8(character));
    }
}

void PassKey(wint_t key, DialogModel& dialog) {
    switch (key) {
        case KEY_DOWN:
        case KEY_RIGHT:
            return dialog.Press(DialogKey::kNext);
        case KEY_UP:
        case KEY_LEFT:
        case KEY_BTAB:
            return dialog.Press(DialogKey::kPrevious);
        case KEY_ENTER:
            return dialog.Press(DialogKey::kEnter);
        case KEY_MOUSE:
            return PassMouse(dialog);
        default:
            return;
    }
}

}  // namespace

struct TerminalScreen::Terminal {
    Utf8Locale locale;
    KeptSignals signals;
    File output{std::fopen("/dev/tty", "w")};
    File input{std::fopen("/dev/tty", "r")};
    SCREEN* screen = nullptr;

    ~Terminal() {
        if (screen == nullptr) return;
        ::endwin();
        ::delscreen(screen);
    }
};

TerminalScreen::TerminalScreen() : terminal_(std::make_unique<Terminal>()) {
    auto& terminal = *terminal_;
    if (terminal.output != nullptr && terminal.input != nullptr)
        terminal.screen = ::newterm(nullptr, terminal.output.get(), terminal.input.get());
    if (terminal.screen == nullptr) throw UsageError("there is no terminal to show a dialog on");
    ::cbreak();
    ::noecho();
    ::keypad(stdscr, TRUE);
    ::set_escdelay(kEscapeDelay);
    ::timeout(kWait);
    ::mousemask(BUTTON1_PRESSED, nullptr);
    ::mouseinterval(0);  // A press is one at once, without a wait for a double click.
}

TerminalScreen::~TerminalScreen() = default;

ScreenSize TerminalScreen::Size() const { return {::getmaxy(stdscr), ::getmaxx(stdscr)}; }

void TerminalScreen::Draw(const DialogModel& dialog) {
    const auto& layout = dialog.Layout();
    ::erase();
    DrawFrame(layout);
    for (std::size_t i = 0; i < layout.items.size(); ++i) {
        const bool focused = i == dialog.Focus();
        if (focused) ::attron(A_REVERSE);
        DrawItem(layout.items[i]);
        if (focused) ::attroff(A_REVERSE);
    }
    if (dialog.Focus() < layout.items.size()) {
        const auto& area = layout.items[dialog.Focus()].area;
        ::move(area.top, area.left + 1);  // For those who read the screen by its cursor.
    }
    ::refresh();
}

void TerminalScreen::PassInput(DialogModel& dialog) {
    wint_t character = 0;
    const int kind = ::get_wch(&character);
    ThrowIfInterrupted();
    if (kind == OK) return PassCharacter(character, dialog);
    if (kind == KEY_CODE_YES && character == KEY_RESIZE) return dialog.Resize(Size());
    if (kind == KEY_CODE_YES) return PassKey(character, dialog);
    pollfd terminal{::fileno(terminal_->input.get()), 0, 0};
    if (::poll(&terminal, 1, 0) > 0) throw Failure("the terminal of the dialog is gone");
}

}  // namespace varnel::cli
