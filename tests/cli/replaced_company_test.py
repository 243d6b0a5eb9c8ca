"""Companies that take the place of another file."""

import os
import shutil
import signal
import sqlite3
import stat
import time

from varnel import VarnelTest, main

FAILED = 1
# More pages than the cache holds, so that the file and its journal are both on disk.
LONG_CHANGE = ("PRAGMA cache_size = 5; BEGIN; CREATE TABLE Filler AS WITH RECURSIVE n(i) AS "
               "(SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) SELECT i FROM n; "
               "UPDATE GLDet SET DetAmnt = DetAmnt + 1; UPDATE GLAcct SET Descr = 'Changed'")


class ReplacedCompany(VarnelTest):
    def setUp(self):
        self.remove_all_but_the_shop()

    def names(self):
        return sorted(place.name for place in self.folder.iterdir())

    def leave_journal(self, mode):
        """other.db as a program that was killed while it wrote leaves it."""
        shutil.copy(self.folder / "shop.db", self.folder / "live.db")
        connection = sqlite3.connect(self.folder / "live.db", isolation_level=None)
        connection.execute(f"PRAGMA journal_mode = {mode}")
        connection.executescript(LONG_CHANGE)
        if mode == "WAL":
            connection.execute("COMMIT")
        for ending in ("", "-wal", "-shm", "-journal"):
            if (self.folder / f"live.db{ending}").exists():
                shutil.copy(self.folder / f"live.db{ending}", self.folder / f"other.db{ending}")
        connection.close()
        (self.folder / "live.db").unlink()

    def assert_is_shop(self, name):
        def rows(file):
            with sqlite3.connect(self.folder / file) as connection:
                self.assertEqual([("ok",)], connection.execute("PRAGMA integrity_check").fetchall())
                return [connection.execute(f"SELECT * FROM {table} ORDER BY 1").fetchall()
                        for table in ("GLAcct", "GLDet")]
        self.assertEqual(rows("shop.db"), rows(name))

    def test_a_journal_of_the_company_that_was_there_goes_with_it(self):
        for mode, journal in (("WAL", "other.db-wal"), ("DELETE", "other.db-journal")):
            for there in (True, False):
                with self.subTest(mode=mode, there=there):
                    self.leave_journal(mode)
                    self.assertIn(journal, self.names())
                    if not there:
                        (self.folder / "other.db").unlink()
                        self.assert_refused(FAILED, journal, "copy", "shop.db", "other.db")
                    self.assertEqual(
                        0, self.run_varnel("copy", "shop.db", "other.db", "--force")[0])
                    self.assertEqual(["other.db", "shop.db"], self.names())
                    self.assert_is_shop("other.db")

    def test_a_company_that_somebody_writes_to_is_not_replaced(self):
        for mode, statement in (("WAL", "SELECT 1 FROM GLAcct"), ("DELETE", "BEGIN IMMEDIATE")):
            with self.subTest(mode=mode):
                shutil.copy(self.folder / "shop.db", self.folder / "other.db")
                connection = sqlite3.connect(self.folder / "other.db", isolation_level=None)
                connection.execute(f"PRAGMA journal_mode = {mode}")
                connection.execute(statement).fetchall()
                for command in (["demo", "other.db"], ["copy", "shop.db", "other.db"]):
                    self.assert_refused(FAILED, "another program has it open", *command, "--force")
                connection.execute("UPDATE GLAcct SET Descr = 'Changed'")
                connection.close()

    def test_permissions_and_links_stay(self):
        books = self.folder / "books.db"
        books.write_text("")
        books.chmod(0o600)
        (self.folder / "link.db").symlink_to("books.db")
        self.assertEqual(0, self.run_varnel("copy", "shop.db", "link.db", "--force")[0])
        self.assertEqual("books.db", os.readlink(self.folder / "link.db"))
        self.assertEqual(0o600, stat.S_IMODE(books.stat().st_mode))
        self.assert_is_shop("books.db")

    def test_a_new_company_has_the_permissions_of_any_new_file(self):
        before = os.umask(0o027)
        self.addCleanup(os.umask, before)
        self.assertEqual(0, self.run_varnel("copy", "shop.db", "other.db")[0])
        self.assertEqual(0o640, stat.S_IMODE((self.folder / "other.db").stat().st_mode))

    def test_links_in_a_circle_are_refused(self):
        (self.folder / "a.db").symlink_to("b.db")
        (self.folder / "b.db").symlink_to("a.db")
        self.assert_refused(FAILED, "circle", "copy", "shop.db", "a.db", "--force")

    def test_files_with_similar_names_are_left_alone(self):
        mine = self.folder / "other.db.unfinished"
        mine.write_text("precious")
        self.assertEqual(0, self.run_varnel("copy", "shop.db", "other.db")[0])
        self.assertEqual("precious", mine.read_text())

    def test_a_copy_holds_a_file_as_it_was_at_the_start(self):
        shutil.copy(self.folder / "shop.db", self.folder / "live.db")
        connection = sqlite3.connect(self.folder / "live.db", isolation_level=None)
        connection.execute("PRAGMA journal_mode = WAL")
        process = self.stopped_in_its_work("copy", "live.db", "other.db")
        for table, in connection.execute("SELECT name FROM sqlite_schema WHERE type = 'table' "
                                         "AND name NOT LIKE 'sqlite%'").fetchall():
            connection.execute(f"DELETE FROM {table}")
        process.send_signal(signal.SIGCONT)
        process.communicate(timeout=30)
        self.assertEqual(0, process.returncode)
        self.assert_is_shop("other.db")
        connection.close()

    def stopped_in_its_work(self, *arguments):
        """The program, stopped when its unfinished file is there."""
        before = self.names()
        process = self.start(*arguments)
        until = time.monotonic() + 20
        while (not [name for name in self.names() if name.startswith(".varnel-")]
               and time.monotonic() < until):
            pass
        process.send_signal(signal.SIGSTOP)
        self.assertLess(len(before), len(self.names()))
        return process

    def test_a_second_signal_ends_it_at_once_without_the_unfinished_file(self):
        process = self.stopped_in_its_work("demo", "big.db", "--lines", "3000000")
        # Both come before it can clean up by itself.
        process.send_signal(signal.SIGINT)
        process.send_signal(signal.SIGTERM)
        process.send_signal(signal.SIGCONT)
        process.communicate(timeout=30)
        self.assertIn(process.returncode, (130, 143))
        self.assertEqual(["shop.db"], self.names())


if __name__ == "__main__":
    main()
