import json
import sqlite3
from decimal import Decimal

from varnel import JOURNAL, VarnelTest, main

# What the journal is asked for, and the same in SQL written for the purpose.
VARIANTS = (
    ([], "1 = 1"),
    (["--from", "2025-02-01", "--to", "2025-04-30"],
     "DetDate BETWEEN '2025-02-01' AND '2025-04-30'"),
    (["--segments", "1,3"], "ExSegmentId IN (1, 3)"),
    (["--segments", "2", "--no-segment"], "(ExSegmentId = 2 OR ExSegmentId IS NULL)"),
    (["--no-segment"], "ExSegmentId IS NULL"),
    (["--filter", "GLAcct.GLAcctId >= '5000'|GLAcct.GLAcctId DESC", "--lang", "fr-CA"],
     "ExAcctId IN (SELECT InGLAcctId FROM GLAcct WHERE GLAcctId >= '5000')"),
    (["--foreign", "--filter", "GLDet.ExCurrencyId <> 1"], "ExCurrencyId <> 1"),
)

# Amounts as whole cents: sums of integers are exact.
SUMS = """
SELECT SeqNo, COUNT(*),
       SUM(CASE WHEN DetAmnt > 0 THEN CAST(ROUND(DetAmnt * 100) AS INTEGER) ELSE 0 END),
       SUM(CASE WHEN DetAmnt < 0 THEN CAST(ROUND(-DetAmnt * 100) AS INTEGER) ELSE 0 END)
  FROM GLDet WHERE Source IN ('GJ', 'BKT', 'BRC') AND """


def cents(band, control):
    return int(Decimal(band["controls"][control]["value"]) * 100)


class JournalFigures(VarnelTest):
    def bands(self, arguments):
        code, output, errors = self.run_varnel(*JOURNAL, *arguments, "-O", "jsonl")
        self.assertEqual((0, ""), (code, errors))
        return [json.loads(line) for line in output.splitlines()]

    def entries(self, bands):
        """Number of lines, debits and credits of each entry as printed."""
        entries, lines = {}, 0
        for band in bands:
            if band["section"] == "ghSeqNo":
                number, lines = band["controls"]["txtSeqNo"]["value"], 0
            elif band["section"] == "Detail":
                lines += 1
            elif band["section"] == "gfSeqNo":
                entries[number] = (lines, cents(band, "txtDebitTotal"),
                                   cents(band, "txtCreditTotal"))
        return entries

    def test_entries_totals_and_count_are_those_of_the_ledger(self):
        with sqlite3.connect(self.folder / "shop.db") as database:
            for arguments, condition in VARIANTS:
                rows = database.execute(SUMS + condition + " GROUP BY SeqNo").fetchall()
                ledger = {row[0]: row[1:] for row in rows}
                self.assertGreater(len(ledger), 5, condition)
                with self.subTest(condition):
                    bands = self.bands(arguments)
                    self.assertEqual(ledger, self.entries(bands))
                    footer = bands[-1] if bands[-1]["section"] == "ReportFooter" else bands[-2]
                    self.assertEqual(
                        (len(ledger), sum(e[1] for e in ledger.values()),
                         sum(e[2] for e in ledger.values())),
                        (footer["controls"]["txtCount"]["value"],
                         cents(footer, "txtDebitGrandTotal"), cents(footer, "txtCreditGrandTotal")))


if __name__ == "__main__":
    main()
