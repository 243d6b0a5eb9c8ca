import json
import shutil
import sqlite3
from decimal import ROUND_HALF_UP, Decimal
from itertools import groupby

from varnel import VarnelTest, main

REALIZED = ["run", "realized-exchange", "--company"]
FEBRUARY = ["--from", "2025-02-01", "--to", "2025-02-28"]
LANGUAGES = ("en-CA", "fr-CA")
CAD, USD, EUR = 1, 2, 3
CENT = Decimal("0.01")

# Worked by hand. Currency, type, date, cheque, amount, discount, invoice's rate, payment's rate;
# then what is to be printed: paid, gain.
SHEET = (
    (USD, 1, "2025-02-01", "10", 1000, None, 1.35, 1.3725, "1,000.00", "22.50"),  # 1000 x 0.0225
    (USD, 1, "2025-02-03", "11", 980, 20, 1.35, 1.3725, "1,000.00", "22.50"),  # 1372.5-1350
    (USD, 1, "2025-02-03", "12", 10.01, 0.07, 1.35, 1.36, "10.08", "0.11"),  # 13.71-(0.09+13.51)
    (USD, 1, "2025-02-10", "", 250.40, 0, 1.3725, 1.358, "250.40", "-3.63"),  # -3.6308
    (USD, 1, "2025-02-11", "13", None, 20, 1.35, 1.3725, "20.00", "0.45"),  # 27.45 - (27.00 + 0.00)
    # Rates to four decimals: 1234.56 x (1.3725 - 1.3501) = 27.654144
    (USD, 1, "2025-02-12", "14", 1234.56, 0, 1.350125, 1.372512, "1,234.56", "27.65"),
    (USD, 1, "2025-02-13", "15", 50, None, 1.35, 1.3499, "50.00", "-0.01"),  # 50 x -0.0001 = -0.005
    (USD, 2, "2025-02-05", "501", 1000, 0, 1.35, 1.3725, "1,000.00", "-22.50"),  # 1000 x -0.0225
    (USD, 2, "2025-02-06", "502", 980, 20, 1.35, 1.3725, "1,000.00", "-22.50"),  # 1350-1372.5
    (USD, 2, "2025-02-07", "503", 10.01, 0.07, 1.36, 1.35, "10.08", "0.11"),  # 13.71-(0.09+13.51)
    (USD, 2, "2025-02-07", "504", 100, 0, None, 1.3725, "100.00", "-137.25"),  # 100 x (0 - 1.3725)
    (USD, 3, "2025-02-28", "D1", 500, 0, 1.4812, 1.47, "500.00", "-5.60"),  # 500 x -0.0112
    (USD, 3, "2025-02-28", "D2", 10.01, 0.07, 1.35, 1.36, "10.08", "0.10"),  # 10.01 x 0.01 = 0.1001
    (EUR, 1, "2025-02-14", "20", 870.15, 0, 1.47, 1.47, "870.15", "0.00"),  # 870.15 x 0
    (EUR, 1, "2025-02-20", "21", 333.33, 0, 1.4812, 1.4955, "333.33", "4.77"),  # 4.766619
    # 707.17 x 1.4731 = 1041.732127, 7.07 x 1.4684 = 10.381588, 700.10 x 1.4684 = 1028.02684:
    # 1041.73 - (10.38 + 1028.03).
    (EUR, 2, "2025-02-15", "505", 700.10, 7.07, 1.4731, 1.4684, "707.17", "3.32"),
    (EUR, 4, "2025-02-16", "X", 60, 0, 1.4, 1.5, "60.00", "0.00"),  # Realizes nothing.
    # Not of the period, or not foreign.
    (USD, 1, "2025-01-31", "9", 1000, 0, 1.35, 1.3725, None, None),
    (USD, 1, "2025-03-01", "16", 1000, 0, 1.35, 1.3725, None, None),
    (CAD, 1, "2025-02-10", "17", 1000, 0, 1, 1, None, None),
)
LISTED = SHEET[:17]
# Paid and gain of each group, and the gain of all.
GROUPS = (
    ("USD", "1062 - Trade receivables – US dollars", "3,565.04", "69.57"),
    ("USD", "2012 - Trade payables – US dollars", "2,110.08", "-182.14"),
    ("USD", "1030 - Bank – US dollar account", "510.08", "-5.50"),
    ("EUR", "1064 - Trade receivables – euros", "1,203.48", "4.77"),
    ("EUR", "2014 - Trade payables – euros", "707.17", "3.32"),
    ("EUR", None, "60.00", "0.00"),
)
TOTAL = "-109.98"
KEYS = {1: "PMT", 2: "CDI", 3: "DEP"}

# The payments as the tables have them, by group.
PAYMENTS = """
SELECT i.ExCurrencyId, p.CurrPmtType, p.PmtDate, i.Name, i.InvoiId, p.ChqNo, i.ExchangeRate,
       p.PmtRate, d.PmtAmnt, d.PmtDisc, c.CurrencyCode, i.Source || '|' || i.InInvoiId, p.InPmtId
  FROM PmtDet d, Pmt p, Invoice i, WorldCurrency c
 WHERE p.InPmtId = d.ExPmtId AND i.InInvoiId = d.ExInvoiId AND c.InCurrencyId = i.ExCurrencyId
   AND i.ExCurrencyId <> 1 AND """
VARIANTS = (
    ([], "1 = 1"),
    (["--from", "2024-03-01", "--to", "2025-02-28"],
     "p.PmtDate >= '2024-03-01' AND p.PmtDate <= '2025-02-28'"),
    (["--segments", "1,3"], "i.ExSegmentId IN (1, 3)"),
    (["--segments", "2", "--no-segment"], "(i.ExSegmentId = 2 OR i.ExSegmentId IS NULL)"),
    (["--filter", "CurrPmtDet_View.PmtDisc > 0|CurrPmtDet_View.Name DESC"], "d.PmtDisc > 0"),
)


def exact(number, decimals):
    return Decimal(repr(number or 0)).quantize(Decimal(1).scaleb(-decimals), ROUND_HALF_UP)


def cents(number):
    return number.quantize(CENT, ROUND_HALF_UP)


def gain(kind, amount, discount, invoice_rate, payment_rate):
    if kind == 2:
        invoice_rate, payment_rate = payment_rate, invoice_rate
    if discount == 0 or kind == 3:
        return cents(amount * (payment_rate - invoice_rate))
    return (cents((amount + discount) * payment_rate) - cents(discount * invoice_rate)
            - cents(amount * invoice_rate))


def in_language(text, language):
    if language == "en-CA":
        return text
    return text.translate(str.maketrans({",": "\u00A0", ".": ","}))


class RealizedFigures(VarnelTest):
    def bands(self, company, language, *arguments):
        code, output, errors = self.run_varnel(*REALIZED, company, "--lang", language, "-O",
                                               "jsonl", *arguments)
        self.assertEqual((0, ""), (code, errors))
        bands = [json.loads(line) for line in output.splitlines()]
        return [(band["section"], band["controls"]) for band in bands if "depth" not in band]

    def make_sheet_company(self):
        shutil.copy(self.folder / "shop.db", self.folder / "sheet.db")
        with sqlite3.connect(self.folder / "sheet.db") as database:
            database.executescript("DELETE FROM PmtDet; DELETE FROM Pmt; DELETE FROM Invoice;")
            bank, = database.execute("SELECT InGLAcctId FROM GLAcct WHERE GLAcctId = '1030'")
            # Backwards, so that the order is the report's doing.
            for number, payment in reversed(list(enumerate(SHEET, 1))):
                currency, kind, date, cheque, amount, discount, invoice_rate, rate = payment[:8]
                database.execute("INSERT INTO Invoice VALUES (?, ?, ?, ?, ?, ?, NULL)",
                                 (100 + number, f"F{number}", "INV", f"Name {number}", currency,
                                  invoice_rate))
                database.execute("INSERT INTO Pmt VALUES (?, ?, ?, ?, ?, ?)",
                                 (200 + number, kind, date, cheque, rate, bank[0]))
                database.execute("INSERT INTO PmtDet VALUES (?, ?, ?, ?, ?)",
                                 (number, 200 + number, 100 + number, amount, discount))

    def test_payments_gain_what_the_sheet_says_in_both_languages(self):
        self.make_sheet_company()
        for language in LANGUAGES:
            with self.subTest(language):
                bands = self.bands("sheet.db", language, *FEBRUARY)
                lines = [c for section, c in bands if section == "Detail"]
                self.assertEqual([in_language(paid, language) for *_, paid, _ in LISTED],
                                 [line["txtPaid"]["text"] for line in lines])
                self.assertEqual([in_language(gained, language) for *_, gained in LISTED],
                                 [line["txtGain"]["text"] for line in lines])
                self.assertEqual([Decimal(gained) for *_, gained in LISTED],
                                 [Decimal(line["txtGain"]["value"]) for line in lines])
                section, footer = bands[-1]
                self.assertEqual(("ReportFooter", in_language(TOTAL, language)),
                                 (section, footer["txtGainGrandTotal"]["text"]))

    def test_lines_carry_dates_rates_and_keys(self):
        self.make_sheet_company()
        for language in LANGUAGES:
            bands = self.bands("sheet.db", language, *FEBRUARY)
            lines = [c for section, c in bands if section == "Detail"]
            for number, (payment, line) in enumerate(zip(LISTED, lines), 1):
                _, kind, date, cheque, _, _, invoice_rate, rate = payment[:8]
                self.assertEqual(date, line["txtPmtDate"]["value"])
                self.assertEqual(cheque, line.get("txtChqNo", {}).get("text", ""))
                for control, number_in in (("txtExchangeRate", invoice_rate), ("txtPmtRate", rate)):
                    four = f"{exact(number_in, 4):.4f}"
                    self.assertEqual(in_language(four, language), line[control]["text"])
                self.assertEqual(f"INV|{100 + number}", line["txtInvoiId"]["key"])
                key = f"{KEYS[kind]}|{200 + number}" if kind in KEYS else None
                self.assertEqual(key, line["txtPaid"].get("key"))

    def test_groups_have_their_currency_account_and_totals(self):
        self.make_sheet_company()
        for language, word in zip(LANGUAGES, ("Currency", "Devise")):
            groups, currency, account = [], None, None
            for section, controls in self.bands("sheet.db", language, *FEBRUARY):
                if section == "ghCurrency":
                    currency = controls["txtCurrency"]["text"]
                elif section == "ghCurrPmtType":
                    account = controls.get("txtAccount", {}).get("text")
                elif section == "gfCurrPmtType":
                    groups.append((currency, account, controls["txtPaidTotal"]["text"],
                                   controls["txtGainTotal"]["text"]))
            self.assertEqual(
                [(f"{word} {code}", account, in_language(paid, language),
                  in_language(gained, language)) for code, account, paid, gained in GROUPS], groups)

    def printed_groups(self, bands):
        """Lines of each currency and kind in order of their text, with the group's totals."""
        groups, lines = [], []
        for section, controls in bands:
            if section == "Detail":
                lines.append(tuple(controls.get(name, {}).get(part, "") for name, part in (
                    ("txtPmtDate", "value"), ("txtName", "text"), ("txtInvoiId", "text"),
                    ("txtChqNo", "text"), ("txtExchangeRate", "text"), ("txtPmtRate", "text"),
                    ("txtPaid", "value"), ("txtCurrencyCode", "text"), ("txtGain", "value"),
                    ("txtInvoiId", "key"), ("txtPaid", "key"))))
            elif section == "gfCurrPmtType":
                totals = (controls["txtPaidTotal"]["value"], controls["txtGainTotal"]["value"])
                groups.append((sorted(lines), totals))
                lines = []
        return groups

    def worked_groups(self, rows):
        groups, total = [], Decimal(0)
        for _, group in groupby(rows, lambda row: row[:2]):
            lines, paid_total, gain_total = [], Decimal(0), Decimal(0)
            for row in group:
                (_, kind, date, name, invoice, cheque, invoice_rate, rate, amount, discount, code,
                 key, payment) = row
                amount, discount = exact(amount, 4), exact(discount, 4)
                gained = gain(kind, amount, discount, exact(invoice_rate, 4), exact(rate, 4))
                lines.append((date, name, invoice, cheque, f"{invoice_rate:.4f}", f"{rate:.4f}",
                              f"{amount + discount:.4f}", code, f"{gained:.4f}", key,
                              f"{KEYS[kind]}|{payment}"))
                paid_total += amount + discount
                gain_total += gained
            groups.append((sorted(lines), (f"{paid_total:.4f}", f"{gain_total:.4f}")))
            total += gain_total
        return groups, f"{total:.4f}"

    def test_the_demo_company_gains_what_its_tables_say(self):
        with sqlite3.connect(self.folder / "shop.db") as database:
            for arguments, condition in VARIANTS:
                rows = database.execute(PAYMENTS + condition + " ORDER BY 1, 2").fetchall()
                self.assertGreater(len(rows), 5, condition)
                with self.subTest(condition):
                    bands = self.bands("shop.db", "en-CA", *arguments)
                    groups, total = self.worked_groups(rows)
                    self.assertEqual(groups, self.printed_groups(bands))
                    self.assertEqual(total, bands[-1][1]["txtGainGrandTotal"]["value"])


if __name__ == "__main__":
    main()
