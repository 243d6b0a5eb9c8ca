"""The dialogs of reports on a terminal: keys, mouse, captions, and what the terminal is left as."""

import fcntl
import os
import pty
import re
import select
import signal
import struct
import termios
import time
import unittest

PROGRAM = os.environ["DIALOGS"]
TAB, ENTER, ESCAPE = "\t", "\r", "\x1b"
BACK_TAB, DOWN, UP = "\x1b[Z", "\x1bOB", "\x1bOA"
# What the terminal is put back by: the screen before, and no mouse.
FORMER_SCREEN, NO_MOUSE = "\x1b[?1049l", "\x1b[?1006;1000l"


class Session:
    """The program on a terminal of its own, which is not its standard output."""

    def __init__(self, *arguments, rows=24, columns=80, **environment):
        self.output, standard_output = os.pipe()
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.dup2(standard_output, 1)
            # Escape sequences are those of this terminal; a plain locale spoils no caption.
            os.environ.update({"TERM": "xterm-256color", "LC_ALL": "C", **environment})
            time.sleep(0.05)  # Until the terminal has its size.
            os.execv(PROGRAM, [PROGRAM, *arguments])
        os.close(standard_output)
        self.resize(rows, columns)
        self.modes = termios.tcgetattr(self.terminal)
        self.shown = ""

    def resize(self, rows, columns):
        fcntl.ioctl(self.terminal, termios.TIOCSWINSZ, struct.pack("HHHH", rows, columns, 0, 0))

    def read_on(self, seconds):
        if not select.select([self.terminal], [], [], seconds)[0]:
            return False
        try:
            data = os.read(self.terminal, 65536)
        except OSError:  # The program has ended.
            return False
        self.shown += data.decode()
        return bool(data)

    def wait_for(self, text):
        until = time.monotonic() + 20
        while text not in self.shown:
            if time.monotonic() > until or (not self.read_on(1) and self.ended()):
                raise AssertionError(f"{text!r} does not come: {self.shown!r}")

    def ended(self):
        return os.waitid(os.P_PID, self.process, os.WEXITED | os.WNOHANG | os.WNOWAIT) is not None

    def type(self, *keys):
        for key in keys:
            os.write(self.terminal, key.encode())
            time.sleep(0.03)

    def click(self, text):
        """Presses and releases the left button on a text of the screen."""
        row, column = self.place_of(text)
        for end in "Mm":
            self.type(f"\x1b[<0;{column};{row}{end}")

    def place_of(self, text):
        """Where the cursor was sent to write that text, from 1."""
        before = self.shown[:self.shown.index(text)]
        row, column, since = re.findall(r"\x1b\[(\d+);(\d+)H([^\n]*)", before)[-1]
        return int(row), int(column) + len(re.sub(r"\x1b\[[^a-zA-Z]*[a-zA-Z]|\x1b\(B", "", since))

    def end(self):
        """Exit code, and what the program printed."""
        while self.read_on(20):
            pass
        printed = os.read(self.output, 4096).decode()
        os.close(self.output)
        os.close(self.terminal)
        return os.waitstatus_to_exitcode(os.waitpid(self.process, 0)[1]), printed


class Dialogs(unittest.TestCase):
    def after(self, *keys, dialog="balances", answers=(), shows="OK"):
        """What the options are when a person has pressed those keys."""
        session = Session(dialog, "en", "ask", *answers)
        session.wait_for(shows)
        session.type(*keys)
        code, printed = session.end()
        self.assertEqual(0, code, printed)
        self.assertIn(FORMER_SCREEN, session.shown)
        self.assertIn(NO_MOUSE, session.shown)
        self.assertTrue(printed.endswith("; 0 messages\n"), printed)
        return printed.removesuffix("; 0 messages\n")

    def test_keys_turn_boxes_over_and_press_ok(self):
        for keys, left in (
                ([ENTER], "left out"), ([" ", ENTER], "included"), ([" ", " ", ENTER], "left out"),
                (["z", ENTER], "included"), (["Z", "\x1bo"], "included"),
                ([TAB, " "], "left out"), ([" ", BACK_TAB, ENTER], "included")):
            with self.subTest(keys=keys):
                self.assertEqual(left, self.after(*keys))

    def test_both_options_are_reached(self):
        for keys, left in (([TAB, " ", ENTER], "left out, with comments"),
                           ([DOWN, DOWN, UP, " ", ENTER], "left out, with comments"),
                           (["\x1bc", "z", "o"], "included, with comments")):
            with self.subTest(keys=keys):
                self.assertEqual(left, self.after(*keys, dialog="comments"))

    def test_escape_is_the_close_box_of_the_dialog(self):
        self.assertEqual("included", self.after(" ", ESCAPE), "which keeps the choices here")
        self.assertEqual("left out", self.after(" ", ESCAPE, dialog="bank"), "but not here")
        self.assertEqual("included", self.after(" ", ENTER, dialog="bank"))

    def test_options_are_set_before_the_dialog_opens(self):
        zero = "chkIncludeZeroBalanceAccount"
        self.assertEqual("included", self.after(ENTER, answers=[zero + "=yes"], shows="[x]"))
        self.assertEqual("left out", self.after(" ", ENTER, answers=[zero + "=1"], shows="[x]"))

    def test_the_mouse_turns_boxes_over_presses_ok_and_closes(self):
        for dialog, clicks, left in (
                ("balances", ["ero balance", "< "], "included"),
                ("balances", ["[ ]", "[×]"], "included"),
                ("bank", ["[ ]", "[×]"], "left out"), ("bank", ["[ ]", "< "], "included")):
            with self.subTest(dialog=dialog, clicks=clicks):
                session = Session(dialog, "en", "ask")
                session.wait_for(" >")
                for text in clicks:
                    session.click(text)
                self.assertEqual((0, left + "; 0 messages\n"), session.end())

    def test_french_captions_wrap_in_a_narrow_terminal(self):
        session = Session("comments", "fr", "ask", columns=40)
        session.wait_for(" >")
        for text in ("Filtre avancé", "Afficher les comptes dont le", "solde est à ", "éro",
                     "ommentaires", "provenant du détail du", "journal général"):
            self.assertIn(text, session.shown)
        session.type(ENTER)
        self.assertEqual(0, session.end()[0])

    def test_a_new_size_of_the_terminal_draws_the_dialog_anew(self):
        session = Session("balances", "en", "ask", columns=80)
        session.wait_for(" >")
        session.shown = ""
        session.resize(12, 30)
        session.wait_for(" >")
        self.assertLessEqual(session.place_of("┐")[1], 30)
        session.click("[ ]")
        session.type(ENTER)
        self.assertEqual("included; 0 messages\n", session.end()[1])

    def test_an_interrupt_puts_the_terminal_back(self):
        for number in (signal.SIGINT, signal.SIGTERM):
            session = Session("balances", "en", "ask")
            session.wait_for(" >")
            if number == signal.SIGINT:
                session.type("\x03")
            else:
                os.kill(session.process, number)
            session.wait_for(NO_MOUSE)
            session.wait_for(FORMER_SCREEN)
            self.assertEqual(session.modes, termios.tcgetattr(session.terminal))
            self.assertEqual((128 + number, ""), session.end())

    def test_answers_need_no_terminal(self):
        for answer, left in (("chkIncludeZeroBalanceAccount=YES", "included"),
                             ("show accounts with a zero balance=true", "included"),
                             ("chkIncludeZeroBalanceAccount=0", "left out")):
            session = Session("balances", "en", "answer", answer, TERM="dumb")
            self.assertEqual((0, left + "; 0 messages\n"), session.end())
            self.assertEqual("", session.shown)

    def test_an_answer_to_no_box_names_those_that_there_are(self):
        code, printed = Session("balances", "en", "answer", "chkShowCommentsGLAccount=yes").end()
        self.assertEqual(2, code)
        self.assertIn('--option: The dialog "Advanced filter" has no check box '
                      '"chkShowCommentsGLAccount"; it has chkIncludeZeroBalanceAccount', printed)


if __name__ == "__main__":
    unittest.main()
