"""A company that was copied to a server gives the same reports as its file, byte for byte."""

import re

from server import SERVER, ServerTest, content
from varnel import main

USAGE, FAILED = 2, 1

# What reports about one thing are run for, and options that reach further statements.
SUBJECTS = {"--account": "1030", "--currency": "USD", "--projects": "1,2",
            "--statement-date": "2026-09-30", "--ending-balance": "100.00", "--rows": "rows.csv"}
VARIANTS = [[], ["--from", "2025-02-01", "--to", "2025-03-31"], ["--to", "2025-06-30", "--revalue"],
            ["--segments", "1,3", "--no-segment"], ["--foreign", "--lang", "fr-CA"],
            ["--filter", "..."]]

# Lists can be filtered by their lines, others by account, the exchange reports by other things.
LISTS = {"general-journal", "general-ledger", "general-ledger-by-account",
         "trial-balance-detail"}
OTHER_FILTERS = {"unrealized-exchange", "unrealized-exchange-detail", "realized-exchange"}
# Lines that are equal in all that the report sorts by come as each database likes, and so does the
# balance that runs from one of them to the next; their dates come in one order all the same.
RUNNING = re.compile(rb'"(txtBalance|lblBalanceType)":\{[^}]*\},?')
DATE = re.compile(rb'"txt(?:Det|Pmt)?Date":\{"text":"([^"]+)')
WITH_EQUALS = {"trial-balance-detail", "realized-exchange", "bank-reconciliation",
               "unrealized-exchange-detail"}


def first_difference(expected, actual):
    if expected[::2] != actual[::2]:
        return f"{expected[::2]} and {actual[::2]}"
    lines = [output if isinstance(output, list) else output.splitlines()
             for output in (expected[1], actual[1])]
    at = next((i for i, pair in enumerate(zip(*lines)) if pair[0] != pair[1]), None)
    return f"{len(lines[0])} and {len(lines[1])} lines" if at is None else \
        f"line {at + 1}: {lines[0][at]} and {lines[1][at]}"


class Databases(ServerTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.copy("shop.db", cls.server)

    def reports(self):
        """Each listed report with the options that it takes."""
        _, output, _ = self.run_varnel("reports")
        lines = output.decode().splitlines()
        for name, options in zip(lines[::2], lines[1::2]):
            yield name.split()[0], options.split()

    def variants(self, name, options):
        needed = [word for option, value in SUBJECTS.items() if option in options
                  for word in (option, value)]
        for variant in VARIANTS:
            if "--filter" in variant and name in OTHER_FILTERS:
                continue
            if "--filter" in variant:
                variant = ["--filter", "GLDet.DetAmnt > 500|GLDet.InGLDetId" if name in LISTS
                           else "GLAcctId > '2000'|GLAcctId"]
            if all(word in [*options, "--lang"] for word in variant if word.startswith("--")):
                yield [*needed, *variant]
        if "--history" in options:
            yield ["--history", "3"]
            yield ["--history", "1", "--option", "chkIncludeReconciledAmnt=yes"]

    def assert_same(self, name, expected, actual, place):
        if name in WITH_EQUALS:
            self.assertEqual(DATE.findall(expected[1]), DATE.findall(actual[1]), place)
            expected, actual = ((code, sorted(RUNNING.sub(b"", output).splitlines()), errors)
                                for code, output, errors in (expected, actual))
        self.assertTrue(expected == actual, f"{place}: {first_difference(expected, actual)}")

    def test_every_report_is_the_same_over_both_and_in_both_dialects(self):
        (self.folder / "rows.csv").write_text(
            "DetDate,DetRef,DetDesc,Conciliated,DetAmnt,ForeignAmnt,Source,ExSrcKeyVal\n"
            "2026-09-02,R1,Deposit,0,125.50,0,DEP,1\n2026-09-03,R2,Cheque,1,-20.25,0,CDI,2\n")
        runs = 0
        for name, options in self.reports():
            for arguments in self.variants(name, options):
                results = {}
                for company in ("shop.db", self.server):
                    for dialect in ("server", "desktop"):
                        results[company, dialect] = self.run_varnel(
                            "run", name, "--company", company, "--dialect", dialect, *arguments,
                            "-O", "jsonl")
                expected = results["shop.db", "desktop"]
                with self.subTest(report=name, arguments=arguments):
                    self.assertEqual((0, ""), (expected[0], expected[2]))
                    for place, result in results.items():
                        self.assert_same(name, expected, result, place)
                runs += 1
        self.assertGreater(runs, 40)

    def test_demo_takes_the_place_of_a_company_by_force_only_and_leaves_other_tables(self):
        self.assert_refused(FAILED, "holds tables already", "demo", self.server)
        self.sql("CREATE TABLE Precious (Id INTEGER)")
        self.assert_refused(USAGE, "--lines", "demo", self.server, "--force", "--lines", "9")
        code, _, errors = self.run_varnel("demo", self.server, "--force")
        self.assertEqual((0, ""), (code, errors))
        self.assertEqual("0", self.sql("SELECT count(*) FROM Precious"))
        self.sql("DROP TABLE Precious")
        self.copy(self.server, "back.db", "--force")
        self.assertEqual(content(self.folder / "shop.db"), content(self.folder / "back.db"))

    def test_an_interrupted_demo_leaves_the_company_that_was_there(self):
        before = self.sql("SELECT count(*), sum(abs(DetAmnt)) FROM GLDet")
        process = self.start("demo", self.server, "--force", "--lines", "2000000")
        self.addCleanup(process.kill)
        self.wait_for_sessions("query LIKE '%INSERT INTO GLDet%'")
        process.send_signal(2)
        self.assertEqual(130, (process.communicate(timeout=60), process.returncode)[1])
        self.assertEqual(before, self.sql("SELECT count(*), sum(abs(DetAmnt)) FROM GLDet"))

    def test_a_connection_string_of_the_driver_names_a_company_too(self):
        company = (f"Driver={{PostgreSQL Unicode}};Server={SERVER};Database={self.database};"
                   "UID=varnel")
        journal = ["run", "general-journal", "-O", "csv", "--company"]
        self.assertEqual(self.run_varnel(*journal, "shop.db"), self.run_varnel(*journal, company))

    def test_a_password_is_refused_and_never_shown(self):
        for company in ("postgresql://varnel:tulip@/shop", "postgresql:///shop?password=tulip",
                        "Driver={PostgreSQL Unicode};PWD=tulip", "DSN=shop; Password = {tulip}",
                        "DSN=shop;pqopt={password=tulip}", "ReadOnly=1;PWD=tulip;UID=v",
                        "postgresql:varnel:tulip@/shop", "varnel:tulip@localhost/shop"):
            for arguments in (["run", "general-journal", "--company", company], ["demo", company],
                              ["demo", "new.db", company], ["copy", "shop.db", company],
                              ["run", company]):
                with self.subTest(arguments=arguments):
                    self.assert_refused(USAGE, "PGPASSWORD", *arguments)
                    self.assertNotIn("tulip", self.run_varnel(*arguments)[2])
                    self.assertEqual([], [*self.folder.glob("*tulip*"), *self.folder.glob("new*")])

    def test_a_server_or_database_that_is_not_there_is_told(self):
        for company, message in (
                (f"postgresql://varnel@/absent?host={SERVER}", '"absent" does not exist'),
                ("postgresql://varnel@/shop?host=/nowhere", "Check the address of the server"),
                ("Driver={No Such Driver};Server=x", "odbcinst -q -d"),
                ("postgresql://varnel@/shop?colour=red", 'sets "colour"'),
                ("postgresql://varnel@/shop?sslmode=maybe", "the sslmode in the address")):
            code = USAGE if "?" in company and "host" not in company else FAILED
            self.assert_refused(code, message, "run", "general-journal", "--company", company,
                                "-o", "out.csv")


if __name__ == "__main__":
    main()
