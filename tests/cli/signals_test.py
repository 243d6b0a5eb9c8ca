import signal
import time

from varnel import JOURNAL, SLOW_FILTER, VarnelTest, main

ENDLESS_FILTER = ("(WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n)"
                  " SELECT max(x) FROM n) > 0")


class Signals(VarnelTest):
    def start_run(self, filter_text):
        """Starts a long run and waits until its unfinished file is there."""
        before = set(self.folder.iterdir())
        process = self.start(*JOURNAL, "--filter", filter_text, "-o", "journal.pdf")
        until = time.monotonic() + 20
        while set(self.folder.iterdir()) == before and time.monotonic() < until:
            time.sleep(0.01)
        self.assertNotEqual(before, set(self.folder.iterdir()))
        return process

    def assert_stopped(self, process, code):
        _, errors = process.communicate(timeout=30)
        self.assertEqual(code, process.returncode)
        self.assertEqual(["shop.db"], [path.name for path in self.folder.iterdir()])
        return errors.decode()

    def test_a_signal_cancels_the_run_and_leaves_nothing_behind(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number=number):
                process = self.start_run(SLOW_FILTER)
                process.send_signal(number)
                self.assert_stopped(process, 128 + number)

    def test_a_signal_ends_a_query_that_finds_no_row(self):
        process = self.start_run(ENDLESS_FILTER)
        time.sleep(0.2)
        process.send_signal(signal.SIGINT)
        self.assertEqual("varnel: interrupted; no file was written\n",
                         self.assert_stopped(process, 130))

    def test_a_demo_that_is_interrupted_leaves_nothing_behind(self):
        process = self.start("demo", "big.db", "--lines", "3000000")
        time.sleep(0.5)
        process.send_signal(signal.SIGINT)
        self.assert_stopped(process, 130)


if __name__ == "__main__":
    main()
