#!/usr/bin/python3
"""The command check takes right commands and finds each kind of wrong one."""
import pathlib
import tempfile
import unittest

import check_commands


class CommandsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.write("test", "all_of_it\n")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def told(self, text):
        self.write("README.md", text)
        return list(check_commands.told_commands(self.root))

    def complaints(self, run_as=None, run_by=None):
        return list(check_commands.complaints(self.root, run_as or {}, run_by or {}))

    def test_commands_are_found_in_fences_and_in_backticks(self):
        for text, commands in (
                ("```sh\nmake one   # why\n```\n", ["make one"]),
                ("```sh\nmake one && make two\n\n```\n", ["make one", "make two"]),
                ("```\nno command\n```\n", []),
                ("Say `./test quick`, `fuzz/run [SECONDS]` or `cmake --preset x`.",
                 ["./test quick", "fuzz/run [SECONDS]", "cmake --preset x"]),
                ("`build/fuzz/fuzz_NAME FILE` leaves `build/fuzz/NAME-crash-...`.", ["build/fuzz/fuzz_NAME FILE"]),
                ("Look at `forms/`, `scripts/packages.sh` and `tests/CMakeLists.txt`.", [])):
            self.assertEqual(self.told(text), commands, text)

    def test_all_documents_are_read(self):
        for name in ("README.md", "CONTRIBUTING.md", "SECURITY.md", "docs/guide.md"):
            self.write(name, f"```sh\nread {name}\n```\n")
        self.assertEqual([str(document) for document in check_commands.told_commands(self.root).values()],
                         ["README.md", "CONTRIBUTING.md", "SECURITY.md", "docs/guide.md"])

    def test_commands_that_work_pass(self):
        self.told("```sh\nmake one\n./test\n```\n")
        self.assertEqual(self.complaints({"make one": "touch ~/made && test -f {scratch}/made && test -f README.md"},
                                         {"./test": ("test", "all_of_it")}), [])

    def test_a_command_that_nothing_runs_is_told_with_its_document(self):
        self.told("`./gone`")
        self.assertEqual(self.complaints(), ["README.md: `./gone`: no test runs it"])

    def test_a_command_that_fails_is_told_with_what_it_says(self):
        self.told("`./gone`")
        self.assertEqual(self.complaints({"./gone": "echo why; exit 3"}), ["README.md: `./gone`: ends with 3: why"])

    def test_a_command_that_another_file_no_longer_runs_is_told(self):
        self.told("`./test`")
        self.assertEqual(self.complaints(run_by={"./test": ("test", "half_of_it")}),
                         ["README.md: `./test`: test no longer runs it"])

    def test_a_command_that_nobody_tells_any_more_is_told(self):
        self.told("")
        self.assertEqual(len(self.complaints({"one": "true"}, {"two": ("test", "all_of_it")})), 2)


if __name__ == "__main__":
    unittest.main()
