import json
import sqlite3
from decimal import Decimal

from varnel import VarnelTest, main

ALL_ACCOUNTS = ["--option", "chkIncludeZeroBalanceAccount=yes"]
ACTIVE = "COALESCE(Inactive, 0) = 0"

# First and last day, arguments, and the same lines and accounts in SQL.
VARIANTS = (
    ("2025-04-01", "2025-06-30", [], "1", ACTIVE),
    ("2026-05-15", "2026-10-31", ALL_ACCOUNTS, "1", "1"),
    ("2024-11-01", "2025-02-28", ["--lang", "fr-CA"], "1", ACTIVE),
    ("2025-01-01", "2025-09-30", ["--segments", "2", "--no-segment"],
     "(ExSegmentId = 2 OR ExSegmentId IS NULL)", ACTIVE),
)

# Whole cents, and the fiscal year that the last day is in.
LINES = """
WITH Line AS (
  SELECT ExAcctId AS account, DetDate AS day, CAST(ROUND(DetAmnt * 100) AS INTEGER) AS cents
    FROM GLDet WHERE DetDate <= :last AND {lines}),
Year AS (SELECT MAX(BegDate) AS start FROM FiscalYear WHERE BegDate <= :last),
Income AS (SELECT day, cents FROM Line, GLAcct WHERE account = InGLAcctId AND AcctType >= 4)"""

# By type: what stands on the accounts and, for those of earnings, what was earned.
BALANCES = LINES + """
SELECT GLAcctId, AcctType, IIF(AcctType = 1, 1, -1) * (
         COALESCE((SELECT SUM(cents) FROM Line WHERE account = InGLAcctId), 0)
         + COALESCE((SELECT SUM(cents) FROM Income, Year
                      WHERE GLAcctId = '3100' AND day < start
                         OR GLAcctId = '3300' AND day >= start), 0))
  FROM GLAcct WHERE AcctType <= 3 AND {accounts}"""

# By section: revenue is turned to positive; types 6 and 7 are other items.
RESULTS = LINES + """
SELECT MIN(AcctType, 6), IIF(AcctType = 4, -1, 1)
         * SUM(COALESCE(IIF(day >= :first, cents, 0), 0)),
       IIF(AcctType = 4, -1, 1) * SUM(COALESCE(IIF(day >= start, cents, 0), 0))
  FROM GLAcct, Year LEFT JOIN Line ON account = InGLAcctId
 WHERE AcctType >= 4 AND {accounts} GROUP BY 1 ORDER BY 1"""

EARNINGS = (("3100", "Retained earnings"), ("3300", "Current year earnings"))
TOTALS = {
    "en": ("Total assets", "Total liabilities", "Total equity", "Total liabilities and equity"),
    "fr": ("Total de l'actif", "Total du passif", "Total des capitaux propres",
           "Total du passif et des capitaux propres"),
}


def cents(control):
    return int(Decimal(control["value"]) * 100)


class StatementFigures(VarnelTest):
    def bands(self, report, arguments):
        """Controls of the report's own sections, without those of its sub-reports."""
        code, output, errors = self.run_varnel(
            "run", report, "--company", "shop.db", *arguments, "-O", "jsonl")
        self.assertEqual((0, ""), (code, errors))
        bands = [json.loads(line) for line in output.splitlines()]
        return [band["controls"] for band in bands if band.get("depth", 0) == 0]

    def variants(self, statement):
        """First and last day, arguments and what the ledger says."""
        with sqlite3.connect(self.folder / "shop.db") as database:
            return [(first, last, arguments,
                     database.execute(statement.format(lines=lines, accounts=accounts),
                                      {"first": first, "last": last}).fetchall())
                    for first, last, arguments, lines, accounts in VARIANTS]

    def check_balance_sheet(self, last, arguments, rows):
        by_type = [sum(row[2] for row in rows if row[1] == kind) for kind in (1, 2, 3)]
        captions = TOTALS["fr" if "fr-CA" in arguments else "en"]
        bands = self.bands("balance-sheet", ["--to", last, *arguments])
        ends = [(controls["lblTypeCap"]["text"], cents(controls["txtTypeTotal"]))
                for controls in bands if "txtTypeTotal" in controls]
        self.assertEqual(list(zip(captions, by_type)), ends)
        (closing,) = [controls for controls in bands if "txtTotalPassCap" in controls]
        self.assertEqual(by_type[1] + by_type[2], cents(closing["txtTotalPassCap"]))
        # Only a filter makes a sheet that does not balance say so.
        self.assertEqual("--segments" in arguments, closing["lblGTot"]["text"] != captions[3])
        if arguments == ALL_ACCOUNTS:
            self.assertEqual(by_type[0], by_type[1] + by_type[2])
        for number, name in EARNINGS:
            (expected,) = [row[2] for row in rows if row[0] == number]
            printed = [cents(controls["txtTotal"]) for controls in bands
                       if controls.get("txtDescr", {}).get("text") == name]
            self.assertEqual([expected], printed)

    def check_income_statement(self, first, last, arguments, rows):
        expected, result = [], [0, 0]
        for section, *totals in rows:
            sign = 1 if section == 4 else -1
            result = [before + sign * total for before, total in zip(result, totals)]
            expected.append((totals, None if section == 4 else result))
        printed = []
        for controls in self.bands("income-statement", ["--from", first, "--to", last, *arguments]):
            if "txtTypeTotal" in controls:
                printed.append(tuple(
                    [cents(controls[name]) for name in (control, control + "Cul")]
                    if control in controls else None
                    for control in ("txtTypeTotal", "txtTotalPassCap")))
        self.assertEqual(expected, printed)
        self.assertEqual(3, len(expected))

    def test_sections_and_earnings_of_the_balance_sheet_are_those_of_the_ledger(self):
        for _, last, arguments, rows in self.variants(BALANCES):
            with self.subTest(last):
                self.check_balance_sheet(last, arguments, rows)

    def test_sections_and_results_of_the_income_statement_are_those_of_the_ledger(self):
        for first, last, arguments, rows in self.variants(RESULTS):
            with self.subTest(last):
                self.check_income_statement(first, last, arguments, rows)


if __name__ == "__main__":
    main()
