import json
import sqlite3
import subprocess
from decimal import Decimal

from varnel import VarnelTest, main

USAGE = 2
FIGURES = ("txtEndBal", "txtDepCirc", "txtChqCirc", "txtAdjustedBal", "txtGLBal", "txtDif")
INCLUDED = ["--option", "chkIncludeReconciledAmnt=yes"]
STATEMENTS = """
SELECT ExBankConcilHistoryId, GLAcctId, StatementDate, EndBalAmnt, DepAmntCirc, ChqAmntCirc,
       GLBalAmnt, ExAcctId, ExCurrencyId <> 1
  FROM BankStatement JOIN GLAcct ON InGLAcctId = ExAcctId ORDER BY 1"""
HEADER = "DetDate,DetRef,DetDesc,Conciliated,DetAmnt,ForeignAmnt,Source,ExSrcKeyVal"

# Columns in another order and case, one more than needed; what a spreadsheet makes of texts.
SCREEN = '''\ufeffforeignamnt,DETAMNT,Balance,Conciliated,DetDate,DetRef,DetDesc,Source,ExSrcKeyVal
-73.00,-100.25,x,0,2026-09-01,5200,"Cheque, ""urgent""",CDI,17

200.10,270.14,x,,2026-09-03,D9,"Deposit
of two",DEP,19
36.40,50.00,x,Yes,2026-09-04,D10,Ticked,DEP,20
-8.75,-12.00,x,-1,2026-09-05,,,,
,,x,true,,,Nothing,GJ,21
-1.00,,x,no,,,,,'''.replace("\n", "\r\n")

# Group, date, reference, description, amount and key, in the order of the home amounts, null first.
TICKED = [
    ("Reconciled withdrawals", None, None, "Nothing", None, "GJ|21"),
    ("Reconciled withdrawals", "2026-09-05", None, None, "8.7500", "|"),
    ("Reconciled deposits", "2026-09-04", "D10", "Ticked", "36.4000", "DEP|20"),
]
OUTSTANDING = [
    ("Outstanding withdrawals", None, None, None, "1.0000", "|"),
    ("Outstanding withdrawals", "2026-09-01", "5200", 'Cheque, "urgent"', "73.0000", "CDI|17"),
    ("Outstanding deposits", "2026-09-03", "D9", "Deposit\nof two", "200.1000", "DEP|19"),
]

# What follows the header, and what is said of it.
MALFORMED = (
    ("2026-09-01,1,A,0,12;50,,GJ,1", 'line 2: DetAmnt: "12;50" is not an amount'),
    ("2026-09-31,1,A,0,1,,GJ,1", 'line 2: DetDate: "2026-09-31" is no date; write one'),
    ("2026-09-01,1,A,maybe,1,,GJ,1", 'line 2: Conciliated: "maybe" is neither yes nor no'),
    (',1,"A\n\nB",0,1,1,GJ,1\n\n,1,A,0,1,x,GJ,1', 'line 6: ForeignAmnt: "x" is not an amount'),
    (",1,A,0,1,0.12345,GJ,1", 'line 2: ForeignAmnt: "0.12345" has more than four decimals'),
    (",1,A,0,1,1,GJ,1\n,1,Ch\udce8que,0,1,1,GJ,1", "line 3: it is no text in UTF-8; save it as"),
    ("2026-09-01,1,A,0,12,50,1,GJ,1", "line 2: it has 9 values and the header 8; separate"),
    (',1,"A,0,1,1,GJ,1\n', "line 2: a quoted value begins and never ends"),
    (',1,"A"B,0,1,1,GJ,1', 'line 2: after the quoted value "A" comes more'),
    (',1,A"B",0,1,1,GJ,1', 'line 2: there is a quote in the middle of "A"B""'),
)
HEADERS = (
    ("", "rows.csv is empty; its first line must name DetDate,DetRef,"),
    (HEADER.replace(",DetAmnt", ""), "line 1: the column DetAmnt is missing; the first line"),
    (HEADER.replace(",", ";"), "line 1: the column DetDate is missing; the first line"),
    (HEADER + ",detamnt", "line 1: the column DetAmnt is there twice"),
)


def in_words(amount):
    return f"{Decimal(repr(amount)):.4f}"


class ReconciliationFigures(VarnelTest):
    def bands(self, report, *arguments, **options):
        code, output, errors = self.run_varnel("run", report, "--company", "shop.db", "-O", "jsonl",
                                               *arguments, **options)
        self.assertEqual((0, ""), (code, errors))
        bands = [json.loads(line) for line in output.splitlines()]
        return [(band["section"], band["controls"]) for band in bands]

    def figures(self, bands):
        controls, = (controls for section, controls in bands if section == "ReportFooter")
        return [controls[name]["value"] for name in FIGURES]

    def header(self, bands):
        controls = bands[0][1]
        return controls["txtConcilAcctId"]["text"], controls["txtConcDate"]["value"]

    def items(self, bands):
        items, group = [], None
        for section, controls in bands:
            if section == "ghTransactionType":
                group = controls["lblTransactionType"]["text"]
            elif section == "Detail":
                def part(name, kind):
                    return controls.get(name, {}).get(kind) or None
                items.append((group, part("txtDetDate", "value"), part("txtDetRef", "text"),
                              part("txtDetDesc", "text"), part("txtAmount", "value"),
                              part("txtAmount", "key")))
        return items

    def statements(self, condition):
        with sqlite3.connect(self.folder / "shop.db") as database:
            rows = [row for row in database.execute(STATEMENTS) if condition(row[0])]
        self.assertTrue(rows)
        return rows

    def listed(self, account, date, foreign, condition):
        """Lines of an account as the tables have them: type, date, reference, text, key."""
        amount = "ForeignAmnt" if foreign else "DetAmnt"
        with sqlite3.connect(self.folder / "shop.db") as database:
            rows = database.execute(
                f"SELECT DetDate, DetRef, DetDesc, abs({amount}), Source || '|' || ExSrcKeyVal"
                f" FROM GLDet WHERE ExAcctId = ? AND DetDate <= ? AND DetAmnt <> 0 AND {condition}",
                (account, date)).fetchall()
        return sorted((day, reference or "", text or "", in_words(value), key)
                      for day, reference, text, value, key in rows)

    def test_saved_reconciliations_have_the_figures_of_their_statements(self):
        for history, account, date, *amounts, _, _ in self.statements(lambda id: id > 0):
            with self.subTest(history):
                bands = self.bands("bank-reconciliation", "--history", str(history))
                ending, deposits, withdrawals, ledger = map(in_words, amounts)
                self.assertEqual((account, date), self.header(bands))
                self.assertEqual([ending, deposits, withdrawals, ledger, ledger, "0.0000"],
                                 self.figures(bands))

    def test_a_saved_one_lists_what_is_not_ticked_and_with_the_option_what_it_ticked(self):
        open_today = "coalesce(Conciliated, 0) = 0"
        for history, _, date, *_, account, foreign in self.statements(lambda id: id > 0):
            ticked = f"({open_today} OR Conciliated <> 0 AND ExBankConcilHistoryId = {history})"
            for options, condition in (([], open_today), (INCLUDED, ticked)):
                with self.subTest(history=history, options=options):
                    items = self.items(self.bands("bank-reconciliation", "--history", str(history),
                                                  *options))
                    self.assertEqual(
                        self.listed(account, date, foreign, condition),
                        sorted((i[1], i[2] or "", i[3] or "", i[4], i[5]) for i in items))

    def test_a_line_that_was_reconciled_later_is_in_the_totals_and_not_in_the_list(self):
        bands = self.bands("bank-reconciliation", "--history", "3")
        listed = sum(Decimal(i[4]) for i in self.items(bands) if i[0] == "Outstanding withdrawals")
        with sqlite3.connect(self.folder / "shop.db") as database:
            later, = database.execute(
                "SELECT round(-sum(DetAmnt), 2) FROM GLDet JOIN GLAcct ON InGLAcctId = ExAcctId"
                " WHERE GLAcctId = '1020' AND DetDate <= '2026-07-31' AND DetAmnt < 0"
                " AND Conciliated <> 0 AND ExBankConcilHistoryId > 3").fetchone()
        self.assertGreater(later, 0)
        self.assertEqual(Decimal(self.figures(bands)[2]), listed + Decimal(repr(later)))

    def test_the_one_in_progress_has_the_outstanding_sums_and_a_difference_that_closes_it(self):
        (_, account, date, ending, deposits, withdrawals, ledger, _, _), = self.statements(
            lambda id: id == 0)
        bands = self.bands("bank-reconciliation", "--account", account, "--statement-date", date,
                           "--ending-balance", str(ending))
        adjusted = Decimal(str(ending)) + Decimal(str(deposits)) - Decimal(str(withdrawals))
        self.assertEqual((account, date), self.header(bands))
        self.assertEqual([*map(in_words, (ending, deposits, withdrawals)), f"{adjusted:.4f}",
                          in_words(ledger), f"{Decimal(str(ledger)) - adjusted:.4f}"],
                         self.figures(bands))
        for group, total in (("deposits", deposits), ("withdrawals", withdrawals)):
            self.assertEqual(Decimal(str(total)), sum(
                Decimal(i[4]) for i in self.items(bands) if i[0] == "Outstanding " + group))

    def run_rows(self, rows, *arguments, **options):
        return self.bands("current-bank-reconciliation", "--rows", rows, "--account", "1030",
                          "--statement-date", "2026-08-31", "--ending-balance", "-50.40",
                          *arguments, **options)

    def test_rows_of_a_foreign_account_are_listed_and_added_up_in_its_currency(self):
        (self.folder / "screen.csv").write_text(SCREEN, newline="")
        (*_, ledger, _, _), = self.statements(lambda id: id == 5)
        bands = self.run_rows("screen.csv")
        self.assertEqual(("1030", "2026-08-31"), self.header(bands))
        self.assertEqual("USD", bands[0][1]["txtCurrency"]["text"])
        self.assertEqual(OUTSTANDING, self.items(bands))
        # -50.40 + 200.10 - (73.00 + 1.00) = 75.70
        self.assertEqual(["-50.4000", "200.1000", "74.0000", "75.7000", in_words(ledger),
                          f"{Decimal(str(ledger)) - Decimal('75.70'):.4f}"], self.figures(bands))

    def test_ticked_rows_come_first_and_add_to_no_figure(self):
        (self.folder / "screen.csv").write_text(SCREEN, newline="")
        bands = self.run_rows("screen.csv", *INCLUDED)
        self.assertEqual(TICKED + OUTSTANDING, self.items(bands))
        self.assertEqual(["-50.4000", "200.1000", "74.0000"], self.figures(bands)[:3])

    def test_rows_come_from_standard_input_too(self):
        (self.folder / "screen.csv").write_text(SCREEN, newline="")
        with open(self.folder / "screen.csv", "rb") as screen:
            self.assertEqual(self.run_rows("screen.csv"), self.run_rows("-", stdin=screen))

    def test_rows_that_cannot_be_read_are_refused_with_line_and_column(self):
        files = [(HEADER + "\n" + rows, message) for rows, message in MALFORMED]
        for text, message in [*files, *HEADERS]:
            with self.subTest(message):
                (self.folder / "rows.csv").write_text(text, errors="surrogateescape")
                self.assert_refused(USAGE, message, "run", "current-bank-reconciliation",
                                    "--company", "shop.db", "--rows", "rows.csv", "--account",
                                    "1020", "--statement-date", "2026-09-30", "--ending-balance",
                                    "0", "-o", "out.txt")

    def test_only_a_bank_account_and_an_exact_ending_balance_are_taken(self):
        for account, ending, message in (
                ("4000", "0", "--account: 4000 is no bank account; there are 1020, 1030, 1040"),
                ("1020", "1.00005", '--ending-balance: "1.00005" has more than four decimals')):
            self.assert_refused(USAGE, message, "run", "bank-reconciliation", "--company",
                                "shop.db", "--account", account, "--statement-date", "2026-09-30",
                                "--ending-balance", ending)

    def test_a_file_that_is_not_there_or_is_a_folder_is_named(self):
        for rows, message in (("none.csv", "--rows: none.csv cannot be read: No such file"),
                              (".", "--rows: . cannot be read: Is a directory")):
            self.assert_refused(USAGE, message, "run", "current-bank-reconciliation", "--company",
                                "shop.db", "--rows", rows, "--account", "1020", "--statement-date",
                                "2026-09-30", "--ending-balance", "0")


if __name__ == "__main__":
    main()
