"""Runs the varnel program in a folder that holds a small demo company, shop.db."""

import os
import pathlib
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["VARNEL"]
JOURNAL = ["run", "general-journal", "--company", "shop.db"]
JANUARY = [*JOURNAL, "--from", "2025-01-01", "--to", "2025-01-31"]

# A condition that is true and slow: a millisecond or more for each row.
SLOW_FILTER = ("(WITH RECURSIVE n(x) AS (SELECT GLDet.InGLDetId UNION ALL SELECT x + 1 FROM n"
               " WHERE x < GLDet.InGLDetId + 20000) SELECT count(*) FROM n) > 0")


class VarnelTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        cls.folder = pathlib.Path(cls.temporary.name)
        cls.start("demo", "shop.db").communicate()

    @classmethod
    def tearDownClass(cls):
        cls.temporary.cleanup()

    @classmethod
    def start(cls, *arguments, **options):
        environment = {**os.environ, "LC_ALL": "C.UTF-8", **options.pop("env", {})}
        options.setdefault("stdout", subprocess.PIPE)
        options.setdefault("stderr", subprocess.PIPE)
        options.setdefault("stdin", subprocess.DEVNULL)
        return subprocess.Popen([PROGRAM, *arguments], cwd=cls.folder, env=environment,
                                **options)

    def remove_all_but_the_shop(self):
        for place in self.folder.iterdir():
            if place.name != "shop.db":
                place.unlink()

    def run_varnel(self, *arguments, **options):
        """Exit code, bytes of standard output, text of standard error."""
        process = self.start(*arguments, **options)
        output, errors = process.communicate(timeout=60)
        return process.returncode, output, (errors or b"").decode()

    def assert_refused(self, code, message, *arguments):
        """Fails with that code and says the message, on standard error alone, leaving no file."""
        before = sorted(self.folder.iterdir())
        actual, output, errors = self.run_varnel(*arguments)
        self.assertEqual((code, b""), (actual, output), errors)
        self.assertTrue(errors.startswith("varnel: "), errors)
        self.assertIn(message, errors)
        self.assertEqual(before, sorted(self.folder.iterdir()))


main = unittest.main
