#!/usr/bin/env python3
"""The runner of tests fails when a test fails, ends its process, hangs, or is not run at all."""
import os, stat, tempfile, unittest

import run_tests

PROGRAM = """#!/bin/sh
[ "$1" = --gtest_list_tests ] && { printf 'Suite.\\n  One\\n  Two\\n'; exit 0; }
echo '[ RUN      ] Suite.One'
%s
"""
ONE = "echo '[       OK ] Suite.One (0 ms)'"
TWO = ONE + "\necho '[ RUN      ] Suite.Two'\n"
PASSED = "echo '[       OK ] Suite.Two (0 ms)'\necho '[==========] 2 tests from 1 test suite ran. (1 ms total)'"


class RunTests(unittest.TestCase):
    def shard_of(self, lines):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "test_it")
            with open(path, "w", encoding="utf-8") as program:
                program.write(PROGRAM % lines)
            os.chmod(path, os.stat(path).st_mode | stat.S_IXUSR)
            shard = run_tests.Shard(path, 0, 1, run_tests.count_of(path, os.environ))
            failures = run_tests.run_shards([shard], 1, os.environ)
        self.assertEqual(bool(failures), bool(shard.problem))
        return shard

    def test_passes_when_each_test_has_passed(self):
        self.assertEqual(self.shard_of(TWO + PASSED).problem, "")

    def test_names_the_tests_that_failed(self):
        shard = self.shard_of(TWO + "echo 'expected: 1'\necho '[  FAILED  ] Suite.Two (0 ms)'\nexit 1")
        self.assertEqual(shard.problem, "failed: Suite.Two")
        self.assertIn("expected: 1", run_tests.part_of_failures(shard.output))
        self.assertNotIn("Suite.One", run_tests.part_of_failures(shard.output))

    def test_names_the_test_that_ended_the_process(self):
        self.assertEqual(self.shard_of(TWO + "exit 139").problem, "Suite.Two ended the process (exit 139)")

    def test_fails_when_the_end_of_the_process_tells_of_a_fault(self):
        end = "\necho '[----------] Global test environment tear-down'\necho 'a leak of 5 bytes'\nexit 23"
        shard = self.shard_of(TWO + PASSED + end)
        self.assertEqual(shard.problem, "exit 23 after its tests")
        self.assertIn("a leak of 5 bytes", run_tests.part_of_failures(shard.output))

    def test_fails_when_tests_were_left_out(self):
        lines = ONE + "\necho '[==========] 1 test from 1 test suite ran. (1 ms total)'"
        self.assertEqual(self.shard_of(lines).problem, "1 tests ran, 2 were expected")

    def test_names_the_test_that_hangs(self):
        silence, run_tests.SILENCE = run_tests.SILENCE, 0
        try:
            self.assertIn("Suite.Two hangs", self.shard_of(TWO + "exec sleep 60").problem)
        finally:
            run_tests.SILENCE = silence


if __name__ == "__main__":
    unittest.main()
