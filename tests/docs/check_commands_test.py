#!/usr/bin/python3
"""The command check takes right commands and finds each kind of wrong one."""
import pathlib
import tempfile
import unittest

import check_commands

PRESETS = ('{"configurePresets": [{"name": "base", "hidden": true}, {"name": "release"}],'
           ' "buildPresets": [{"name": "release"}]}')

RIGHT = (
    "./test quick   # all of it",
    "./test [deck] NAME",
    "cmake --preset release && cmake --build --preset release",
    "build/release/tests/tests_unit -tc='a case'",
    "build/release/later.png",
    "gdb --args build/release/tests/tests_unit",
)

WRONG = (
    ("./tset", "there is no script ./tset"),
    ("./plain", "there is no script ./plain"),
    ("./test quickly", "./test knows no quickly"),
    ("./test --fast", "./test knows no --fast"),
    ("cmake --preset base", "there is no preset base"),
    ("cmake --build --preset debug", "there is no preset debug"),
    ("build/debug/tests/tests_unit", "there is no preset debug"),
    ("build/release/tests/tests_gone", "the build makes no tests/tests_gone"),
    ("make all", "make is no program"),
    ("./test 'quick", "No closing quotation"),
)


class CommandsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.build = self.root / "built"
        self.write("CMakePresets.json", PRESETS)
        self.write("test", "# usage: ./test quick\n").chmod(0o755)
        self.write("plain", "")
        self.write("built/tests/tests_unit", "")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
        return path

    def about(self, command):
        return check_commands.complaints_about(command, self.root, self.build)

    def test_right_commands_pass(self):
        for line in RIGHT:
            self.write("README.md", f"```sh\n{line}\n```\n")
            for command in check_commands.commands_in((self.root / "README.md").read_text(encoding="utf-8")):
                self.assertEqual(self.about(command), [], line)

    def test_each_wrong_command_is_told(self):
        for command, told in WRONG:
            found = self.about(command)
            self.assertEqual(len(found), 1, (command, found))
            self.assertIn(told, found[0])

    def test_commands_are_found_in_fences_and_in_backticks(self):
        text = "Say `./test` or `forms/`.\n```sh\nmake one   # why\n```\n```\nno command\n```\n"
        self.assertEqual(sorted(check_commands.commands_in(text)), ["./test", "make one"])

    def test_a_fault_is_told_with_its_document(self):
        self.write("docs/guide.md", "```sh\n./gone\n```\n")
        self.assertEqual(list(check_commands.complaints(self.root)),
                         ["docs/guide.md: `./gone`: there is no script ./gone"])

    def test_a_command_that_fails_is_told(self):
        self.assertEqual(check_commands.run_complaints("exit 3", self.root), ["`exit 3` ends with 3: "])

    def test_a_command_to_be_run_that_nobody_tells_any_more_is_told(self):
        self.assertEqual(len(list(check_commands.complaints(self.root, self.build))), len(check_commands.RUN_AS))


if __name__ == "__main__":
    unittest.main()
