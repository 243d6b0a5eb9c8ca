"""A database of its own on the PostgreSQL server of the tests."""

import os
import pathlib
import sqlite3
import subprocess
import time
import unittest

from varnel import VarnelTest

SERVER = os.environ.get("VARNEL_POSTGRES", "")
if SERVER:
    os.environ["ODBCSYSINI"] = SERVER


@unittest.skipUnless(SERVER and pathlib.Path(SERVER).exists(),
                     "there is no PostgreSQL server for the tests")
class ServerTest(VarnelTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.database = f"{cls.__name__.lower()}_{os.getpid()}"
        cls.sql(f"CREATE DATABASE {cls.database}", "postgres")
        cls.server = f"postgresql://varnel@/{cls.database}?host={SERVER}"

    @classmethod
    def tearDownClass(cls):
        cls.sql(f"DROP DATABASE {cls.database} WITH (FORCE)", "postgres")
        super().tearDownClass()

    @classmethod
    def sql(cls, statement, database=None):
        done = subprocess.run(["psql", "-h", SERVER, "-U", "varnel", "-d", database or cls.database,
                               "-v", "ON_ERROR_STOP=1", "-qtAc", statement],
                              check=True, capture_output=True, text=True)
        return done.stdout.strip()

    def wait_until(self, happened):
        for _ in range(400):
            if happened():
                return
            time.sleep(0.025)
        self.fail("what was waited for never happened")

    def wait_for_sessions(self, condition):
        self.wait_until(lambda: self.sql(
            "SELECT count(*) FROM pg_stat_activity WHERE datname = "
            f"'{self.database}' AND pid <> pg_backend_pid() AND {condition}") != "0")

    @classmethod
    def copy(cls, source, target, *options):
        process = cls.start("copy", source, target, *options)
        _, errors = process.communicate(timeout=120)
        assert process.returncode == 0, errors


def content(file):
    """The statements that make the tables of a file again, rows in any order."""
    with sqlite3.connect(file) as connection:
        return sorted(line for line in connection.iterdump() if "sqlite_stat" not in line)
