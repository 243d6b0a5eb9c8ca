import shutil
import sqlite3

from varnel import VarnelTest, main

DETAIL = ["compare", "trial-balance-detail", "--company", "shop.db"]
SUMMARY = ["compare", "trial-balance-summary", "--company", "shop.db"]
JANUARY = ["--from", "2025-01-01", "--to", "2025-01-31"]


class CompareTest(VarnelTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        shutil.copy(cls.folder / "shop.db", cls.folder / "changed.db")
        with sqlite3.connect(cls.folder / "changed.db") as company:
            # Of a bank account in January; then a line that is moved to another day, and one less.
            cls.lines = company.execute(
                "SELECT InGLDetId, DetAmnt, DetDate FROM GLDet JOIN GLAcct"
                " ON InGLAcctId = ExAcctId WHERE GLAcctId = 1020 AND DetAmnt > 20"
                " AND DetDate BETWEEN '2025-01-10' AND '2025-01-31' ORDER BY DetDate, SeqNo"
            ).fetchall()
            change, move, drop = (line[0] for line in cls.lines[:3])
            company.execute("UPDATE GLDet SET DetAmnt = DetAmnt + 10.25 WHERE InGLDetId = ?",
                            (change,))
            company.execute("UPDATE GLDet SET DetDate = '2025-01-09' WHERE InGLDetId = ?", (move,))
            company.execute("DELETE FROM GLDet WHERE InGLDetId = ?", (drop,))

    def compare(self, *arguments):
        code, output, errors = self.run_varnel(*arguments)
        self.assertEqual((0, ""), (code, errors))
        return [line.split() for line in output.decode().splitlines()]

    def test_lines_that_changed_are_told_with_their_amounts(self):
        lines = self.compare(*DETAIL, *JANUARY, "--with-company", "changed.db")
        changed, moved, dropped = (line[1] for line in self.lines[:3])
        figures = [line for line in lines if line[:1] in (["debit"], ["credit"], ["date"])]
        self.assertCountEqual(
            [["debit", f"{changed:,.2f}", f"{changed + 10.25:,.2f}", "10.25"],
             ["date", self.lines[1][2], "→", "2025-01-09"],
             ["debit", f"{dropped:,.2f}", f"{-dropped:,.2f}"]], figures)
        self.assertEqual(["1020"], [line[0] for line in lines if line[:1] == ["1020"]])
        self.assertIn("2 changed, 1 only before, 0 only after,", " ".join(lines[-1]))
        # The same the other way round.
        back = self.compare("compare", "trial-balance-detail", "--company", "changed.db", *JANUARY,
                            "--with-company", "shop.db")
        self.assertIn("2 changed, 0 only before, 1 only after,", " ".join(back[-1]))

    def test_balances_follow_their_lines(self):
        lines = self.compare(*SUMMARY, *JANUARY, "--with-company", "changed.db")
        changes = [line for line in lines if line[:1] in (["debit"], ["credit"])]
        self.assertEqual(1, len(changes))
        self.assertEqual(f"{10.25 - self.lines[2][1]:,.2f}", changes[0][-1])

    def test_nothing_changed_is_said(self):
        for report in ("trial-balance-summary", "trial-balance-detail", "income-statement"):
            lines = self.compare("compare", report, "--company", "shop.db", "--with-company",
                                 "shop.db")
            self.assertEqual(["nothing", "changed:"], lines[-1][:2], report)
            self.assertEqual(7, len(lines), report)  # Heads, and the count.

    def test_periods_are_compared_account_by_account_as_each_run_shows_them(self):
        def amounts(year):
            code, output, _ = self.run_varnel(
                "run", "income-statement", "--company", "shop.db", "--from", f"{year}-01-01",
                "--to", f"{year}-03-31", "-O", "jsonl")
            self.assertEqual(0, code)
            return output.decode()

        lines = self.compare("compare", "income-statement", "--company", "shop.db", "--from",
                             "2025-01-01", "--to", "2025-03-31", "--with-from", "2026-01-01",
                             "--with-to", "2026-03-31")
        changes = [line for line in lines if line[:1] == ["period"] and len(line) == 4]
        self.assertGreater(len(changes), 5)
        before, after = amounts(2025), amounts(2026)
        for _, first, second, difference in changes[:-1]:
            number = [float(text.replace(",", "")) for text in (first, second, difference)]
            self.assertAlmostEqual(number[1] - number[0], number[2], 4)
            self.assertIn(f'{number[0]:.2f}', before)
            self.assertIn(f'{number[1]:.2f}', after)

    def test_what_only_one_run_has_stands_under_its_account(self):
        _, output, _ = self.run_varnel(*DETAIL, *JANUARY, "--with-from", "2025-02-01",
                                       "--with-to", "2025-02-28")
        lines = output.decode().splitlines()[6:-2]
        with sqlite3.connect(self.folder / "shop.db") as company:
            counts = [company.execute(
                "SELECT count(*) FROM GLDet WHERE DetAmnt <> 0 AND DetDate LIKE ?",
                (f"2025-{month}-%",)).fetchone()[0] for month in ("01", "02")]
        told = [sum(line.endswith(f"(only {which})") and " 2025-" in line for line in lines)
                for which in ("before", "after")]
        self.assertEqual(counts, told)
        accounts = [line for line in lines if not line.startswith(" ")]
        self.assertGreater(len(accounts), 20)
        self.assertEqual(len(set(accounts)), len(accounts))

    def test_what_cannot_be_compared_is_refused(self):
        with_march = ["--with-to", "2025-03-31"]
        for message, arguments in (
                ("these reports do: ", ["compare", "general-journal", *with_march]),
                ("say what to compare with: ", [*SUMMARY, *JANUARY]),
                ("in what is compared with: --from",
                 [*SUMMARY, *JANUARY, "--with-from", "2025-xx-01"]),
                ("say which company", ["compare", "trial-balance-summary", *with_march]),
                ("takes no --projects", [*SUMMARY, "--projects", "3", *with_march]),
                ("there is no option --paper", [*SUMMARY, *with_march, "--paper", "a4"])):
            self.assert_refused(2, message, *arguments)
        self.assert_refused(1, "missing.db", *SUMMARY, "--with-company", "missing.db")
        self.assert_refused(3, "nothing was written", *SUMMARY, *with_march, "--filter",
                            "Nothing = 1")


if __name__ == "__main__":
    main()
