"""Copies of companies between files and a server."""

import shutil
import sqlite3

from server import ServerTest, content
from varnel import main

USAGE, FAILED = 2, 1

# Values that a careless copy loses: texts that SQL or ODBC reads as something else, nulls beside
# empty texts, the first and last dates, amounts and rates that need every decimal.
ODD_VALUES = r"""
INSERT INTO ProjInfo VALUES (90, '?', '{d ''2025-01-01''}');
INSERT INTO ProjInfo VALUES (91, 'back\slash\\', 'a;b -- no comment /* none */');
INSERT INTO ProjInfo VALUES (92, 'été 🍁 $$', NULL);
INSERT INTO ProjInfo VALUES (93, '', char(10) || char(9) || '%s');
INSERT INTO ProjInfo VALUES (94, 'long', replace(hex(zeroblob(40000)), '00', 'é'));
INSERT INTO GJTrxHdr VALUES (900001, '1899-12-31', NULL, '');
INSERT INTO GJTrxHdr VALUES (900002, '9999-12-31', '', NULL);
INSERT INTO GLDet (InGLDetId, ExAcctId, SeqNo, DetDate, DetAmnt, ForeignAmnt, ExChangeRate)
 VALUES (900001, 1, -2147483648, '2025-01-01', 499999999999.9999, -0.0001, 0.73105263);
INSERT INTO GLDet (InGLDetId, ExAcctId, SeqNo, DetDate, DetAmnt, ForeignAmnt, ExChangeRate)
 VALUES (2147483647, 1, 2147483647, '2025-01-01', -499999999999.9999, NULL, 99999.00000001);
"""
# A table that is another one whenever it is read.
RESTLESS = ("DROP TABLE Segment; CREATE VIEW Segment AS SELECT abs(random() % 1000000000) AS "
            "InSegmentId, 'A' AS SegmentCode, 'Always another' AS Descr;")


class Copy(ServerTest):
    def setUp(self):
        self.remove_all_but_the_shop()
        self.sql(f"DROP DATABASE {self.database} WITH (FORCE)", "postgres")
        self.sql(f"CREATE DATABASE {self.database}", "postgres")

    def changed_company(self, statements):
        shutil.copy(self.folder / "shop.db", self.folder / "changed.db")
        with sqlite3.connect(self.folder / "changed.db") as connection:
            connection.executescript(statements)

    def test_a_company_comes_back_from_the_server_as_it_was(self):
        self.changed_company(ODD_VALUES)
        self.copy("changed.db", self.server)
        self.copy(self.server, "back.db")
        self.assertEqual(content(self.folder / "changed.db"), content(self.folder / "back.db"))
        self.copy(self.server, "back.db", "--force")
        self.copy("back.db", "again.db")
        self.assertEqual(content(self.folder / "changed.db"), content(self.folder / "again.db"))

    def test_the_server_holds_amounts_exactly(self):
        self.changed_company(ODD_VALUES)
        self.copy("changed.db", self.server)
        self.assertEqual("499999999999.9999|-0.0001|0.73105263", self.sql(
            "SELECT DetAmnt, ForeignAmnt, ExChangeRate FROM GLDet WHERE InGLDetId = 900001"))
        self.assertEqual("1", self.sql("SELECT count(*) FROM ProjInfo WHERE Descr IS NULL"))

    def test_rows_and_sums_of_every_table_are_printed(self):
        code, output, errors = self.run_varnel("copy", "shop.db", self.server)
        self.assertEqual((0, ""), (code, errors))
        printed = {line.split()[0]: line.split()[1:] for line in output.decode().splitlines()}
        with sqlite3.connect(self.folder / "shop.db") as connection:
            tables = [name for name, in connection.execute(
                "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%'")]
            for table in tables:
                rows, = connection.execute(f"SELECT count(*) FROM {table}").fetchone()
                self.assertEqual([f"{rows:,}"], printed[table])
            budget = connection.execute(
                "SELECT sum(max(BudgetAmnt, 0)), sum(min(BudgetAmnt, 0)) FROM AcctBudget")
            self.assertEqual([f"{side:.2f}" for side in budget.fetchone()], printed["BudgetAmnt"])

    def test_a_copy_that_differs_from_the_company_never_appears(self):
        self.changed_company(RESTLESS)
        for target in ("other.db", self.server):
            self.assert_refused(FAILED, "the copy of Segment is not what the company holds",
                                "copy", "changed.db", target)
        self.assertEqual("0", self.tables())

    def tables(self):
        return self.sql("SELECT count(*) FROM information_schema.tables "
                        "WHERE table_schema = 'public'")

    def test_what_is_there_is_replaced_by_force_only(self):
        self.copy("shop.db", self.server)
        self.copy("shop.db", "other.db")
        self.sql("CREATE TABLE Precious (Id INTEGER); UPDATE GLAcct SET Descr = 'Changed'")
        for target, message in (("other.db", "--force"), (self.server, "holds tables already")):
            self.assert_refused(FAILED, message, "copy", "shop.db", target)
        self.copy("shop.db", self.server, "--force")
        self.assertEqual("0|0", self.sql("SELECT (SELECT count(*) FROM Precious), count(*) "
                                         "FROM GLAcct WHERE Descr = 'Changed'"))

    def test_a_value_that_is_none_of_its_kind_is_named(self):
        self.changed_company("UPDATE GLDet SET DetAmnt = 'abc' WHERE InGLDetId = 7")
        self.assert_refused(FAILED, "cannot copy DetAmnt of the row of GLDet whose InGLDetId is 7",
                            "copy", "changed.db", "other.db")

    def test_a_text_that_a_server_cannot_hold_is_named(self):
        for text, message in (("x'e974e9'", "not UTF-8"), ("x'eda080'", "not UTF-8"),
                              ("x'410042'", "zero character")):
            with self.subTest(text=text):
                self.changed_company("INSERT INTO ProjInfo VALUES (90, 'A', 'fine'); "
                                     f"INSERT INTO ProjInfo VALUES (91, 'B', CAST({text} AS TEXT))")
                place = "cannot copy Descr of the row of ProjInfo whose InProjId is 91"
                self.assert_refused(FAILED, place, "copy", "changed.db", self.server)
                self.assert_refused(FAILED, message, "copy", "changed.db", self.server)
                self.copy("changed.db", "other.db", "--force")
                with sqlite3.connect(self.folder / "other.db") as connection:
                    self.assertEqual([(1,)], connection.execute(
                        "SELECT count(*) FROM ProjInfo "
                        f"WHERE InProjId = 91 AND CAST(Descr AS BLOB) = {text}").fetchall())
        self.assertEqual("0", self.tables())

    def test_a_copy_needs_a_company_and_another_place(self):
        for code, message, arguments in (
                (USAGE, "say which company", ["shop.db"]),
                (USAGE, "PGPASSWORD", ["shop.db", "postgresql://varnel:tulip@/shop"]),
                (FAILED, "is the company that is to be copied", ["shop.db", "shop.db", "--force"]),
                (FAILED, "is the company that is to be copied", [self.server] * 2),
                (FAILED, "check the path", ["absent.db", "other.db"]),
                (FAILED, "is not a company database", [self.server, "other.db"])):
            with self.subTest(arguments=arguments):
                self.assert_refused(code, message, "copy", *arguments)

    def wait_for_rows_in_a_file(self):
        self.wait_until(lambda: any(place.stat().st_size > 1_000_000
                                    for place in self.folder.glob(".varnel-*")))

    def wait_for_rows_on_the_server(self):
        self.wait_for_sessions("query LIKE '%INSERT INTO AcctBudget%'")

    def test_an_interrupted_copy_leaves_nothing(self):
        self.changed_company(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000000) "
            "INSERT INTO AcctBudget SELECT 100000 + i, 1, '2025-01-01', '2025-12-31', 1 FROM n")
        for target, wait in (("other.db", self.wait_for_rows_in_a_file),
                             (self.server, self.wait_for_rows_on_the_server)):
            process = self.start("copy", "changed.db", target)
            self.addCleanup(process.kill)
            wait()
            process.send_signal(2)
            self.assertEqual(130, (process.communicate(timeout=60), process.returncode)[1])
        self.assertEqual(["changed.db", "shop.db"],
                         sorted(place.name for place in self.folder.iterdir()))
        self.assertEqual("0", self.tables())


if __name__ == "__main__":
    main()
