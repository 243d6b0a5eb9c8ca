import csv
import json
import os
import resource
import sqlite3
import threading
import unittest

from varnel import JANUARY, VarnelTest, main

FAILED = 1


class Output(VarnelTest):
    def write(self, *arguments):
        """Runs the journal of January and fails the test when that fails."""
        code, output, errors = self.run_varnel(*JANUARY, *arguments)
        self.assertEqual((0, ""), (code, errors))
        return output

    def journal_lines(self):
        with sqlite3.connect(self.folder / "shop.db") as database:
            return database.execute(
                "SELECT count(*) FROM GLDet WHERE Source IN ('GJ', 'BKT', 'BRC')"
                " AND DetDate BETWEEN '2025-01-01' AND '2025-01-31'").fetchone()[0]

    def test_the_ending_of_the_file_chooses_the_format(self):
        beginnings = {"pdf": b"%PDF-", "csv": b"entry,", "jsonl": b'{"section"', "txt": b"Tamarack"}
        for ending, beginning in beginnings.items():
            self.assertEqual(b"", self.write("-o", f"journal.{ending}"))
            self.assertEqual(beginning,
                             (self.folder / f"journal.{ending}").read_bytes()[:len(beginning)])

    def test_an_asked_format_wins_over_the_ending(self):
        self.write("-O", "csv", "-o", "journal.data")
        self.assertTrue((self.folder / "journal.data").read_bytes().startswith(b"entry,"))

    def test_a_dash_is_standard_output(self):
        self.write("-o", "same.csv")
        self.assertEqual((self.folder / "same.csv").read_bytes(),
                         self.write("-O", "csv", "-o", "-"))
        self.assertFalse((self.folder / "-").exists())

    def test_csv_and_json_lines_hold_every_line_of_the_period(self):
        records = list(csv.DictReader(self.write("-O", "csv").decode().splitlines()))
        bands = [json.loads(line) for line in self.write("-O", "jsonl").splitlines()]
        self.assertEqual(self.journal_lines(), len(records))
        self.assertEqual(self.journal_lines(), sum(b["section"] == "Detail" for b in bands))

    def test_the_same_run_gives_the_same_bytes(self):
        for name in ("txt", "pdf", "csv", "jsonl"):
            self.assertEqual(self.write("-O", name), self.write("-O", name), name)

    def test_text_goes_to_standard_output_when_nothing_is_said(self):
        text = self.write().decode()
        self.assertIn("General Journal", text)
        self.assertNotIn("\x1b", text)
        self.assertEqual(120, max(len(line) for line in text.splitlines()))

    def test_paper_and_its_turn_reach_the_pdf(self):
        for arguments, box in ((["--paper", "A4"], b"595.3 841.9"), ([], b"612 792"),
                               (["--landscape"], b"792 612")):
            self.assertIn(box, self.write("-O", "pdf", *arguments))

    def test_segments_and_language_reach_the_page(self):
        text = self.write("--segments", "1", "--no-segment", "--lang", "FR-ca").decode()
        self.assertIn("Journal général", text)
        self.assertIn("RET - Boutique, rue des Érables, sans segment", text)

    def test_a_link_stays_a_link(self):
        (self.folder / "link.csv").symlink_to("target.csv")
        self.write("-o", "link.csv")
        self.assertTrue((self.folder / "link.csv").is_symlink())
        self.assertTrue((self.folder / "target.csv").read_bytes().startswith(b"entry,"))

    def test_a_replaced_file_keeps_its_mode_and_a_new_one_follows_the_umask(self):
        (self.folder / "private.csv").touch(mode=0o600)
        self.write("-o", "private.csv")
        self.write("-o", "new.csv")
        mask = os.umask(0)
        os.umask(mask)
        self.assertEqual(0o600, (self.folder / "private.csv").stat().st_mode & 0o777)
        self.assertEqual(0o666 & ~mask, (self.folder / "new.csv").stat().st_mode & 0o777)

    def test_a_pipe_is_written_directly(self):
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        received = []
        reader = threading.Thread(target=lambda: received.append(pipe.read_bytes()))
        reader.start()
        self.write("-O", "csv", "-o", "pipe")
        reader.join()
        self.assertTrue(received[0].startswith(b"entry,"))
        self.assertTrue(pipe.is_fifo())

    def test_a_full_disk_is_told_and_fails(self):
        self.assert_refused(FAILED, "cannot write /dev/full: No space left", *JANUARY,
                            "-o", "/dev/full")
        with open("/dev/full", "wb") as full:
            code, _, errors = self.run_varnel(*JANUARY, stdout=full)
            self.assertEqual(FAILED, code)
            self.assertIn("cannot write standard output: No space left", errors)
            self.assertEqual(FAILED, self.run_varnel("reports", stdout=full)[0])

    def test_a_limit_on_file_sizes_is_told_and_leaves_nothing(self):
        def limit():
            resource.setrlimit(resource.RLIMIT_FSIZE, (4096, 4096))

        before = set(self.folder.iterdir())
        code, _, errors = self.run_varnel(*JANUARY, "-o", "big.pdf", preexec_fn=limit)
        self.assertEqual(FAILED, code)
        self.assertIn("File too large; raise the limit on file sizes", errors)
        self.assertEqual(before, set(self.folder.iterdir()))

    def test_a_place_that_cannot_be_written_is_told(self):
        self.assert_refused(FAILED, "there is no folder nowhere", *JANUARY, "-o", "nowhere/a.csv")
        self.assert_refused(FAILED, "it is a folder", *JANUARY, "-O", "csv", "-o", ".")
        self.assert_refused(FAILED, "cannot create /proc/a.csv", *JANUARY, "-o", "/proc/a.csv")

    def test_missing_fonts_are_told_by_a_pdf_alone(self):
        env = {"VARNEL_FONT_DIR": "/nowhere"}
        code, _, errors = self.run_varnel(*JANUARY, "-o", "a.pdf", env=env)
        self.assertEqual(FAILED, code)
        self.assertIn("/nowhere", errors)
        self.assertFalse((self.folder / "a.pdf").exists())
        self.assertEqual(0, self.run_varnel(*JANUARY, "-o", "a.csv", env=env)[0])

    @unittest.skipIf(os.geteuid() == 0, "root may write everywhere")
    def test_a_file_that_may_not_be_written_is_not_replaced(self):
        (self.folder / "kept.csv").touch(mode=0o444)
        self.assert_refused(FAILED, "cannot create kept.csv: Permission denied", *JANUARY,
                            "-o", "kept.csv")


if __name__ == "__main__":
    main()
