"""The dialogs of reports on a terminal: keys, mouse, captions, and what the terminal is left as."""

import os
import pathlib
import subprocess
import tempfile
import time
import unittest

PROGRAM = os.environ["DIALOGS"]
TAB, ENTER, ESCAPE, INTERRUPT = "\t", "\r", "\x1b", "\x03"
BACK_TAB, DOWN, UP = "\x1b[Z", "\x1bOB", "\x1bOA"
ZERO = "chkIncludeZeroBalanceAccount"

# The terminal's settings before and after; a plain locale, which must spoil no caption.
SCRIPT = """trap : INT  # The program ends, this goes on.
stty -g >before
LC_ALL=C %s >left
echo $? >code
stty -g >after
exec sleep 600
"""


class Pane:
    """The program in a terminal of its own, which is not its standard output."""

    def __init__(self, test, *arguments, rows=24, columns=80):
        temporary = tempfile.TemporaryDirectory()
        test.addCleanup(temporary.cleanup)
        test.addCleanup(self.tmux, "kill-server")
        self.folder = pathlib.Path(temporary.name)
        (self.folder / "script").write_text(SCRIPT % " ".join([PROGRAM, *arguments]))
        self.tmux("-f", "/dev/null", "new-session", "-d", "-x", str(columns), "-y", str(rows),
                  "sh script")
        self.wait_until(lambda: " >" in self.screen())

    def tmux(self, *arguments):
        command = ["tmux", "-u", "-S", self.folder / "socket", *arguments]
        environment = {**os.environ, "LC_ALL": "C.UTF-8"}
        return subprocess.run(command, cwd=self.folder, env=environment, text=True, check=True,
                              stdout=subprocess.PIPE).stdout

    def screen(self):
        return self.tmux("capture-pane", "-p")

    def wait_until(self, holds):
        until = time.monotonic() + 20
        while not holds():
            if time.monotonic() > until:
                raise AssertionError("the terminal shows\n" + self.screen())
            time.sleep(0.02)

    def type(self, *keys):
        for key in keys:
            self.tmux("send-keys", "-H", *(f"{byte:x}" for byte in key.encode()))

    def click(self, text):
        """Presses and releases the left button on a text of the screen."""
        for row, line in enumerate(self.screen().splitlines()):
            if text in line:
                column = line.index(text)
                for button in " #":
                    self.type("\x1b[M" + button + chr(33 + column) + chr(33 + row))
                return
        raise AssertionError(f"{text} is not on\n{self.screen()}")

    def end(self):
        """Exit code and what the program printed, when it has put the terminal back."""
        after = self.folder / "after"
        self.wait_until(lambda: after.exists() and after.read_text())
        self.wait_until(
            lambda: self.tmux("display-message", "-p", "#{alternate_on} #{mouse_any_flag}")
            == "0 0\n")
        if after.read_text() != (self.folder / "before").read_text():
            raise AssertionError("the terminal has other settings than before")
        return int((self.folder / "code").read_text()), (self.folder / "left").read_text()


class Dialogs(unittest.TestCase):
    def after(self, *keys, dialog="balances", answers=()):
        """What the options are when a person has pressed those keys."""
        pane = Pane(self, dialog, "en", "ask", *answers)
        pane.type(*keys)
        code, printed = pane.end()
        self.assertEqual(0, code, printed)
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
        self.assertEqual("included", self.after(ENTER, answers=[ZERO + "=yes"]))
        self.assertEqual("left out", self.after(" ", ENTER, answers=[ZERO + "=1"]))

    def test_the_mouse_turns_boxes_over_presses_ok_and_closes(self):
        for dialog, clicks, left in (
                ("balances", ["zero balance", "< OK"], "included"),
                ("balances", ["[ ]", "[×]"], "included"),
                ("bank", ["[ ]", "[×]"], "left out"), ("bank", ["[ ]", "< OK"], "included")):
            with self.subTest(dialog=dialog, clicks=clicks):
                pane = Pane(self, dialog, "en", "ask")
                for text in clicks:
                    pane.click(text)
                self.assertEqual((0, left + "; 0 messages\n"), pane.end())

    def test_french_captions_wrap_in_a_narrow_terminal(self):
        pane = Pane(self, "comments", "fr", "ask", rows=12, columns=40)
        self.assertEqual("""\
┌─────────── Filtre avancé ─────────[×]┐
│                                      │
│  [ ] Afficher les comptes dont le    │
│      solde est à zéro                │
│  [ ] Afficher les commentaires       │
│      provenant du détail du journal  │
│      général                         │
│                                      │
│                < OK >                │
└──────────────────────────────────────┘""", pane.screen().strip())

    def test_a_new_size_of_the_terminal_draws_the_dialog_anew(self):
        pane = Pane(self, "balances", "en", "ask")
        pane.tmux("resize-window", "-x", "30", "-y", "12")
        pane.wait_until(lambda: "[×]┐" in pane.screen() and "zero\n" not in pane.screen()
                        and pane.screen().count("┘") == 1)
        pane.click("[ ]")
        pane.click("< OK")
        self.assertEqual((0, "included; 0 messages\n"), pane.end())

    def test_signals_put_the_terminal_back(self):
        pane = Pane(self, "balances", "en", "ask")
        pane.type(" ", INTERRUPT)
        self.assertEqual((130, ""), pane.end())

    def run_without_terminal(self, *arguments):
        process = subprocess.run([PROGRAM, *arguments], start_new_session=True, text=True,
                                 stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, timeout=60)
        return process.returncode, process.stdout

    def test_answers_need_no_terminal(self):
        for answer, left in ((ZERO + "=YES", "included"), (ZERO + "=0", "left out"),
                             ("show accounts with a zero balance=true", "included")):
            self.assertEqual((0, left + "; 0 messages\n"),
                             self.run_without_terminal("balances", "en", "answer", answer))

    def test_an_answer_to_no_box_names_those_that_there_are(self):
        code, printed = self.run_without_terminal("balances", "en", "answer", "chkOther=yes")
        self.assertEqual(2, code)
        self.assertIn('--option: The dialog "Advanced filter" has no check box "chkOther"; it has '
                      + ZERO, printed)

    def test_without_a_terminal_there_is_no_dialog(self):
        code, printed = self.run_without_terminal("balances", "en", "ask")
        self.assertEqual((2, "there is no terminal to show a dialog on\n"), (code, printed))


if __name__ == "__main__":
    unittest.main()
