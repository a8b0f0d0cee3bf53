#!/usr/bin/python3
"""Does the linter find in a bundle of sources what it finds in each of them alone?

usage: tidy_test.py     where clang-tidy 14 is not to be had, says so and is content
"""
import pathlib
import re
import shutil
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
import source_bundles  # noqa: E402  after the path is set
import tidy  # noqa: E402

DIVIDES = """#include <string>
namespace one {
typedef int Old;
int Length(std::string text) { if (text.size() == 0) { return 1; } else { return 2; } }
int Divide(int by) { int none = 0; return by / none; }
}
"""
MOVES = """#include <string>
namespace two {
int First() { int* none = nullptr; return *none; }
void Move(std::string from) { std::string to = std::move(from); from.size(); }
}
"""
COMPLAINT = re.compile(r"(\w+\.cpp:\d+).*\[([\w.-]+),")


class Bundles(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def source(self, name, text):
        path = self.folder / name
        path.write_text(text, encoding="utf-8")
        return path

    def command(self, name, text):
        path = self.source(name, text)
        return {"directory": str(self.folder), "file": str(path), "command": f"c++ -std=c++20 -o a.o -c {path}"}

    @unittest.skipUnless(shutil.which(tidy.TIDY), f"{tidy.TIDY} is not to be had")
    def test_a_bundle_shows_what_its_sources_show_alone(self):
        commands = [self.command("divides.cpp", DIVIDES), self.command("moves.cpp", MOVES)]
        tidy.OWN_FILES = f"{self.folder}/.*"
        alone = set()
        for command in commands:
            alone |= set(COMPLAINT.findall(tidy.run_tidy(self.folder, command, *tidy.OWN_RULES)))
        self.assertEqual(set(COMPLAINT.findall(tidy.tidy_as_one(commands))), alone)
        self.assertIn(("divides.cpp:5", "clang-analyzer-core.DivideZero"), alone)

    def test_sources_that_give_a_name_to_different_things_come_into_different_bundles(self):
        for first, second, apart in (
                ("constexpr int kWidth = 1;\n", "constexpr long kWidth = 2;\n", True),
                ("void Draw() {\n}\n", "int Draw(int x) {\n}\n", True),
                ("struct Row {\n};\n", "class Row;\n", True),
                ("void One::Draw() {\n}\n", "void Two::Draw() {\n}\n", False),
                ("namespace tessara {\n}\n", "namespace tessara {\n}\n", False),
                ("TEST_CASE(\"One\") {\n}\n", "TEST_CASE(\"Two\") {\n}\n", False),
                ("int One() {\n  int at = 1;\n}\n", "int Two() {\n  int at = 2;\n}\n", False)):
            with self.subTest(first=first, second=second):
                paths = [self.source("first.cpp", first), self.source("second.cpp", second)]
                self.assertEqual(len(source_bundles.bundles(paths, 2)), 2 if apart else 1)

    def test_a_bundle_is_no_larger_than_is_told(self):
        paths = [self.source(f"{number}.cpp", f"int Number{number}();\n") for number in range(5)]
        self.assertEqual([len(bundle) for bundle in source_bundles.bundles(paths, 2)], [2, 2, 1])


if __name__ == "__main__":
    unittest.main()
