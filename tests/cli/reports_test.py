import subprocess

from varnel import PROGRAM, VarnelTest, main


class Reports(VarnelTest):
    def test_reports_are_listed_with_their_titles_and_options(self):
        code, output, errors = self.run_varnel("reports")
        self.assertEqual((0, ""), (code, errors))
        lines = output.decode().splitlines()
        at = next(i for i, line in enumerate(lines) if line.startswith("general-journal "))
        self.assertTrue(lines[at].endswith("General Journal"))
        self.assertEqual("--from --to --segments --no-segment --filter --foreign --property",
                         lines[at + 1].strip())

    def test_titles_come_in_the_language_asked_for(self):
        _, output, _ = self.run_varnel("reports", "--lang", "fr-CA")
        self.assertIn("Journal général", output.decode())
        self.assertIn("État des résultats comparatif - budget", output.decode())

    def test_every_listed_report_runs(self):
        _, output, _ = self.run_varnel("reports")
        lines = output.decode().splitlines()
        (self.folder / "rows.csv").write_text("DetDate,DetRef,DetDesc,Conciliated,DetAmnt,"
                                              "ForeignAmnt,Source,ExSrcKeyVal\n")
        subjects = {"--account": "1030", "--currency": "USD", "--projects": "1",
                    "--statement-date": "2026-09-30", "--ending-balance": "100.00",
                    "--rows": "rows.csv"}
        names = [line.split()[0] for line in lines[::2]]
        self.assertIn("general-journal", names)
        for name, options in zip(names, lines[1::2]):
            needed = [word for option, value in subjects.items() if option in options.split()
                      for word in (option, value)]
            self.assertEqual(0, self.run_varnel("run", name, "--company", "shop.db", *needed,
                                                "-o", "report.txt")[0], name)


class Completion(VarnelTest):
    def complete(self, line):
        """What bash offers for the last word of the line."""
        words = line.split(" ")
        array = " ".join(f"'{word}'" for word in words)
        script = (f"source <('{PROGRAM}' completion bash); COMP_WORDS=({array});"
                  f" COMP_CWORD={len(words) - 1}; _varnel; echo \"${{COMPREPLY[*]}}\"")
        return subprocess.run(["bash", "-c", script], cwd=self.folder, check=True,
                              capture_output=True, text=True).stdout.split()

    def test_commands_reports_options_and_values_are_completed(self):
        for line, words in {"varnel re": ["reports"], "varnel run general-j": ["general-journal"],
                            "varnel run general-journal --seg": ["--segments"],
                            "varnel run general-journal -O js": ["jsonl"],
                            "varnel run general-journal --format p": ["pdf"],
                            "varnel run --company sh": ["shop.db"],
                            "varnel reports --lang f": ["fr-CA"],
                            "varnel demo --f": ["--force"]}.items():
            with self.subTest(line=line):
                self.assertEqual(words, self.complete(line))


if __name__ == "__main__":
    main()
