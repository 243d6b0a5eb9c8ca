import json
import sqlite3
from decimal import Decimal

from varnel import VarnelTest, main

USAGE = 2
COMPANY = ["run", "income-statement", "--company", "shop.db"]
PROJECTS = ["run", "income-statement-proj", "--company", "shop.db"]

REFUSED = (
    (PROJECTS, "income-statement-proj is about some projects: add --projects IDS"),
    ([*PROJECTS, "--projects", "3,99"],
     "there is no project 99; there are:\n  1  P24-01 - Warehouse move\n"),
    ([*PROJECTS, "--projects", "3,x"], '--projects: "x" is no id'),
    ([*PROJECTS, "--projects", "3", "--property", "projids=4"], "use --projects instead"),
    ([*COMPANY, "--projects", "3"], "income-statement takes no --projects"),
    ([*COMPANY, "--property", "CumulDateFrom=2025-01-01"], "use --cumulative-from instead"),
    ([*COMPANY, "--property", "CumulDateTo=2025-01-01"], "use --cumulative-to instead"),
    ([*COMPANY, "--cumulative-to", "2025-02-29"], "--cumulative-to: 2025-02-29 is no date"),
    ([*COMPANY, "--cumulative-from", "2025-06-01", "--cumulative-to", "2025-05-31"],
     "the cumulative period ends before it starts: from 2025-06-01 to 2025-05-31"),
    ([*PROJECTS, "--projects", "3", "--to", "2025-06-30", "--cumulative-to", "2024-12-31"],
     "from 2025-01-01 to 2024-12-31; left out, --cumulative-from is the first day"),
)

# Options, and the first and last day that the second column then has.
CUMULATIVE = (
    ([], "2025-01-01", "2025-06-30"),
    (["--cumulative-from", "2024-07-01"], "2024-07-01", "2025-06-30"),
    (["--cumulative-to", "2025-04-30"], "2025-01-01", "2025-04-30"),
    (["--cumulative-from", "2024-02-01", "--cumulative-to", "2026-03-31"],
     "2024-02-01", "2026-03-31"),
)

# Whole cents by account, revenue (type 4) turned to positive.
SUMS = """
SELECT InGLAcctId, SUM(CAST(ROUND(GLDet.DetAmnt * 100) AS INTEGER)) * IIF(AcctType = 4, -1, 1)
  FROM GLDet JOIN GLAcct ON GLAcct.InGLAcctId = GLDet.ExAcctId
 WHERE AcctType >= 4 AND COALESCE(Inactive, 0) = 0 AND DetDate BETWEEN ? AND ? AND {lines}
 GROUP BY InGLAcctId"""


def cents(control):
    return int(Decimal(control["value"]) * 100)


class IncomeStatement(VarnelTest):
    def columns(self, *arguments):
        """The cents of the two columns by account, where they are not zero."""
        code, output, errors = self.run_varnel(*arguments, "-O", "jsonl")
        self.assertEqual((0, ""), (code, errors))
        columns = ({}, {})
        for controls in (json.loads(line)["controls"] for line in output.splitlines()):
            key = controls.get("txtTotal", {}).get("key")
            if key is None:
                continue
            for column, name in zip(columns, ("txtTotal", "txtTotalCul")):
                if cents(controls[name]) != 0:
                    column[int(key.split("|")[-1])] = cents(controls[name])
        return columns

    def assert_columns(self, lines, *arguments):
        """Of the second quarter of 2025, and of each cumulative period."""
        with sqlite3.connect(self.folder / "shop.db") as database:
            def sums(*days):
                rows = database.execute(SUMS.format(lines=lines), days)
                return {account: amount for account, amount in rows if amount != 0}
            for options, first_day, last_day in CUMULATIVE:
                with self.subTest(options):
                    period, cumulative = self.columns(
                        *arguments, "--from", "2025-04-01", "--to", "2025-06-30", *options)
                    self.assertGreater(len(cumulative), 5)
                    self.assertEqual(sums("2025-04-01", "2025-06-30"), period)
                    self.assertEqual(sums(first_day, last_day), cumulative)

    def test_a_company_has_the_period_and_the_cumulative_period_asked_for(self):
        self.assert_columns("1", *COMPANY)

    def test_projects_have_the_period_and_the_cumulative_period_asked_for(self):
        self.assert_columns("ExProjId IN (3, 6)", *PROJECTS, "--projects", "3,6")

    def test_what_does_not_fit_is_refused(self):
        for arguments, message in REFUSED:
            with self.subTest(arguments):
                self.assert_refused(USAGE, message, *arguments)


if __name__ == "__main__":
    main()
