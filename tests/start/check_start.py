#!/usr/bin/python3
"""Starts the real program and looks at what it has loaded when the first card is on screen.

usage: check_start.py TESSARA DECK     on the display that DISPLAY names
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
sys.dont_write_bytecode = True

import first_card  # noqa: E402  after the path is set
import program_end  # noqa: E402

tessara, deck = sys.argv[1:]


def loaded_at_the_first_card(backdrop):
    """The files that the program has in its memory."""
    with tempfile.TemporaryDirectory() as home:
        os.chmod(home, 0o700)
        settings = pathlib.Path(home, "Tessara.conf")
        settings.write_text(f"[Settings]\nShowSplash=0\nFirstLoad=False\nBackDrop={backdrop}\n", encoding="ascii")
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_STATE_HOME=home, XDG_RUNTIME_DIR=home)
        program = subprocess.Popen([tessara, deck], env=environment)
        try:
            first_card.wait_for_painted(program)
            maps = pathlib.Path("/proc", str(program.pid), "maps").read_text(encoding="utf-8")
            program_end.end(program)
        finally:
            program.kill()
            program.wait()
    return maps


class Start(unittest.TestCase):
    def test_a_start_loads_no_plug_in_for_pictures_whatever_the_backdrop(self):
        for backdrop in "DEFAULT", "GRANITE":
            loaded = loaded_at_the_first_card(backdrop)
            self.assertIn("libQt6Gui", loaded)
            self.assertNotIn("/imageformats/", loaded, backdrop)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
