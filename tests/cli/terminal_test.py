import fcntl
import os
import pty
import struct
import termios

from varnel import JANUARY, JOURNAL, SLOW_FILTER, VarnelTest, main

FOUR_MONTHS = [*JOURNAL, "--from", "2025-01-01", "--to", "2025-04-30"]
BOLD = "\x1b[1m"


def read_all(descriptor):
    data = b""
    while True:
        try:
            block = os.read(descriptor, 65536)
        except OSError:  # The other side is closed.
            return data.decode()
        if not block:
            return data.decode()
        data += block


class Terminal(VarnelTest):
    def show(self, stream, *arguments, command=JANUARY, columns=100, **environment):
        """Exit code and what came on a terminal that is `stream` of the program."""
        ours, theirs = pty.openpty()
        fcntl.ioctl(theirs, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        unset = {} if "NO_COLOR" in environment else {"NO_COLOR": ""}
        process = self.start(*command, *arguments,
                             env={"TERM": "xterm", **unset, **environment}, **{stream: theirs})
        os.close(theirs)
        shown = read_all(ours)
        os.close(ours)
        process.communicate(timeout=60)
        return process.returncode, shown

    def widest_line(self, shown):
        plain = shown.replace(BOLD, "").replace("\x1b[0m", "").replace("\x1b[22m", "")
        return max(len(line) for line in plain.splitlines())

    def test_text_takes_the_width_of_the_terminal_but_80_columns_at_least(self):
        for columns, width in ((100, 100), (160, 160), (40, 80)):
            code, shown = self.show("stdout", columns=columns)
            self.assertEqual((0, width), (code, self.widest_line(shown)))

    def test_bold_is_for_terminals_without_no_color(self):
        self.assertIn(BOLD, self.show("stdout")[1])
        self.assertNotIn("\x1b", self.show("stdout", NO_COLOR="1")[1])
        self.assertNotIn("\x1b", self.show("stdout", TERM="dumb")[1])
        self.assertNotIn("\x1b", self.show("stdout", "-O", "csv")[1])

    def test_a_pdf_is_not_shown_on_a_terminal(self):
        self.assertEqual(2, self.show("stdout", "-O", "pdf")[0])
        self.assertEqual(2, self.show("stdout", "-O", "pdf", "-o", "-")[0])
        self.assertEqual((0, ""), self.show("stdout", "-o", "january.pdf"))

    def test_a_slow_run_shows_progress_and_erases_it(self):
        code, shown = self.show("stderr", "--filter", SLOW_FILTER, "-o", "slow.pdf",
                                command=FOUR_MONTHS)
        self.assertEqual(0, code)
        self.assertRegex(shown, r"\d+ rows, \d+ pages")
        self.assertTrue(shown.endswith("\r\x1b[K"))

    def test_progress_does_not_run_into_a_report_on_the_same_terminal(self):
        ours, theirs = pty.openpty()
        process = self.start(*FOUR_MONTHS, "--filter", SLOW_FILTER, env={"TERM": "xterm"},
                             stdout=theirs, stderr=theirs)
        os.close(theirs)
        shown = read_all(ours)
        os.close(ours)
        self.assertEqual(0, process.wait())
        self.assertNotIn("\x1b[K", shown)

    def test_a_quick_run_shows_no_progress(self):
        self.assertEqual((0, ""), self.show("stderr", "-o", "quick.csv"))


if __name__ == "__main__":
    main()
