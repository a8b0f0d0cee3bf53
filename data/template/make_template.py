#!/usr/bin/python3
"""Makes the template of the card sheets, an Excel 97 template, from its description in sheet.py.

usage: make_template.py FILE     needs the Debian package libreoffice-calc
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True

import sheet  # noqa: E402

FILTER = "xlt:MS Excel 97 Vorlage/Template"
TIMEOUT_SECONDS = 120


def environment(home):
    """Without a display, and with a home that is thrown away."""
    kept = {name: value for name, value in os.environ.items()
            if not name.startswith("XDG_") and name not in ("DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS")}
    return {**kept, "HOME": str(home), "XDG_RUNTIME_DIR": str(home)}


def convert(folder):
    """Has the spreadsheet server, with a profile of its own, save the sheet as a template."""
    source = folder / "sheet.fods"
    source.write_text(sheet.flat_document(), encoding="utf-8")
    subprocess.run(
        ["soffice", "--headless", f"-env:UserInstallation={(folder / 'profile').as_uri()}",
         "--convert-to", FILTER, "--outdir", str(folder), str(source)],
        env=environment(folder), check=True, stdout=subprocess.DEVNULL, timeout=TIMEOUT_SECONDS)
    return folder / "sheet.xlt"


def main():
    sheet.check_lengths()
    target = pathlib.Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as folder:
        shutil.copyfile(convert(pathlib.Path(folder)), target)


if __name__ == "__main__":
    main()
