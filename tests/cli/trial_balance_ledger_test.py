"""Balances of the demo company as another accounting program has them: ledger (ledger-cli.org)."""

import json
import shutil
import sqlite3
import subprocess
import unittest
from decimal import Decimal

from varnel import VarnelTest, main

RETAINED_EARNINGS = "3100"

# A period, and the day from which its income counts: the start of the fiscal year that it ends in,
# or its own first day when that is earlier.
PERIODS = (
    ("2025-01-01", "2025-03-31", "2025-01-01"),
    ("2026-05-15", "2026-10-31", "2026-01-01"),
    ("2025-07-01", "2026-02-28", "2025-07-01"),
)

LINES = """
SELECT GLDet.DetDate, GLDet.SeqNo, GLAcct.GLAcctId, AcctTypeInfo.TypeClass,
       printf('%.4f', GLDet.DetAmnt), COALESCE(GLDet.ExSegmentId, 0)
  FROM GLDet JOIN GLAcct ON GLAcct.InGLAcctId = GLDet.ExAcctId
             JOIN AcctTypeInfo ON AcctTypeInfo.AcctType = GLAcct.AcctType
 ORDER BY GLDet.DetDate, GLDet.SeqNo"""


def journal(database):
    """The ledger as plain text; accounts of income and expense are below Income, others below Kept.

    An entry that does not balance would be refused."""
    entry, text = None, []
    for date, number, account, account_class, amount, segment in database.execute(LINES):
        if number != entry:
            text.append(f"\n{date} * Entry {number}")
            entry = number
        tree = "Income" if account_class == 2 else "Kept"
        text.append(f"    {tree}:{account}  {amount}  ; segment: {segment}")
    return "\n".join(text) + "\n"


def amount(band, control):
    """0 where the column is empty."""
    return Decimal(band["controls"].get(control, {}).get("value", 0))


@unittest.skipUnless(shutil.which("ledger"), "no ledger here; script/bootstrap installs it")
class TrialBalanceLedger(VarnelTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        with sqlite3.connect(cls.folder / "shop.db") as database:
            (cls.folder / "shop.ledger").write_text(journal(database), encoding="utf-8")

    def ledger(self, accounts, *limits):
        """Balances that are not zero, by account number."""
        command = ["ledger", "--args-only", "--file", self.folder / "shop.ledger", "balance",
                   "--flat", "--no-total", "--balance-format", "%(account) %(display_total)\n",
                   *limits, accounts]
        done = subprocess.run(command, capture_output=True, text=True, check=False, timeout=60)
        self.assertEqual((0, ""), (done.returncode, done.stderr))
        rows = (line.split() for line in done.stdout.splitlines())
        return {account.split(":")[1]: Decimal(balance) for account, balance in rows}

    def expected(self, last_day, income_from, *limits):
        """What a trial balance should say at the end of that day."""
        until = ("--limit", f"date <= [{last_day}]")
        earlier = self.ledger("^Income:", "--limit", f"date < [{income_from}]", *limits)
        balances = self.ledger("^Kept:", *until, *limits)
        balances |= self.ledger("^Income:", *until, "--limit", f"date >= [{income_from}]", *limits)
        balances[RETAINED_EARNINGS] = (balances.get(RETAINED_EARNINGS, Decimal(0))
                                       + sum(earlier.values()))
        return {account: balance for account, balance in balances.items() if balance}

    def bands(self, report, first_day, last_day, *options):
        code, output, errors = self.run_varnel(
            "run", report, "--company", "shop.db", "--from", first_day, "--to", last_day, *options,
            "-O", "jsonl")
        self.assertEqual((0, ""), (code, errors))
        return [json.loads(line) for line in output.splitlines()]

    def summary(self, *arguments):
        balances = {}
        for band in self.bands("trial-balance-summary", *arguments):
            if "txtAcctId" in band["controls"]:
                balances[band["controls"]["txtAcctId"]["text"]] = (
                    amount(band, "txtDebit") - amount(band, "txtCredit"))
        return balances

    def detail(self, *arguments):
        balances, account = {}, None
        for band in self.bands("trial-balance-detail", *arguments):
            controls = band["controls"]
            if band["section"] == "ghAccount":
                account = controls["txtGLAcctId"]["text"]
            elif band["section"] == "gfAccount":
                sign = -1 if controls["lblBalanceTotalType"]["text"] == "CT" else 1
                balances[account] = sign * amount(band, "txtBalanceTotal")
        return {account: balance for account, balance in balances.items() if balance}

    def test_balances_of_every_account_agree(self):
        for first_day, last_day, income_from in PERIODS:
            expected = self.expected(last_day, income_from)
            self.assertGreater(len(expected), 60)
            with self.subTest(last_day):
                self.assertEqual(expected, self.summary(first_day, last_day))
                self.assertEqual(expected, self.detail(first_day, last_day))

    def test_balances_of_a_segment_agree(self):
        first_day, last_day, income_from = PERIODS[1]
        expected = self.expected(last_day, income_from, "--limit", 'tag("segment") == "2"')
        self.assertGreater(len(expected), 40)
        segment = (first_day, last_day, "--segments", "2")
        self.assertEqual(expected, self.summary(*segment))
        self.assertEqual(expected, self.detail(*segment))


if __name__ == "__main__":
    main(verbosity=2)  # Says why it skips.
