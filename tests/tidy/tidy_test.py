#!/usr/bin/env python3
"""Each check finds what it is there to find, on small trees made for it, and nothing else."""

import contextlib
import io
import tempfile
import unittest
from pathlib import Path

import folders
import sizes
import tidy
import words
from functions import function_bodies
from tree import Tree


class MadeUpTree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def write(self, path, text):
        (self.root / path).parent.mkdir(parents=True, exist_ok=True)
        (self.root / path).write_text(text, encoding="utf-8")

    def found(self, check):
        return [f"{finding.path}:{finding.line}" for finding in check(Tree(self.root))]


class Folders(MadeUpTree):
    def including(self, path, target):
        self.write(path, f"#pragma once\n  # include {target} // reason\n")
        return self.found(folders.check)

    def test_what_a_folder_may_not_include_is_found(self):
        for path, target in [
                ("host/a.h", '"engine/run.h"'),
                ("framework/a.cpp", '"reports/journal/a.h"'),
                ("accounts/a.cpp", '"engine/run.h"'),
                ("reports/journal/a.cpp", '"reports/bank/b.h"'),
                ("reports/a.cpp", '"reports/bank/b.h"'),
                ("reports/journal/a.cpp", '"engine/run.h"'),
                ("engine/a.cpp", '"framework/report.h"'),
                ("render/a.cpp", '"engine/runner.h"'),
                ("render/a.cpp", '"host/date.h"'),
                ("drivers/a.cpp", '"company/b.h"'),
                ("company/a.cpp", '"accounts/b.h"'),
                ("company/a.cpp", '"tests/b.h"'),
                ("tests/host/a.cpp", '"date.h"')]:
            with self.subTest(path=path, target=target):
                self.assertEqual(self.including(path, target), [f"{path}:2"])
                (self.root / path).unlink()

    def test_what_a_folder_may_include_is_left_alone(self):
        for path, target in [
                ("host/a.h", '"host/b.h"'),
                ("reports/journal/a.cpp", '"reports/journal/a.h"'),
                ("reports/journal/a.cpp", '"accounts/a.h"'),
                ("reports/catalogue.cpp", '"reports/bank/b.h"'),
                ("reports/a.cpp", '"reports/b.h"'),
                ("render/a.cpp", '"engine/document.h"'),
                ("cli/a.cpp", '"engine/run.h"'),
                ("tests/host/a.cpp", '"engine/run.h"')]:
            with self.subTest(path=path, target=target):
                self.assertEqual(self.including(path, target), [])

    def test_a_vendor_header_out_of_place_is_found(self):
        for path, target in [
                ("host/a.cpp", "<sqlite3.h>"), ("reports/bank/a.h", "<unicode/ustring.h>"),
                ("engine/a.cpp", "<unistd.h>"), ("tests/host/a.h", "<hb.h>"),
                ("bench/a.h", "<CLI/CLI.hpp>"), ("examples/a.h", "<harfbuzz/hb-subset.h>")]:
            with self.subTest(path=path, target=target):
                self.assertEqual(self.including(path, target), [f"{path}:2"])
                (self.root / path).unlink()

    def test_vendor_and_standard_headers_in_place_are_left_alone(self):
        for path, target in [
                ("drivers/a.cpp", "<sqlite3.h>"), ("render/a.h", "<hb.h>"),
                ("cli/a.cpp", "<curses.h>"), ("bench/a.cpp", "<sqlite3.h>"),
                ("host/a.h", "<cstdint>")]:
            with self.subTest(path=path, target=target):
                self.assertEqual(self.including(path, target), [])


class Sizes(MadeUpTree):
    def test_a_function_of_71_lines_is_found_and_one_of_70_is_not(self):
        filling = "    f();\n"
        self.write("a.cpp", "void Long() {\n" + filling * 69 + "}\n"
                   "void Short() {\n" + filling * 68 + "}\n")
        self.assertEqual(self.found(sizes.check), ["a.cpp:1"])

    def test_a_long_file_is_found(self):
        self.write("a.cpp", "int a;\n" * 601)
        self.write("b.h", "int a;\n" * 600)
        self.assertEqual(self.found(sizes.check), ["a.cpp:601"])

    def test_a_long_line_is_found_and_its_characters_are_counted_not_its_bytes(self):
        self.write("a.h", "// " + "x" * 98 + "\n// " + "é" * 97 + "\n// " + "漢" * 49 + "\n")
        self.assertEqual(self.found(sizes.check), ["a.h:1", "a.h:3"])

    def test_a_long_readme_is_found(self):
        self.write("README.md", "text\n" * 151)
        self.assertEqual(self.found(sizes.check), ["README.md:151"])


class Functions(unittest.TestCase):
    def test_bodies_are_told_from_scopes_and_values(self):
        for text, bodies in [
                ("namespace a {\nvoid f() {\n}\n}", [(2, 3)]),
                ("struct A {\n int g() const {\n  if (x) {\n  }\n }\n};", [(2, 5)]),
                ("class alignas(8) A {\n void f() {\n }\n};", [(2, 3)]),
                ("A::A(int b)\n    : b_{b}, c_(b), d_{\n1} {\n}", [(3, 4)]),
                ("constexpr Row kRows[] = {\n {1},\n};\nint f() {\n}", [(4, 5)]),
                ("constexpr std::array<Row, 2> kRows{{\n {f()},\n}};", []),
                ("const auto kRows = Make({\n {1},\n});", []),
                ("bool operator==(A a, A b) {\n}", [(1, 2)]),
                ("template <typename T = int>\nauto f(T t = {}) -> std::vector<T> {\n}", [(2, 3)]),
                ("const auto f = [](int a) {\n return a;\n};", [(1, 3)]),
                ("TEST(A, b) {\n auto f = [] {\n };\n}", [(1, 4)]),
                ('extern "C" {\nvoid f() {\n}\n}', [(2, 3)]),
                ("#define A {\\\n {\nvoid f() { // {\n '{'; \"{\\\"{\"; R\"x({)\")x\"; 1'000;\n}",
                 [(3, 5)])]:
            with self.subTest(text=text):
                self.assertEqual(function_bodies(text), bodies)


class Words(MadeUpTree):
    def test_a_reference_to_a_document_elsewhere_is_found(self):
        for text in ["the Speci" "fication", "in spec" ".md", "Pa" "rt 2.4", "fixes issue " "#12"]:
            with self.subTest(text=text):
                self.write("docs/a.md", "\n" + text)
                self.assertEqual(self.found(words.check), ["docs/a.md:2"])

    def test_a_file_named_after_one_is_found(self):
        self.write("docs/speci" "fication-notes.md", "text")
        self.assertEqual(len(self.found(words.check)), 1)

    def test_ordinary_words_and_binary_files_are_left_alone(self):
        self.write("a.md", "a special part of 2, the issue with #1, specific, respect.md\n")
        self.write("b.bin", "\0in spec" ".md")
        self.assertEqual(self.found(words.check), [])


class Command(MadeUpTree):
    def run_tidy(self):
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            return tidy.main(["sizes", str(self.root)]), output.getvalue()

    def test_findings_are_printed_and_make_it_fail(self):
        self.write("a.cpp", "x" * 101)
        status, output = self.run_tidy()
        self.assertEqual(status, 1)
        self.assertEqual(output, "a.cpp:1: 101 columns; break the line at 100\n")

    def test_a_clean_tree_passes_and_folders_of_builds_are_skipped(self):
        self.write("build/a.cpp", "x" * 101)
        self.assertEqual(self.run_tidy(), (0, ""))


if __name__ == "__main__":
    unittest.main()
