"""Figures of both general ledgers on the demo company, against sums of whole cents in SQL."""

import json
import re
import shutil
import sqlite3
import subprocess
import unittest
from decimal import Decimal

from varnel import VarnelTest, main

YEAR, FROM, TO = "2025-01-01", "2025-02-01", "2025-04-30"
COMPANY = ["--company", "shop.db", "--from", FROM, "--to", TO]
IN_PERIOD = f"DetDate BETWEEN '{FROM}' AND '{TO}'"

SEGMENTS = (([], "1 = 1"),
            (["--segments", "1,3"], "ExSegmentId IN (1, 3)"),
            (["--segments", "2", "--no-segment"], "(ExSegmentId = 2 OR ExSegmentId IS NULL)"))
LEDGERS = (*SEGMENTS,
           (["--account-type", "4"], "AcctType = 4"),
           (["--account-type", "5", "--segments", "2"], "AcctType = 5 AND ExSegmentId = 2"),
           (["--filter", "GLDet.DetAmnt > 5000|GLAcct.GLAcctId"], "DetAmnt > 5000"))
ACCOUNTS = (*SEGMENTS,
            (["--filter", "GLAcct.AcctType = 4|GLDet.DetAmnt"], "AcctType = 4"),
            (["--foreign", "--filter", "GLAcct.GLAcctId < '1100'"], "GLAcct.GLAcctId < '1100'"))

JOINED = """
  FROM GLDet JOIN GLAcct ON GLAcct.InGLAcctId = GLDet.ExAcctId
             JOIN AcctTypeInfo USING (AcctType) WHERE """
CENTS = "CAST(ROUND(DetAmnt * 100) AS INTEGER)"
DEBIT = f"SUM(CASE WHEN {IN_PERIOD} AND DetAmnt > 0 THEN {CENTS} ELSE 0 END)"
CREDIT = f"SUM(CASE WHEN {IN_PERIOD} AND DetAmnt < 0 THEN -{CENTS} ELSE 0 END)"
LINES = f"SUM(CASE WHEN {IN_PERIOD} THEN 1 ELSE 0 END)"
COUNTS = f"DetDate <= '{TO}' AND (TypeClass <> 2 OR DetDate >= '{YEAR}') AND "
BY_ACCOUNT = f"SELECT GLAcct.GLAcctId, {DEBIT}, {CREDIT}, SUM({CENTS}), {LINES}" + JOINED + COUNTS
IN_ALL = f"SELECT {DEBIT}, {CREDIT}, {LINES}, COUNT(DISTINCT SeqNo)" + JOINED + IN_PERIOD + " AND "
RETAINED = f"SELECT SUM({CENTS})" + JOINED + f"TypeClass = 2 AND DetDate < '{YEAR}' AND "


def cents(band, control):
    return int(Decimal(band["controls"][control]["value"]) * 100)


class GeneralLedgerFigures(VarnelTest):
    def bands(self, report, options):
        code, output, errors = self.run_varnel("run", report, *COMPANY, *options, "-O", "jsonl")
        self.assertEqual((0, ""), (code, errors))
        return [json.loads(line) for line in output.splitlines()]

    def setUp(self):
        self.database = sqlite3.connect(self.folder / "shop.db")
        self.addCleanup(self.database.close)

    def test_the_ledger_has_every_line_of_the_period_or_of_the_type(self):
        for options, condition in LEDGERS:
            with self.subTest(condition):
                expected = self.database.execute(IN_ALL + condition).fetchone()
                self.assertGreater(expected[2], 20)
                bands = self.bands("general-ledger", options)
                footer, = (band for band in bands if "txtCount" in band["controls"])
                self.assertEqual(expected, (
                    cents(footer, "txtDebitGrandTotal"), cents(footer, "txtCreditGrandTotal"),
                    sum("txtAccount" in band["controls"] for band in bands),
                    footer["controls"]["txtCount"]["value"]))

    def expected_accounts(self, condition):
        """Debits, credits, balance and lines of each account that has anything to show."""
        rows = self.database.execute(BY_ACCOUNT + condition + " GROUP BY 1").fetchall()
        accounts = {number: tuple(figures) for number, *figures in rows}
        earned, = self.database.execute(RETAINED + condition).fetchone()
        if "GLAcct" not in condition and "AcctType" not in condition:
            debit, credit, balance, lines = accounts.get("3100", (0, 0, 0, 0))
            accounts["3100"] = (debit, credit, balance + (earned or 0), lines)
        return {number: figures for number, figures in accounts.items() if any(figures)}

    def test_each_account_closes_at_its_balance(self):
        for options, condition in ACCOUNTS:
            with self.subTest(condition):
                printed = {}
                for band in self.bands("general-ledger-by-account", options):
                    if band["section"] == "ghAccount":
                        number, lines = band["controls"]["txtGLAcctId"]["text"], 0
                    elif band["section"] == "Detail":
                        lines += 1
                    elif band["section"] == "gfAccount":
                        sign = -1 if band["controls"]["lblBalanceTotalType"]["text"] == "CT" else 1
                        printed[number] = (
                            cents(band, "txtDebitTotal"), cents(band, "txtCreditTotal"),
                            sign * cents(band, "txtBalanceTotal"), lines)
                self.assertGreater(len(printed), 5)
                self.assertEqual(self.expected_accounts(condition), printed)

    @unittest.skipUnless(shutil.which("pdftotext"), "no pdftotext here")
    def test_what_an_account_carries_forward_is_brought_forward(self):
        code, output, errors = self.run_varnel(
            "run", "general-ledger-by-account", *COMPANY, "--filter", "GLAcct.GLAcctId = '1020'",
            "-O", "pdf")
        self.assertEqual((0, ""), (code, errors))
        text = subprocess.run(["pdftotext", "-layout", "-", "-"], input=output, check=True,
                              capture_output=True, timeout=60).stdout.decode()
        carried = re.findall(r"Carried forward: +([\d,.]+ ..)", text)
        self.assertEqual(carried, re.findall(r"Brought forward: +([\d,.]+ ..)", text))
        self.assertEqual(len(carried), text.strip("\f").count("\f"))
        self.assertGreater(len(carried), 1)
        for balance in carried:  # It is that of the line before.
            self.assertRegex(text, re.escape(balance) + r"\s+Carried forward: +" +
                             re.escape(balance))


if __name__ == "__main__":
    main()
