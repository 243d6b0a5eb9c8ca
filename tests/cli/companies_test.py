import shutil
import sqlite3

from varnel import JOURNAL, VarnelTest, main

FAILED = 1


class Companies(VarnelTest):
    def refuse_company(self, file, message):
        self.assert_refused(FAILED, message, "run", "general-journal", "--company", file,
                            "-o", "out.csv")

    def damage(self, name, statement):
        shutil.copy(self.folder / "shop.db", self.folder / name)
        with sqlite3.connect(self.folder / name) as database:
            database.execute(statement)

    def test_a_file_that_is_not_there_is_named_and_not_made(self):
        self.refuse_company("nowhere.db", 'no file "nowhere.db"')

    def test_a_file_that_is_no_database_is_named(self):
        (self.folder / "letter.db").write_text("Dear Sir or Madam, " * 100)
        self.refuse_company("letter.db", '"letter.db" is something else')

    def test_a_folder_is_no_company(self):
        self.refuse_company(".", '"." is a folder')

    def test_a_missing_table_is_named(self):
        self.damage("no_segments.db", "DROP TABLE Segment")
        self.refuse_company("no_segments.db", "no such table: Segment")

    def test_a_missing_column_is_named(self):
        self.damage("no_remarks.db", "ALTER TABLE GLDet RENAME COLUMN Remarks TO Notes")
        self.refuse_company("no_remarks.db", "table GLDet has no column Remarks")

    def test_a_company_without_home_currency_is_refused(self):
        self.damage("homeless.db",
                    "DELETE FROM CompanySetting WHERE SettingName = 'HomeCurrencyId'")
        self.refuse_company("homeless.db", "homeless.db has no home currency: set HomeCurrencyId")

    def test_demo_replaces_a_file_only_by_force(self):
        (self.folder / "mine.db").write_text("mine")
        self.assert_refused(FAILED, "mine.db exists already", "demo", "mine.db")
        self.assertEqual("mine", (self.folder / "mine.db").read_text())
        code, _, errors = self.run_varnel("demo", "mine.db", "--force", "--lines", "1000")
        self.assertEqual((0, ""), (code, errors))
        self.assertNotEqual("mine", (self.folder / "mine.db").read_bytes()[:4].decode())

    def test_demo_into_a_missing_folder_is_refused(self):
        self.assert_refused(FAILED, "there is no folder nowhere", "demo", "nowhere/new.db")

    def test_the_same_seed_makes_the_same_company(self):
        for name, seed in (("a", "7"), ("b", "7"), ("c", "8")):
            self.run_varnel("demo", f"{name}.db", "--lines", "1000", "--seed", seed)
        a, b, c = (self.run_varnel("run", "general-journal", "--company", f"{name}.db")[1]
                   for name in "abc")
        self.assertEqual(a, b)
        self.assertNotEqual(a, c)

    def test_a_run_leaves_the_company_as_it_was(self):
        before = (self.folder / "shop.db").read_bytes()
        self.run_varnel(*JOURNAL, "-O", "csv")
        self.assertEqual(before, (self.folder / "shop.db").read_bytes())


if __name__ == "__main__":
    main()
