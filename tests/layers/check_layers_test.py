#!/usr/bin/python3
"""The layer check finds each kind of wrong include in a small tree made for it."""
import pathlib
import tempfile
import unittest

import check_layers

HEADERS = ("platform/text.h", "platform/qt/renderer.h", "platform/posix/files.h", "forms/form.h", "deck/table.h",
           "viewer/frmMain.h", "viewer/notelet/face.h", "authoring/frmEssay.h", "import/import.h", "shell/shell.h")

ALLOWED = (
    ("forms/form.h", '#include "platform/text.h"'),
    ("viewer/frmMain.h", '#include "viewer/notelet/face.h"'),
    ("shell/shell.cpp", '#include "authoring/frmEssay.h"'),
    ("shell/main.cpp", '#include "platform/qt/renderer.h"'),
    ("shell/main.cpp", "#include <QApplication>"),
    ("platform/qt/renderer.cpp", "#include <QWidget>"),
    ("platform/qt/renderer.cpp", '#include "forms/form.h"'),
    ("platform/posix/files.cpp", "#include <unistd.h>"),
    ("tests/desktop/start_test.cpp", '#include "platform/qt/renderer.h"'),
    ("bench/start.cpp", "#include <QApplication>"),
    ("deck/table.cpp", "#include <vector>"),
)

WRONG = (
    ("platform/text.h", '#include "forms/form.h"', "platform may not include"),
    ("forms/form.h", '#include "deck/table.h"', "forms may not include"),
    ("deck/table.h", '  #  include "viewer/frmMain.h"', "deck may not include"),
    ("viewer/frmMain.h", '#include "shell/shell.h"', "viewer may not include"),
    ("authoring/frmEssay.h", '#include "import/import.h"', "authoring may not include"),
    ("shell/shell.h", '#include "platform/qt/renderer.h"', "shell may not include"),
    ("deck/table.cpp", '#include "platform/posix/files.h"', "deck may not include"),
    ("platform/qt/renderer.h", '#include "shell/shell.h"', "platform/qt may not include"),
    ("forms/form.h", "#include <QWidget>", "Qt header"),
    ("platform/posix/files.h", "#include <QtCore>", "Qt header"),
    ("platform/qt/renderer.h", "#include <com/sun/star/uno/XInterface.hpp>", "UNO header"),
    ("deck/table.h", "#include <cups/cups.h>", "printing system header"),
    ("deck/table.h", "#include <sys/stat.h>", "POSIX header"),
    ("viewer/frmMain.h", '#include "notelet/face.h"', "not a path from the top folder"),
    ("viewer/notelet/face.h", '#include "viewer/frmMain.h"\n', "lead back"),
)


class CheckLayers(unittest.TestCase):
    def complaints_with(self, path, line):
        """What the check says of a tree that is in order but for one line."""
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for header in HEADERS:
                self.add_line(root / header, "#pragma once")
            self.add_line(root / "viewer/frmMain.cpp", '#include "viewer/notelet/face.h"')
            self.add_line(root / path, line)
            return check_layers.complaints(root)

    def add_line(self, path, line):
        path.parent.mkdir(parents=True, exist_ok=True)
        with path.open("a", encoding="utf-8") as file:
            file.write(line + "\n")

    def test_an_include_downward_is_in_order(self):
        for path, line in ALLOWED:
            with self.subTest(path=path, line=line):
                self.assertEqual(self.complaints_with(path, line), [])

    def test_a_wrong_include_is_found(self):
        for path, line, expected in WRONG:
            with self.subTest(path=path, line=line):
                self.assertIn(expected, "\n".join(self.complaints_with(path, line)))


if __name__ == "__main__":
    unittest.main()
