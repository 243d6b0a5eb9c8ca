"""What goes wrong with a company on a server is told, hangs nothing and leaves no half file."""

import contextlib
import pathlib
import socket
import subprocess
import tempfile
import time

from server import SERVER, ServerTest
from varnel import main

FAILED, MESSAGES = 1, 3
SERVER_SCRIPT = pathlib.Path(__file__).resolve().parents[1] / "support" / "postgres_server"
DETAIL = ["run", "trial-balance-detail", "--from", "2024-01-01", "--company"]
PLACE = r"in Varnel\.\w+\.\w+ at line [1-9]\d*\n"
# A condition that is true and takes a millisecond a row.
SLOW = "pg_sleep(0.001) IS NOT NULL"
# The rows of such a report: the look for tables before it is over at once.
LONG_FETCH = ("state = 'active' AND query LIKE '%FETCH FORWARD%' AND "
              "query_start < clock_timestamp() - interval '50 ms'")


class Failures(ServerTest):
    def setUp(self):
        (self.folder / "out.csv").unlink(missing_ok=True)
        self.sql(f"DROP DATABASE {self.database} WITH (FORCE)", "postgres")
        self.sql(f"CREATE DATABASE {self.database}", "postgres")
        self.copy("shop.db", self.server)

    def assert_told(self, message, *arguments, codes=(FAILED,), **options):
        """Ends soon, in failure, with the message and without a file."""
        before = sorted(self.folder.iterdir())
        code, _, errors = self.run_varnel(*arguments, **options)
        self.assertIn(code, codes, errors)
        self.assertIn(message, errors)
        if arguments[0] == "run":
            self.assertRegex(errors, PLACE)
        self.assertEqual(before, sorted(self.folder.iterdir()))

    def run_to_file(self, report, company, *arguments):
        return ["run", report, "--company", company, "-O", "csv", "-o", "out.csv", *arguments]

    def assert_ends_without_a_file(self, process, message):
        _, errors = process.communicate(timeout=30)
        self.assertIn(process.returncode, (FAILED, MESSAGES), errors)
        self.assertIn(message, errors.decode())
        if process.args[1] == "run":
            self.assertRegex(errors.decode(), PLACE)
        self.assertFalse((self.folder / "out.csv").exists())

    def test_sessions_that_end_in_the_middle_of_a_report(self):
        for delay in (0, 0.2, 0.5):
            process = self.start(*self.run_to_file("general-journal", self.server, "--filter",
                                                   f"{SLOW}|GLDet.InGLDetId"))
            self.wait_for_sessions(LONG_FETCH)
            time.sleep(delay)
            self.sql("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = "
                     f"'{self.database}' AND pid <> pg_backend_pid()")
            self.assert_ends_without_a_file(process, "again when it is back")

    def test_a_result_that_stops_while_its_reader_waits(self):
        """The connection is lost between two portions of rows."""
        self.sql("INSERT INTO GLDet (InGLDetId, ExAcctId, SeqNo, DetDate, DetAmnt, DetDesc) SELECT "
                 "1000000 + i, 1, i, '2025-01-01', 1, repeat('x', 100) "
                 "FROM generate_series(1, 40000) i")
        process = self.start(*DETAIL, self.server, "-O", "csv")
        process.stdout.read(1)
        time.sleep(0.5)
        self.sql("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = "
                 f"'{self.database}' AND pid <> pg_backend_pid()")
        _, errors = process.communicate(timeout=30)
        self.assertIn(process.returncode, (FAILED, MESSAGES), errors)
        self.assertRegex(errors.decode(), f"SQLSTATE(.|\n)*{PLACE}")

    def test_a_server_that_stops_in_the_middle_of_a_report(self):
        with tempfile.TemporaryDirectory(dir="/tmp") as folder:
            place = f"{folder}/pg"
            pathlib.Path(folder).chmod(0o755)
            subprocess.run([SERVER_SCRIPT, "start", place], check=True)
            company = f"postgresql://varnel@/postgres?host={place}"
            try:
                self.copy("shop.db", company)
                process = self.start(*self.run_to_file("general-journal", company, "--filter",
                                                       f"{SLOW}|GLDet.InGLDetId"))
                time.sleep(1)
            finally:
                subprocess.run([SERVER_SCRIPT, "stop", place], check=True)
            self.assert_ends_without_a_file(process, "SQLSTATE")
            self.assert_told("that it is running", *self.run_to_file("general-journal", company))

    @contextlib.contextmanager
    def locked(self, table):
        session = subprocess.Popen(["psql", "-h", SERVER, "-U", "varnel", "-q", self.database],
                                   stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, text=True)
        try:
            session.stdin.write(f"BEGIN; LOCK TABLE {table} IN ACCESS EXCLUSIVE MODE;\n")
            session.stdin.flush()
            self.wait_for_sessions("state = 'idle in transaction'")
            yield
        finally:
            session.communicate("ROLLBACK;\n")

    def test_a_table_that_somebody_locks_is_waited_for_a_while(self):
        self.sql(f"ALTER DATABASE {self.database} SET lock_timeout = '300ms'")
        with self.locked("GLDet"):
            for arguments in (self.run_to_file("general-journal", self.server),
                              ["copy", self.server, "other.db"],
                              ["copy", "shop.db", self.server, "--force"]):
                self.assert_told("locked by somebody else", *arguments)
        self.assertEqual(0, self.run_varnel(*DETAIL, self.server, "-O", "csv")[0])

    def test_a_copy_whose_session_ends_leaves_everything_as_it_was(self):
        for arguments in ((self.server, "other.db"), ("shop.db", self.server, "--force")):
            with self.locked("GLDet"):
                process = self.start("copy", *arguments)
                self.wait_for_sessions("wait_event_type = 'Lock'")
                self.sql("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = "
                         f"'{self.database}' AND wait_event_type = 'Lock'")
                self.assert_ends_without_a_file(process, "again when it is back")
            self.assertEqual([], list(self.folder.glob("other.db*")))
            self.assertEqual("12000", self.sql("SELECT count(*) FROM GLDet"))

    def test_waiting_for_a_lock_ends_by_an_interrupt(self):
        for arguments in (self.run_to_file("general-journal", self.server),
                          ["copy", "shop.db", self.server, "--force"]):
            with self.locked("GLDet"):
                process = self.start(*arguments)
                self.wait_for_sessions("wait_event_type = 'Lock'")
                process.send_signal(2)
                process.communicate(timeout=10)
                self.assertEqual(130, process.returncode)

    def test_a_server_that_does_not_answer_is_given_up(self):
        with socket.create_server(("127.0.0.1", 0)) as silent:
            company = f"postgresql://varnel@127.0.0.1:{silent.getsockname()[1]}/shop"
            self.assert_told("Check the address", *self.run_to_file("general-journal", company),
                             env={"PGCONNECT_TIMEOUT": "2"})

    def test_connections_that_run_out_in_the_middle_of_a_report(self):
        self.sql("CREATE ROLE crowd_of_failures LOGIN; "
                 "GRANT SELECT ON ALL TABLES IN SCHEMA public TO crowd_of_failures")
        self.addCleanup(self.sql, "DROP OWNED BY crowd_of_failures; DROP ROLE crowd_of_failures")
        company = self.server.replace("varnel@", "crowd_of_failures@")
        for most in (1, 2, 3):
            self.sql(f"ALTER ROLE crowd_of_failures CONNECTION LIMIT {most}")
            for report in ("balance-sheet", "comparative-balance-sheet"):
                arguments = self.run_to_file(report, company)
                self.assert_told("up to four connections", *arguments)
                self.assertEqual(1, self.run_varnel(*arguments)[2].count("cannot be opened"))
            code, _, errors = self.run_varnel("compare", "trial-balance-summary", "--company",
                                              company, "--to", "2025-01-31", "--with-to",
                                              "2025-02-28")
            if most < 3:
                self.assertEqual((FAILED, 1), (code, errors.count("cannot be opened")))
        self.sql("ALTER ROLE crowd_of_failures CONNECTION LIMIT 4")
        self.assertEqual(0, self.run_varnel(*arguments)[0])
        (self.folder / "out.csv").unlink()

    def test_a_login_that_is_refused(self):
        self.sql("CREATE ROLE guest_of_failures NOLOGIN")
        self.addCleanup(self.sql, "DROP ROLE guest_of_failures", "postgres")
        for user, message in (("guest_of_failures", "is not permitted to log in"),
                              ("nobody_at_all", 'role "nobody_at_all" does not exist')):
            company = self.server.replace("varnel@", f"{user}@")
            self.assert_told(message, *self.run_to_file("general-journal", company))

    def test_a_user_without_the_right_to_read(self):
        self.sql("CREATE ROLE reader_of_failures LOGIN")
        self.addCleanup(self.sql, "DROP OWNED BY reader_of_failures; "
                                  "DROP ROLE reader_of_failures")
        company = self.server.replace("varnel@", "reader_of_failures@")
        report = self.run_to_file("general-journal", company)
        self.assert_told("for the right to do that", *report)
        self.sql("GRANT SELECT ON ALL TABLES IN SCHEMA public TO reader_of_failures")
        self.assertEqual(0, self.run_varnel(*report)[0])

    def test_a_database_that_lacks_something(self):
        for statement, message in (
                ("ALTER TABLE GLDet DROP COLUMN DetRef", "table GLDet has no column DetRef"),
                ("DROP VIEW CurrPmtDet_View", "table CurrPmtDet_View cannot be read"),
                ("DROP OPERATOR + (text, text)", "operator does not exist")):
            self.sql(statement)
            self.assert_told(message, *self.run_to_file("general-journal", self.server),
                             codes=(FAILED, MESSAGES))
            self.setUp()

    def test_an_amount_that_is_too_large(self):
        self.sql("UPDATE GLDet SET DetAmnt = 999999999999999 WHERE InGLDetId = 7")
        self.assert_told("cannot copy DetAmnt of the row of GLDet whose InGLDetId is 7",
                         "copy", self.server, "other.db")
        code, _, errors = self.run_varnel(*self.run_to_file("trial-balance-detail", self.server,
                                                            "--from", "2024-01-01"))
        self.assertNotEqual(0, code)
        self.assertIn("999999999999999", errors)


if __name__ == "__main__":
    main()
