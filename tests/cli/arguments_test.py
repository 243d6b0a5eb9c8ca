from varnel import JOURNAL, VarnelTest, main

USAGE = 2
DETAIL = ["run", "unrealized-exchange-detail", "--company", "shop.db"]
SAVED = ["run", "bank-reconciliation", "--company", "shop.db"]
STATEMENT = [*SAVED, "--account", "1020", "--statement-date", "2026-09-30"]

REFUSED = [
    ([], "say which command"),
    (["rnu"], "there is no command rnu; did you mean run?"),
    (["--vresion"], "there is no option --vresion; did you mean --version?"),
    (["run"], "say which report"),
    (["run", "genral-jornal"], "no report genral-jornal; did you mean general-journal?"),
    (["run", "\x1b[2Jzzzzz"], "there is no report  [2Jzzzzz\n"),
    (["run", "zzzzz"], "there is no report zzzzz\n"),
    (["run", "general-journal"], "say which company: --company FILE"),
    (["run", "general-journal", "--compny", "x"], "no option --compny; did you mean --company?"),
    ([*JOURNAL, "--frm=2025-01-01"], "no option --frm; did you mean --from?"),
    ([*JOURNAL, "more"], "unexpected argument: more"),
    ([*JOURNAL, "--from"], "--from: the value is missing"),
    ([*JOURNAL, "--from", ""], "--from: the value is empty"),
    ([*JOURNAL, "--from", "2025-02-29"], "--from: 2025-02-29 is no date"),
    ([*JOURNAL, "--to", "31/03/2025"], "--to: 31/03/2025 is no date"),
    ([*JOURNAL, "--session-date", "today"], "--session-date: today is no date"),
    ([*JOURNAL, "--from", "2025-02-01", "--to", "2025-01-31"],
     "--from 2025-02-01 is after --to 2025-01-31"),
    ([*JOURNAL, "--segments", "3,x"], '--segments: "x" is no id'),
    ([*JOURNAL, "--segments", "3,"], '--segments: "" is no id'),
    ([*JOURNAL, "--segments", "99999999999"], '"99999999999" is no id'),
    ([*JOURNAL, "--segments", "1,99"], "there is no segment 99; there are:\n  1  RET - "),
    ([*JOURNAL, "--property", "Colour=red"],
     '--property Colour: dsrGeneralJournal has no member "Colour"'),
    ([*JOURNAL, "--property", "IReport_DateFrom=2025-01-01"],
     "--property IReport_DateFrom: use --from instead"),
    ([*JOURNAL, "--property", "ireport_dateto=2025-01-01"], "use --to instead"),
    ([*JOURNAL, "--property", "IReport_Application=1"], "use --company instead"),
    ([*JOURNAL, "--property", "IReport_DisplayForeignCurrency=1"], "use --foreign instead"),
    ([*JOURNAL, "--property", "IFilterableReport_Filter=1=0"], "use --filter instead"),
    ([*JOURNAL, "--property", "ISegmentFilter_SegmentFilter=1"], "use --segments instead"),
    ([*JOURNAL, "--property", "ISegmentFilter_SegmentNoneFilter=1"], "use --no-segment instead"),
    ([*JOURNAL, "--filter", "1=1) OR (1=1"],
     '--filter "1=1) OR (1=1": in the criteria, at character 4, '),
    ([*JOURNAL, "--filter", "1 = 1); DELETE FROM GLDet; --"], "at character 6, the parenthesis"),
    ([*JOURNAL, "--filter", "1=1|DetDate; --"], "in the ordering, at character 12, a semicolon"),
    ([*JOURNAL, "--filter", "DetRef = '"], "a quoted text or name begins and never ends"),
    ([*JOURNAL, "--property", "Colour"], '"Colour" is no property; write Name=value'),
    ([*JOURNAL, "--configure"], "general-journal takes no --configure"),
    ([*JOURNAL, "--option", "zero=yes"], "general-journal takes no --option"),
    ([*JOURNAL, "--option", "zero"], '--option: "zero" is no option; write name=yes'),
    ([*JOURNAL, "--option", "zero=maybe"], '--option zero: "maybe" is neither yes nor no'),
    ([*JOURNAL, "--account", "1030"], "general-journal takes no --account"),
    ([*JOURNAL, "--currency", "USD"], "general-journal takes no --currency"),
    ([*JOURNAL, "--projects", "3"], "general-journal takes no --projects"),
    ([*JOURNAL, "--account-type", "4"], "general-journal takes no --account-type"),
    (["run", "general-ledger", "--account-type", "x"], '--account-type: "x" is no id'),
    ([*JOURNAL, "--cumulative-to", "2025-03-31"], "general-journal takes no --cumulative-to"),
    ([*DETAIL, "--currency", "USD"], "is about one account: add --account NUMBER"),
    ([*DETAIL, "--account", "1030"], "is about one currency: add --currency CODE"),
    ([*DETAIL, "--account", "1031", "--currency", "USD"],
     "--account: the company has no account 1031; did you mean 1030?"),
    ([*DETAIL, "--account", "%", "--currency", "USD"], "the company has no account %\n"),
    ([*DETAIL, "--account", "1030", "--currency", "UDS"],
     "--currency: the company has no currency UDS; did you mean USD?"),
    ([*DETAIL, "--account", "1030", "--currency", "cad"],
     "--currency: cad is the company's own currency; name a foreign one"),
    ([*DETAIL, "--account", "1030", "--property", "ExCurrencyId=2"], "use --currency instead"),
    ([*SAVED, "--history", "9"], "no saved reconciliation 9; there are:\n  1  1020 - 2026-05-31\n"),
    ([*SAVED, "--history", "three"], '--history: "three" is no id; write one number'),
    ([*SAVED, "--history", "3", "--account", "1020"], "--history: leave out --account"),
    ([*SAVED, "--history", "3", "--ending-balance", "1"], "--history: leave out --ending-balance"),
    ([*SAVED, "--history", "3", "--to", "2026-09-30"], "bank-reconciliation takes no --to"),
    ([*SAVED, "--history", "3", "--filter", "1=1"], "bank-reconciliation takes no --filter"),
    ([*SAVED, "--history", "3", "--property", "difamnt=1"], "--property difamnt: leave it out"),
    ([*SAVED, "--history", "3", "--property", "ConcDate=1"], "use --statement-date instead"),
    (SAVED, "add --account NUMBER, or --history ID for a saved reconciliation"),
    ([*SAVED, "--account", "1020"], "is about one bank statement: add --statement-date DATE"),
    ([*STATEMENT, "--ending-balance", "12,50"], '--ending-balance: "12,50" is not an amount'),
    ([*STATEMENT, "--rows", "x.csv"], "bank-reconciliation takes no --rows"),
    ([*JOURNAL, "--history", "3"], "general-journal takes no --history"),
    ([*JOURNAL, "--lang", "de"], "there is no language de: use en-CA or fr-CA"),
    ([*JOURNAL, "--paper", "a5"], "there is no paper a5: use letter or a4"),
    ([*JOURNAL, "-O", "docx"], "there is no format docx: use txt, pdf, csv or jsonl"),
    ([*JOURNAL, "-o", "journal.docx"], "the ending of journal.docx tells no format"),
    ([*JOURNAL, "-O", "csv", "-o", "./shop.db"], "./shop.db is the company itself"),
    (["demo"], "say where the demo company goes"),
    (["demo", "-"], "demo: a company goes to a file, not to standard output"),
    (["copy", "shop.db", "-"], "copy: a company goes to a file, not to standard output"),
    (["demo", "new.db", "--lines", "10"], "from 1,000 to 100,000,000 ledger lines"),
    (["demo", "new.db", "--lines", "many"], "--lines: many is no number; write it in digits"),
    (["completion", "zsh"], "there is no shell zsh"),
    (["reports", "--lang", "de"], "there is no language de"),
]


# What is wrong with an option is told in words, and with the help of its command.
HINTED = [
    ([*JOURNAL, "--from", ""], "--from: the value is empty", "run"),
    ([*JOURNAL, "--company", "x"], "--company: it is given more than once", "run"),
    ([*JOURNAL, "--lang"], "--lang: the value is missing", "run"),
    ([*JOURNAL, "--foreign=maybe"], "--foreign: it takes no value; leave out =maybe", "run"),
    (["demo", "new.db", "--lines", "abc"], "--lines: abc is no number", "demo"),
    (["demo", "new.db", "--seed", "-1"], "--seed: -1 is no number", "demo"),
    (["demo", "new.db", "--lines", "1000", "--lines", "2000"], "--lines: it is given more", "demo"),
    (["demo", "new.db", "--force=x"], "--force: it takes no value; leave out =x", "demo"),
    (["reports", "--lang", ""], "--lang: the value is empty", "reports"),
]


class Arguments(VarnelTest):
    def test_options_of_a_dialog_are_refused_when_nothing_can_answer_them(self):
        balances = ["run", "trial-balance-summary", "--company", "shop.db"]
        for arguments, message in (
                (["--configure"], "--configure needs a terminal"),
                (["--option", "zero=yes"], 'no check box "zero"; it has chkIncludeZeroBalance')):
            code, output, errors = self.run_varnel(*balances, *arguments, start_new_session=True)
            self.assertEqual((USAGE, b""), (code, output))
            self.assertIn(message, errors)

    def test_a_malformed_argument_is_named_and_exits_with_2(self):
        for arguments, message in REFUSED:
            with self.subTest(arguments=arguments):
                self.assert_refused(USAGE, message, *arguments)

    def test_a_malformed_option_is_told_in_words_with_the_help_of_its_command(self):
        for arguments, message, command in HINTED:
            with self.subTest(arguments=arguments):
                self.assert_refused(USAGE, message, *arguments)
                self.assertEqual(f'  "varnel {command} --help" tells what there is',
                                 self.run_varnel(*arguments)[2].splitlines()[-1])

    def test_every_command_has_help(self):
        for command in ([], ["demo"], ["reports"], ["run"], ["completion"]):
            with self.subTest(command=command):
                code, output, errors = self.run_varnel(*command, "--help")
                self.assertEqual((0, ""), (code, errors))
                self.assertIn(b"Usage: varnel", output)

    def test_help_of_run_tells_the_exit_codes(self):
        _, output, _ = self.run_varnel("run", "--help")
        for words in (b"0 done", b"1 failed", b"2 unknown", b"3 the report", b"130 interrupted"):
            self.assertIn(words, output)


if __name__ == "__main__":
    main()
