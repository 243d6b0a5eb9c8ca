import json
import sqlite3
from collections import defaultdict
from decimal import ROUND_HALF_UP, Decimal

from varnel import VarnelTest, main

UNREALIZED = ["run", "unrealized-exchange", "--company", "shop.db"]
CENT = Decimal("0.01")

# What is asked for, and which ledger lines that leaves.
VARIANTS = (
    (["--to", "2025-03-31"], lambda line: line["DetDate"] <= "2025-03-31"),
    (["--to", "2024-12-31", "--lang", "fr-CA"], lambda line: line["DetDate"] <= "2024-12-31"),
    (["--to", "2025-03-31", "--lang", "fr-CA", "--segments", "1,3", "--no-segment"],
     lambda line: line["DetDate"] <= "2025-03-31" and line["ExSegmentId"] in (1, 3, None)),
)


def exact(number):
    """A stored number as the decimal that was meant."""
    return Decimal(str(number or 0))


def as_printed(band, controls):
    return tuple(Decimal(band["controls"][control]["value"]) for control in controls)


class UnrealizedFigures(VarnelTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.database = sqlite3.connect(cls.folder / "shop.db")
        cls.database.row_factory = sqlite3.Row
        cls.addClassCleanup(cls.database.close)
        cls.control_accounts = {
            row[0] for row in cls.database.execute(
                "SELECT ARGLAccountId FROM WorldCurrency UNION"
                " SELECT APGLAccountId FROM WorldCurrency UNION SELECT ExAcctId"
                " FROM GLAccountParam WHERE ParamName IN ('CustGLAR', 'SuppGLAP')")}
        # One more account to revalue, which the demo company has none of.
        (other,) = cls.database.execute(
            "SELECT MIN(InGLAcctId) FROM GLAcct, GLDet WHERE ExAcctId = InGLAcctId"
            " AND ChqAcct = 0 AND GLDet.ExCurrencyId = 2 AND InGLAcctId NOT IN"
            f" ({','.join(map(str, cls.control_accounts))})").fetchone()
        cls.database.execute("INSERT INTO GLAccountParam VALUES ('Revalued', 'First', ?)", [other])
        cls.database.commit()
        cls.control_accounts.add(other)

    def rates(self, closing_date):
        """The last rate of each currency up to the date."""
        rows = self.database.execute("SELECT * FROM ExchangeRate ORDER BY RateDate")
        return {row["ExCurrencyId"]: exact(row["Rate"]) for row in rows
                if row["RateDate"] <= closing_date}

    def is_revalued(self, line):
        own_foreign = line["ChqAcct"] and line["AccountCurrency"] not in (None, 1)
        return line["ExCurrencyId"] not in (None, 1) and (
            own_foreign or line["ExAcctId"] in self.control_accounts)

    def balances(self, rates, takes):
        """Foreign, booked, revalued and gain by currency code and account."""
        lines = self.database.execute(
            "SELECT GLDet.*, GLAcctId || ' - ' || GLAcct.Descr AS Account, ChqAcct,"
            " GLAcct.ExCurrencyId AS AccountCurrency, CurrencyCode"
            " FROM GLDet, GLAcct, WorldCurrency"
            " WHERE InGLAcctId = ExAcctId AND InCurrencyId = GLDet.ExCurrencyId")
        entries = defaultdict(lambda: [Decimal(), Decimal()])
        for line in lines:
            if not self.is_revalued(line) or not takes(line):
                continue
            entry = entries[tuple(line[name] for name in (
                "CurrencyCode", "Account", "ExCurrencyId", "DetDate", "SeqNo", "ExChangeRate",
                "DetDesc"))]
            entry[0] += exact(line["ForeignAmnt"])
            entry[1] += exact(line["DetAmnt"])
        accounts = defaultdict(lambda: [Decimal()] * 4)
        for (code, account, currency, *_), (foreign, booked) in entries.items():
            revalued = (foreign * rates[currency]).quantize(CENT, ROUND_HALF_UP)
            figures = (foreign, booked, revalued, revalued - booked)
            accounts[code, account] = [a + b for a, b in zip(accounts[code, account], figures)]
        return {key: tuple(figures) for key, figures in sorted(accounts.items())}

    def bands(self, arguments):
        code, output, errors = self.run_varnel(*UNREALIZED, *arguments, "-O", "jsonl")
        self.assertEqual((0, ""), (code, errors))
        return [json.loads(line) for line in output.splitlines()]

    def test_accounts_currencies_and_total_are_those_of_the_ledger(self):
        for arguments, takes in VARIANTS:
            with self.subTest(arguments):
                expected = self.balances(self.rates(arguments[1]), takes)
                self.assertGreater(len(expected), 6)
                bands = self.bands(arguments)
                printed = {
                    (band["controls"]["txtCode"]["text"], band["controls"]["txtAccount"]["text"]):
                    as_printed(band, ("txtForeign", "txtBooked", "txtRevalued", "txtGain"))
                    for band in bands if band["section"] == "gfAccountType"}
                self.assertEqual(expected, printed)
                totals = [as_printed(band, ("txtBookedTotal", "txtRevaluedTotal", "txtGainTotal"))
                          for band in bands if band["section"] == "gfCurrency"]
                for code, total in zip(("EUR", "USD"), totals, strict=True):
                    of_code = [f[1:] for key, f in expected.items() if key[0] == code]
                    self.assertEqual(tuple(map(sum, zip(*of_code))), total, code)
                (footer,) = [band for band in bands if band["section"] == "ReportFooter"]
                self.assertEqual((sum(figures[3] for figures in expected.values()),),
                                 as_printed(footer, ("txtGainGrandTotal",)))

    def test_csv_has_a_record_for_each_account_with_its_currency(self):
        code, output, errors = self.run_varnel(*UNREALIZED, *VARIANTS[0][0], "-O", "csv")
        self.assertEqual((0, ""), (code, errors))
        header, *records = output.decode().split("\r\n")[:-1]
        self.assertEqual("currency,account,foreign,booked,revalued,gain", header)
        expected = self.balances(self.rates("2025-03-31"), VARIANTS[0][1])
        self.assertEqual([",".join([*key, *(f"{figure:.2f}" for figure in figures)])
                          for key, figures in expected.items()], records)


if __name__ == "__main__":
    main()
