#!/usr/bin/python3
"""Is a program that breaks down told from one that ends as it should?

usage: program_end_test.py
"""
import pathlib
import signal
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
import program_end  # noqa: E402  after the path is set


def started(script):
    return subprocess.Popen(["sh", "-c", script], stdout=subprocess.PIPE, text=True)


def ended(script):
    program = started(script)
    program.communicate()
    return program


class Ends(unittest.TestCase):
    def running(self, script):
        """A program that has begun to wait."""
        program = started(f"{script} echo waits; while :; do sleep 0.1; done")
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        self.addCleanup(program.stdout.close)
        program.stdout.readline()
        return program

    def check_wrong(self, told, check, *arguments):
        with self.assertRaises(program_end.WrongEnd) as wrong:
            check(*arguments)
        self.assertIn(told, str(wrong.exception))

    def test_a_program_that_ends_by_the_signal_it_was_sent_is_right(self):
        for number in (signal.SIGTERM, signal.SIGKILL):
            program_end.end(self.running(""), number)

    def test_a_program_that_turns_a_signal_into_another_end_is_wrong(self):
        self.check_wrong("status 3", program_end.end, self.running("trap 'exit 3' TERM;"))
        self.check_wrong("SIGSEGV", program_end.end, self.running("trap 'trap - TERM; kill -SEGV $$' TERM;"))

    def test_a_program_that_has_ended_before_is_wrong(self):
        self.check_wrong("before, with status 0", program_end.end, ended("exit 0"))
        self.check_wrong("before, with SIGSEGV", program_end.end, ended("kill -SEGV $$"))

    def test_a_program_that_ends_by_itself_has_the_status_that_is_expected(self):
        program_end.expect(ended("exit 1"), 1)
        self.check_wrong("SIGABRT instead of status 1", program_end.expect, ended("kill -ABRT $$"), 1)
        self.check_wrong("status 2 instead of status 1", program_end.expect, ended("exit 2"), 1)


if __name__ == "__main__":
    unittest.main()
