#!/usr/bin/python3
"""The layer check finds each kind of wrong include in a small tree made for it."""
import pathlib
import tempfile
import unittest

import check_layers

HEADERS = ("base/text.h", "adapters/qt/windows/renderer.h", "adapters/posix/files.h", "forms/form.h", "deck/table.h",
           "viewer/deck_window.h", "viewer/card/face.h", "authoring/text_card_builder.h", "import/import.h", "shell/shell.h")

ALLOWED = (
    ("forms/form.h", '#include "base/text.h"'),
    ("viewer/deck_window.h", '#include "viewer/card/face.h"'),
    ("shell/shell.cpp", '#include "authoring/text_card_builder.h"'),
    ("shell/main.cpp", '#include "adapters/qt/windows/renderer.h"'),
    ("shell/main.cpp", "#include <QApplication>"),
    ("adapters/qt/windows/renderer.cpp", "#include <QWidget>"),
    ("adapters/qt/windows/renderer.cpp", '#include "forms/form.h"'),
    ("adapters/posix/files.cpp", "#include <unistd.h>"),
    ("tests/desktop/start_test.cpp", '#include "adapters/qt/windows/renderer.h"'),
    ("bench/start.cpp", "#include <QApplication>"),
    ("deck/table.cpp", "#include <vector>"),
)

WRONG = (
    ("base/text.h", '#include "forms/form.h"', "base may not include"),
    ("forms/form.h", '#include "deck/table.h"', "forms may not include"),
    ("deck/table.h", '  #  include "viewer/deck_window.h"', "deck may not include"),
    ("viewer/deck_window.h", '#include "shell/shell.h"', "viewer may not include"),
    ("authoring/text_card_builder.h", '#include "import/import.h"', "authoring may not include"),
    ("shell/shell.h", '#include "adapters/qt/windows/renderer.h"', "shell may not include"),
    ("deck/table.cpp", '#include "adapters/posix/files.h"', "deck may not include"),
    ("adapters/qt/windows/renderer.h", '#include "shell/shell.h"', "adapters/qt may not include"),
    ("forms/form.h", "#include <QWidget>", "Qt header"),
    ("adapters/posix/files.h", "#include <QtCore>", "Qt header"),
    ("adapters/qt/windows/renderer.h", "#include <com/sun/star/uno/XInterface.hpp>", "UNO header"),
    ("deck/table.h", "#include <cups/cups.h>", "printing system header"),
    ("deck/table.h", "#include <sys/stat.h>", "POSIX header"),
    ("viewer/deck_window.h", '#include "notelet/face.h"', "not a path from the top folder"),
    ("viewer/card/face.h", '#include "viewer/deck_window.h"\n', "lead back"),
)


class CheckLayers(unittest.TestCase):
    def complaints_with(self, path, line):
        """What the check says of a tree that is in order but for one line."""
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for header in HEADERS:
                self.add_line(root / header, "#pragma once")
            self.add_line(root / "viewer/deck_window.cpp", '#include "viewer/card/face.h"')
            self.add_line(root / path, line)
            return check_layers.complaints(root, check_layers.governed_includes(root))

    def add_line(self, path, line):
        path.parent.mkdir(parents=True, exist_ok=True)
        with path.open("a", encoding="utf-8") as file:
            file.write(line + "\n")

    def test_an_include_downward_is_in_order(self):
        for path, line in ALLOWED:
            with self.subTest(path=path, line=line):
                self.assertEqual(self.complaints_with(path, line), [])

    def test_a_right_that_is_not_used_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            self.add_line(root / "base/text.h", "#pragma once")
            self.add_line(root / "forms/form.h", '#include "base/text.h"')
            found = check_layers.complaints_about_program(root)
            self.assertIn("forms: has no use for machine", found)
            self.assertNotIn("forms: has no use for base", found)

    def test_a_wrong_include_is_found(self):
        for path, line, expected in WRONG:
            with self.subTest(path=path, line=line):
                self.assertIn(expected, "\n".join(self.complaints_with(path, line)))


if __name__ == "__main__":
    unittest.main()
