#!/usr/bin/python3
"""Runs the real program, ends it in every way, and looks at what is left: processes and files.

usage: check_leftovers.py TESSARA DECK     prints each leftover; exits with 1 if there is one
"""
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
import program_end  # noqa: E402  after the path is set

PATIENCE = 30  # seconds until a wait counts as a failure

# What the first start declares to the desktop, and the settings it writes: these stay on purpose.
MEANT_TO_STAY = ("config/Tessara.conf", "config/mimeapps.list", "data/applications/", "data/icons/", "data/mime/",
                 "cache/fontconfig/")

# Programs of others that the program starts, or that those start.
STARTED = ("update-mime-database", "update-desktop-database", "gtk-update-icon-cache", "xdg-mime", "sh", "rm", "soffice")
RAN = "a fake ran"


def wait_for(condition, what):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise TimeoutError(f"waited in vain for {what}")
        time.sleep(0.01)


def processes_of(mark):
    """Numbers of the processes that carry the mark in their environment."""
    found = []
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            if mark in (folder / "environ").read_bytes():
                found.append(int(folder.name))
        except OSError:
            continue  # ended meanwhile, or somebody else's
    return found


def files_in(root):
    return sorted(path.relative_to(root).as_posix() for path in root.rglob("*") if not path.is_dir())


class Home:
    """A home, a session and a temporary folder of the run's own."""

    def __init__(self, deck):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessara-leftovers-"))
        self.mark = f"TESSARA_LEFTOVERS={self.root}".encode()
        for name in ("home", "data", "config", "cache", "state", "runtime", "tmp"):
            (self.root / name).mkdir(mode=0o700)
        self.deck = self.root / "home" / "deck.tsr"
        if deck:
            shutil.copy(deck, self.deck)
        else:
            self.deck.write_bytes(b"E".ljust(1192, b"\x7f"))  # a row far outside the table
        self.fakes = self.root / "fakes"
        self.lay_fakes()
        self.before = files_in(self.root)

    def lay_fakes(self):
        """A folder of programs that are not to be started: it is the current one, and PATH names that alone."""
        self.fakes.mkdir()
        for name in STARTED:
            fake = self.fakes / name
            fake.write_text(f"#!/bin/sh\necho {name} >> '{self.root / RAN}'\n", encoding="ascii")
            fake.chmod(0o700)

    def environment(self):
        folders = {"HOME": "home", "XDG_DATA_HOME": "data", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache",
                   "XDG_STATE_HOME": "state", "XDG_RUNTIME_DIR": "runtime", "TMPDIR": "tmp"}
        return os.environ | {name: str(self.root / folder) for name, folder in folders.items()} | {
            "PATH": ":", "TESSARA_LEFTOVERS": str(self.root), "QT_QPA_PLATFORM": "offscreen"}

    def leftovers(self):
        new = [name for name in files_in(self.root) if name not in self.before]
        return [name for name in new if not name.startswith(MEANT_TO_STAY)]


class Display:
    """A virtual display that can go away under a program."""

    def __init__(self):
        reads, writes = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(writes), "-nolisten", "tcp"], pass_fds=[writes],
                                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writes)
        with os.fdopen(reads, encoding="ascii") as number:
            self.name = ":" + number.readline().strip()

    def end(self):
        self.server.kill()
        self.server.wait()


def holds_lock(home):
    """The program takes its name among the system's sockets before it does anything else."""
    folder = os.stat(home.root / "runtime")
    name = f"@tessara-{os.geteuid()}-{folder.st_dev}.{folder.st_ino}-"
    return name in pathlib.Path("/proc/net/unix").read_text(encoding="utf-8", errors="replace")


def end_by(number):
    return lambda process: program_end.end(process, number, PATIENCE)


def end_with(display):
    """Without a display the window system's library leaves the program with status 1."""
    def end(process):
        display.end()
        program_end.expect(process, 1, PATIENCE)
    return end


def complaints(tessara, name, deck, end, display=None):
    home = Home(deck)
    on_display = {"DISPLAY": display.name, "QT_QPA_PLATFORM": "xcb"} if display else {}
    try:
        process = subprocess.Popen([tessara, str(home.deck)], env=home.environment() | on_display, cwd=home.fakes,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        # The settings file is written by the first start: by then the program is well under way.
        wait_for(lambda: holds_lock(home) and (home.root / "config" / "Tessara.conf").exists(), "the start")
        end(process)
        # The desktop's own tools, which the first start begins, come to their end by themselves.
        wait_for(lambda: not processes_of(home.mark), "the end of every process")
        if holds_lock(home):
            yield f"{name}: the lock is still held"
        yield from (f"{name}: {left}" for left in home.leftovers())
    except (TimeoutError, subprocess.TimeoutExpired, program_end.WrongEnd) as missed:
        for number in processes_of(home.mark):
            os.kill(number, signal.SIGKILL)
        yield f"{name}: {missed}"
    finally:
        shutil.rmtree(home.root)


def main():
    tessara, deck = sys.argv[1:]
    found = []
    for number in (signal.SIGKILL, signal.SIGTERM, signal.SIGABRT, signal.SIGHUP, signal.SIGINT):
        found += complaints(tessara, f"{number.name} with a deck", deck, end_by(number))
    for number in (signal.SIGKILL, signal.SIGTERM):
        found += complaints(tessara, f"{number.name} with a broken deck", None, end_by(number))
    display = Display()
    found += complaints(tessara, "the display gone", deck, end_with(display), display)
    print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
