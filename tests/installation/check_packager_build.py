#!/usr/bin/python3
"""What a distribution's build is asked to make: configured, not built.

usage: check_packager_build.py SOURCE
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

source = pathlib.Path()
BARE = ("-DBUILD_TESTING=OFF", "-DTESSARA_HELP=OFF", "-DTESSARA_LIBREOFFICE=OFF")


class Configured(unittest.TestCase):
    def configured(self, *options):
        """(what the configuration told, the commands of a whole build)."""
        folder = tempfile.TemporaryDirectory(prefix="tessara-packager-")
        self.addCleanup(folder.cleanup)
        told = subprocess.run(("cmake", "-G", "Ninja", "-S", source, "-B", folder.name, *options),
                              stdout=subprocess.PIPE, text=True, check=True).stdout
        commands = subprocess.run(("ninja", "-C", folder.name, "-t", "commands", "all"), stdout=subprocess.PIPE,
                                  text=True, check=True).stdout
        return told, commands

    def test_a_build_with_everything_makes_no_benchmark_and_no_fuzzer(self):
        _, commands = self.configured()
        for made in ("tests/unit", "shell/main.cpp", "adapters/libreoffice", "TessaraHelp.chm"):
            self.assertIn(made, commands)
        for other in (f"{source}/bench/", f"{source}/fuzz/", "headers_compile"):
            self.assertNotIn(other, commands)

    def test_a_build_without_tests_help_and_spreadsheet_makes_none_of_them(self):
        _, commands = self.configured(*BARE)
        self.assertIn("shell/main.cpp", commands)
        for other in (f"{source}/tests/", "TessaraHelp.chm", "adapters/qt/help/", "adapters/libreoffice/module.cpp",
                      "Notelet.xlt"):
            self.assertNotIn(other, commands)

    def test_what_is_left_out_is_told_once(self):
        told, _ = self.configured(*BARE)
        left_out = told.split("disabled:")[1]
        for feature in ("tests", "help", "two-sided-printing"):
            self.assertEqual(left_out.count(f" * {feature},"), 1, told)

    def test_a_warning_is_no_error_and_nothing_is_remembered_in_the_home(self):
        _, commands = self.configured()
        self.assertNotIn("-Werror", commands)
        self.assertNotIn("ccache", commands)


if __name__ == "__main__":
    source = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
