import json
import shutil
import sqlite3
from collections import defaultdict
from decimal import ROUND_HALF_UP, Decimal

from varnel import VarnelTest, main

CENT = Decimal("0.01")
HOME = 1
FIRST, LAST, BEFORE = "2025-01-01", "2025-12-31", "2024-12-31"

# What the summary lists: banks with a foreign currency of their own, receivables and payables.
PAIRS = """
SELECT DISTINCT a.InGLAcctId, a.GLAcctId, d.ExCurrencyId, c.CurrencyCode
  FROM GLDet d JOIN GLAcct a ON a.InGLAcctId = d.ExAcctId
       JOIN WorldCurrency c ON c.InCurrencyId = d.ExCurrencyId
 WHERE d.ExCurrencyId <> 1
   AND ((a.ChqAcct <> 0 AND a.ExCurrencyId <> 1)
        OR a.InGLAcctId IN (SELECT ARGLAccountId FROM WorldCurrency
                            UNION SELECT APGLAccountId FROM WorldCurrency))"""

LINES = """
SELECT DetDate, SeqNo, ExChangeRate, DetDesc, ForeignAmnt, DetAmnt, Source, ExSrcKeyVal
  FROM GLDet WHERE ExAcctId = ? AND ExCurrencyId = ? AND DetDate BETWEEN ? AND ?
 ORDER BY DetDate, SeqNo, InGLDetId"""

# The second line of some entries repeats the first but for its amounts, so that the rounding of
# lines and that of their sum can differ.
SPLIT = """
INSERT INTO GLDet (InGLDetId, ExAcctId, ExCurrencyId, SeqNo, DetDate, DetAmnt, ForeignAmnt,
                   ExChangeRate, DetDesc, Source, ExSrcKeyVal)
SELECT InGLDetId + 1000000, ExAcctId, ExCurrencyId, SeqNo, DetDate, 0.49, 0.37, ExChangeRate,
       DetDesc, Source, ExSrcKeyVal
  FROM GLDet WHERE ExCurrencyId <> 1 AND SeqNo % 2 = 0"""


def amount(number):
    return Decimal(repr(number or 0)).quantize(Decimal("0.0001"))


def revalued(foreign, rate):
    return (foreign * rate).quantize(CENT, ROUND_HALF_UP)


def figures(band, names):
    shown = (band["controls"].get(name, {}).get("value", "0") for name in names)
    return tuple(map(Decimal, shown))


def names(prefix):
    return [prefix + name for name in ("Foreign", "Home", "Revalued", "Gain")]


def total(rows):
    return tuple(map(sum, zip(*rows))) if rows else (Decimal(0),) * 4


def worth(foreign, home, rate):
    value = revalued(foreign, rate)
    return foreign, home, value, value - home


class UnrealizedDetailFigures(VarnelTest):
    company = "split.db"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        shutil.copy(cls.folder / "shop.db", cls.folder / "split.db")
        cls.database = sqlite3.connect(cls.folder / "split.db")
        with cls.database:
            cls.database.execute(SPLIT)
        cls.pairs = [(account, currency, ["--account", number, "--currency", code]) for
                     account, number, currency, code in cls.database.execute(PAIRS)]

    @classmethod
    def tearDownClass(cls):
        cls.database.close()
        super().tearDownClass()

    def bands(self, report, *arguments):
        code, output, errors = self.run_varnel("run", report, "--company", self.company, "-O",
                                               "jsonl", *arguments)
        self.assertEqual((0, ""), (code, errors))
        bands = defaultdict(list)
        for line in output.splitlines():
            band = json.loads(line)
            bands[band["section"]].append(band)
        return bands

    def rate(self, currency, date):
        number, = self.database.execute(
            "SELECT Rate FROM ExchangeRate WHERE ExCurrencyId = ? AND RateDate <= ?"
            " ORDER BY RateDate DESC", (currency, date)).fetchone()
        return Decimal(repr(number))

    def lines(self, account, currency, first, last):
        return self.database.execute(LINES, (account, currency, first, last)).fetchall()

    def by_line(self, lines, rate):
        return [worth(amount(line[4]), amount(line[5]), rate) for line in lines]

    def by_group(self, lines, rate):
        """Lines of one day, entry, rate and description count as one."""
        groups = defaultdict(lambda: [Decimal(0), Decimal(0)])
        for line in lines:
            groups[line[:4]][0] += amount(line[4])
            groups[line[:4]][1] += amount(line[5])
        return [worth(foreign, home, rate) for foreign, home in groups.values()]

    def test_lines_forward_and_totals_of_a_year_are_those_of_the_ledger(self):
        self.assertGreaterEqual(len(self.pairs), 6)
        for account, currency, subject in self.pairs:
            for language in ("en-CA", "fr-CA"):
                with self.subTest(subject=subject, language=language):
                    bands = self.bands("unrealized-exchange-detail", *subject, "--from", FIRST,
                                       "--to", LAST, "--lang", language)
                    self.check_year(bands, account, currency)

    def check_year(self, bands, account, currency):
        rate = self.rate(currency, LAST)
        before = total(self.by_group(self.lines(account, currency, "0000", BEFORE), rate))
        ledger = self.lines(account, currency, FIRST, LAST)
        year = self.by_line(ledger, rate)
        self.assertGreater(len(year), 20)
        details = bands["Detail"]
        self.assertEqual(sorted(year), sorted(figures(band, names("txt")) for band in details))
        self.assertEqual([line[0] for line in ledger],
                         [band["controls"]["txtDate"]["value"] for band in details])
        self.assertEqual(sorted(f"{line[6]}|{line[7]}" for line in ledger),
                         sorted(band["controls"]["txtDate"]["key"] for band in details))
        self.assertEqual(before, figures(bands["ghGLAcct"][0], names("txtForward")))
        footer = bands["ReportFooter"][0]
        self.assertEqual(total(year), figures(footer, names("txtPeriod")))
        self.assertEqual(total([before, total(year)]), figures(footer, names("txtClosing")))

    def summary(self, *arguments):
        """Figures by the key of the account line."""
        bands = self.bands("unrealized-exchange", *arguments)
        columns = ("txtForeign", "txtBooked", "txtRevalued", "txtGain")
        return {band["controls"]["txtAccount"]["key"]: figures(band, columns)
                for band in bands["gfAccountType"]}

    def test_a_closing_balance_that_is_all_brought_forward_is_that_of_the_summary(self):
        last, = self.database.execute("SELECT date(max(DetDate), '+1 day') FROM GLDet").fetchone()
        summary = self.summary("--to", last)
        self.assertEqual(len(self.pairs), len(summary))
        for account, currency, subject in self.pairs:
            bands = self.bands("unrealized-exchange-detail", *subject, "--from", last, "--to", last)
            self.assertEqual([], bands["Detail"])
            self.assertEqual(summary[f"ACC|{account}|{currency}"],
                             figures(bands["ReportFooter"][0], names("txtClosing")))

    def test_the_closing_balance_of_all_lines_differs_from_the_summary_by_their_rounding(self):
        summary = self.summary("--to", LAST)
        differences = 0
        for account, currency, subject in self.pairs:
            bands = self.bands("unrealized-exchange-detail", *subject, "--to", LAST)
            closing = figures(bands["ReportFooter"][0], names("txtClosing"))
            listed = summary[f"ACC|{account}|{currency}"]
            lines = self.lines(account, currency, "0000", LAST)
            rate = self.rate(currency, LAST)
            rounding = total(self.by_line(lines, rate))[2] - total(self.by_group(lines, rate))[2]
            self.assertEqual(listed[:2], closing[:2])
            self.assertEqual(listed[2] + rounding, closing[2])
            self.assertEqual(listed[3] + rounding, closing[3])
            differences += rounding != 0
        self.assertGreater(differences, 0)

    def test_without_split_entries_both_are_equal_to_the_cent(self):
        self.company = "shop.db"
        summary = self.summary("--to", LAST)
        for account, currency, subject in self.pairs:
            bands = self.bands("unrealized-exchange-detail", *subject, "--to", LAST)
            self.assertEqual(summary[f"ACC|{account}|{currency}"],
                             figures(bands["ReportFooter"][0], names("txtClosing")))


if __name__ == "__main__":
    main()
