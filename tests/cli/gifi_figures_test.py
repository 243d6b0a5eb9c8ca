import json
import sqlite3
from decimal import Decimal

from varnel import VarnelTest, main

# Arguments, the fiscal year's start and the last day, and the same lines and accounts in SQL.
VARIANTS = (
    (["--from", "2025-01-01", "--to", "2025-12-31"], "2025-01-01", "2025-12-31", "1", "1"),
    (["--from", "2024-03-01", "--to", "2026-05-15"], "2026-01-01", "2026-05-15", "1", "1"),
    (["--to", "2025-06-30", "--segments", "1,3"], "2025-01-01", "2025-06-30",
     "GLDet.ExSegmentId IN (1, 3)", "1"),
    (["--to", "2026-10-31", "--segments", "2", "--no-segment"], "2026-01-01", "2026-10-31",
     "(GLDet.ExSegmentId = 2 OR GLDet.ExSegmentId IS NULL)", "1"),
    (["--to", "2025-09-30", "--filter", "GLAcct.GLAcctId >= '3000'|GLAcct.Descr DESC"],
     "2025-01-01", "2025-09-30", "1", "GLAcct.GLAcctId >= '3000'"),
)

# Whole cents by code: income of the year, everything of other accounts, and on retained earnings
# (3100) the income of the years before.
TOTALS = """
WITH Line AS (
  SELECT GLDet.ExAcctId AS account, AcctTypeInfo.TypeClass = 2 AS income,
         GLDet.DetDate < :start AS earlier, CAST(ROUND(GLDet.DetAmnt * 100) AS INTEGER) AS cents
    FROM GLDet JOIN GLAcct ON GLAcct.InGLAcctId = GLDet.ExAcctId
               JOIN AcctTypeInfo ON AcctTypeInfo.AcctType = GLAcct.AcctType
   WHERE GLDet.DetDate <= :last AND {lines})
SELECT GIFIAcctId,
       SUM(COALESCE((SELECT SUM(cents) FROM Line
                      WHERE account = InGLAcctId AND NOT (income AND earlier)), 0)
           + CASE WHEN GLAcctId = '3100'
                  THEN COALESCE((SELECT SUM(cents) FROM Line WHERE income AND earlier), 0)
                  ELSE 0 END)
  FROM GLAcct
 WHERE COALESCE(Inactive, 0) = 0 AND COALESCE(GIFIAcctId, '') <> '' AND {accounts}
 GROUP BY GIFIAcctId ORDER BY GIFIAcctId"""


class GifiFigures(VarnelTest):
    def bands(self, arguments):
        code, output, errors = self.run_varnel(
            "run", "gifi", "--company", "shop.db", *arguments, "-O", "jsonl")
        self.assertEqual((0, ""), (code, errors))
        return [json.loads(line)["controls"] for line in output.splitlines()]

    def test_totals_by_code_and_their_count_are_those_of_the_ledger(self):
        with sqlite3.connect(self.folder / "shop.db") as database:
            for arguments, start, last, lines, accounts in VARIANTS:
                statement = TOTALS.format(lines=lines, accounts=accounts)
                expected = database.execute(statement, {"start": start, "last": last}).fetchall()
                self.assertGreater(len(expected), 30)
                with self.subTest(arguments):
                    codes, totals, count = [], [], None
                    for controls in self.bands(arguments):
                        if "txtGIFIAcctId" in controls:
                            codes.append(controls["txtGIFIAcctId"]["text"])
                        if "txtTotal" in controls:
                            totals.append(int(Decimal(controls["txtTotal"]["value"]) * 100))
                        count = controls.get("txtCount", {}).get("value", count)
                    self.assertEqual(expected, list(zip(codes, totals)))
                    self.assertEqual(len(expected), count)


if __name__ == "__main__":
    main()
