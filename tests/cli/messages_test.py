import csv
import sqlite3

from varnel import JANUARY, JOURNAL, VarnelTest, main

MESSAGES_SHOWN = 3

FILTERS = {
    "Colour = 'red'": "no such column: Colour",
    "GLDet.DetAmnt >": "syntax error",
    "load_extension('evil') = 1": "it may not call load_extension",
}


class Messages(VarnelTest):
    def test_a_filter_that_cannot_run_is_told_and_counted_and_nothing_is_written(self):
        for text, message in FILTERS.items():
            for target in (["-o", "out.csv"], ["-O", "pdf"], ["-O", "txt"]):
                with self.subTest(filter=text, target=target):
                    self.assert_refused(MESSAGES_SHOWN, message, *JANUARY, "--filter", text,
                                        *target)

    def test_the_count_is_said_last(self):
        _, _, errors = self.run_varnel(*JANUARY, "--filter", "Colour = 1")
        self.assertIn("\n  in Varnel.dsrGeneralJournal.ActiveReport_ReportStart at line ", errors)
        self.assertEqual("varnel: the report showed 1 message; nothing was written",
                         errors.splitlines()[-1])

    def test_a_filter_that_cannot_run_is_pointed_at_in_one_line(self):
        _, _, errors = self.run_varnel(*JANUARY, "--filter", "Colour = 'red'")
        cause, statement, _, pointer, _ = errors.splitlines()
        self.assertTrue(cause.startswith("varnel: no such column: Colour. No table"), cause)
        self.assertTrue(statement.startswith("  Statement: SELECT"), statement)
        self.assertEqual("varnel: in --filter \"Colour = 'red'\", look at the names of columns, the"
                         " operators and the quotes", pointer)

    def test_a_failed_start_keeps_the_file_of_an_earlier_run(self):
        (self.folder / "kept.csv").write_text("earlier")
        self.run_varnel(*JANUARY, "--filter", "Colour = 1", "-o", "kept.csv")
        self.assertEqual("earlier", (self.folder / "kept.csv").read_text())

    def test_a_filter_that_selects_nothing_is_no_failure(self):
        code, output, errors = self.run_varnel(*JANUARY, "--filter", "1 = 0", "-O", "csv")
        self.assertEqual((0, ""), (code, errors))
        self.assertEqual(1, len(output.splitlines()))

    def amounts_by_entry(self, *arguments):
        _, output, _ = self.run_varnel(*JANUARY, "-O", "csv", *arguments)
        entries = {}
        for record in csv.DictReader(output.decode().splitlines()):
            amount = float(record["debit"] or 0) - float(record["credit"] or 0)
            entries.setdefault(record["entry"], []).append(amount)
        return list(entries.values())

    def test_ordering_follows_the_bar(self):
        def sorted_down(amounts):
            return amounts == sorted(amounts, reverse=True)

        self.assertFalse(all(map(sorted_down, self.amounts_by_entry())))
        self.assertTrue(all(map(sorted_down, self.amounts_by_entry("--filter",
                                                                   "|GLDet.DetAmnt DESC"))))

    def test_a_fault_in_some_rows_is_told_and_the_rest_is_written(self):
        with sqlite3.connect(self.folder / "shop.db") as database:
            database.execute("UPDATE GLDet SET DetAmnt = 'much' WHERE InGLDetId IN (SELECT"
                             " InGLDetId FROM GLDet WHERE Source = 'GJ' AND DetDate BETWEEN"
                             " '2024-03-01' AND '2024-03-31' LIMIT 25)")
        code, output, errors = self.run_varnel(*JOURNAL, "--from", "2024-03-01", "--to",
                                               "2024-03-31", "-o", "march.csv")
        self.assertEqual((MESSAGES_SHOWN, b""), (code, output))
        self.assertGreater(len((self.folder / "march.csv").read_text().splitlines()), 25)
        self.assertEqual(20, errors.count("in Varnel.dsrGeneralJournal.Detail_Format at line"))
        self.assertEqual("varnel: the report showed 25 messages", errors.splitlines()[-1])


if __name__ == "__main__":
    main()
