#!/usr/bin/python3
"""Runs tessara-deck as a user does.

usage: check_commands.py BUILD_FOLDER [unittest arguments]
"""
import json
import os
import pathlib
import re
import resource
import signal
import stat
import subprocess
import sys
import tempfile
import time
import unittest

BUILD = pathlib.Path(sys.argv.pop(1)).resolve()
PROGRAM = BUILD / "tessara-deck"
SAMPLES = BUILD / "samples"
SOURCE = pathlib.Path(__file__).resolve().parents[2]
RECORD = 1192
SIGNATURE = b"\xef\xbb\xbf"


class Command(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name) / "work"
        self.folder.mkdir()
        # Qt remarks on a runtime folder that is missing or open to others.
        runtime = pathlib.Path(holder.name) / "runtime"
        runtime.mkdir(0o700)
        self.environment = {**os.environ, "LC_ALL": "C.UTF-8", "XDG_RUNTIME_DIR": str(runtime)}

    def run_command(self, *arguments, stdin=b"", **more):
        return subprocess.run([PROGRAM, *arguments], cwd=self.folder, input=stdin, capture_output=True, timeout=60,
                              check=False, env=self.environment, **more)

    def write(self, name, content):
        (self.folder / name).write_bytes(content if isinstance(content, bytes) else content.encode())

    def read(self, name):
        return (self.folder / name).read_bytes()

    def names(self):
        return sorted(path.name for path in self.folder.iterdir())

    def expect(self, status, *arguments, **more):
        result = self.run_command(*arguments, **more)
        self.assertEqual(result.returncode, status, result.stderr.decode())
        return result


def rows(count):
    return "".join(f"front {number},back {number}\n" for number in range(1, count + 1))


class Convert(Command):
    def test_a_table_becomes_a_deck_with_title_and_date(self):
        self.write("verbs.csv", "go,went\nsee,saw\n")
        result = self.expect(0, "convert", "verbs.csv", "verbs.TSR")
        self.assertEqual(result.stderr, b"")
        deck = self.read("verbs.TSR")
        self.assertEqual(len(deck), 4 * RECORD)
        self.assertTrue(deck[597:].startswith(b"verbs "))
        self.assertEqual(deck[447:522].strip(), subprocess.run(["date", "+%-m/%-d/%Y"], capture_output=True,
                                                               check=True).stdout.strip())

    def test_options_give_the_information(self):
        self.write("a.csv", "a,b\n")
        self.expect(0, "convert", "a.csv", "a.tsr", "--title", "T", "--author", "A", "--description", "D")
        deck = self.read("a.tsr")
        self.assertEqual([deck[597:672].strip(), deck[672:747].strip(), deck[748:1192].strip()], [b"T", b"A", b"D"])

    def test_a_sample_goes_through_all_formats_and_comes_back(self):
        for sample in ("capitals", "science"):
            text = self.expect(0, "convert", SAMPLES / f"{sample}.tsr", "-", "--to", "txt").stdout
            for ending in ("tsr", "txt", "csv", "tsv") + (("kvtml",) if sample == "capitals" else ()):
                self.expect(0, "convert", SAMPLES / f"{sample}.tsr", f"{sample}.{ending}")
                back = self.expect(0, "convert", f"{sample}.{ending}", "-", "--to", "txt")
                self.assertEqual(back.stdout, text, ending)

    def test_streams_are_told_their_formats(self):
        result = self.expect(0, "convert", "-", "-", "--from", "csv", "--to", "tsv", stdin=b"a,b\n")
        self.assertEqual(result.stdout, b"a\tb\n")
        self.assertIn(b"format", self.expect(1, "convert", "-", "-", "--from", "csv", stdin=b"a,b\n").stderr)

    def test_anki_is_told_how_to_read(self):
        result = self.expect(0, "convert", "-", "-", "--from", "csv", "--to", "tsv", "--anki", stdin=b"a,b\n")
        self.assertEqual(result.stdout, b"#separator:tab\n#html:false\n#columns:front\tback\na\tb\n")

    def test_losses_are_told_by_line_and_card_with_status_2(self):
        self.write("a.csv", "front,back,hint\n" + "x" * 445 + ",b,h\n")
        result = self.expect(2, "convert", "a.csv", "a.tsr")
        self.assertEqual(result.stderr, b'a.csv:1: the column "hint" is not kept\n'
                                        b"a.csv:2: card 1: the front is cut behind 444 characters\n")
        self.assertIn("a.tsr", self.names())

    def test_a_strict_call_that_would_lose_something_writes_nothing(self):
        self.write("a.csv", "a,b,c\n")
        self.expect(2, "convert", "--strict", "a.csv", "a.tsr")
        self.assertEqual(self.names(), ["a.csv"])
        result = self.expect(2, "convert", "--strict", "a.csv", "-", "--to", "tsr")
        self.assertEqual(result.stdout, b"")

    def test_an_output_that_exists_is_refused_unless_forced(self):
        self.write("a.csv", "a,b\n")
        self.write("b.tsv", "old")
        (self.folder / "b.tsv").chmod(0o600)
        self.assertIn(b"b.tsv: it exists", self.expect(1, "convert", "a.csv", "b.tsv").stderr)
        self.assertEqual(self.read("b.tsv"), b"old")
        self.expect(0, "convert", "a.csv", "b.tsv", "--force")
        self.assertEqual(self.read("b.tsv"), b"a\tb\n")
        self.assertEqual(stat.S_IMODE((self.folder / "b.tsv").stat().st_mode), 0o600)
        self.assertEqual(self.names(), ["a.csv", "b.tsv"])

    def test_a_new_output_has_the_permissions_that_the_mask_leaves(self):
        self.write("a.csv", "a,b\n")
        self.expect(0, "convert", "a.csv", "b.tsv", umask=0o027)
        self.assertEqual(stat.S_IMODE((self.folder / "b.tsv").stat().st_mode), 0o640)

    def test_a_link_stays_and_what_it_leads_to_is_replaced(self):
        self.write("a.csv", "a,b\n")
        self.write("target", "old")
        (self.folder / "b.tsv").symlink_to("target")
        self.expect(0, "convert", "a.csv", "b.tsv", "--force")
        self.assertTrue((self.folder / "b.tsv").is_symlink())
        self.assertEqual(self.read("target"), b"a\tb\n")

    def test_more_than_200_cards_become_several_decks(self):
        self.write("all.csv", rows(401))
        result = self.expect(0, "convert", "all.csv", "all.tsr")
        self.assertIn(b"401 cards", result.stderr)
        self.assertEqual(self.names(), ["all-1.tsr", "all-2.tsr", "all-3.tsr", "all.csv"])
        self.assertEqual([len(self.read(f"all-{part}.tsr")) // RECORD for part in (1, 2, 3)], [202, 202, 3])
        self.assertTrue(self.read("all-2.tsr")[597:].startswith(b"all-2 "))
        self.expect(0, "convert", "all.csv", "all.tsv")
        self.assertEqual(len(self.read("all.tsv").splitlines()), 401)
        self.assertIn(b"standard output", self.expect(1, "convert", "all.csv", "-", "--to", "tsr").stderr)

    def test_where_one_of_several_exists_none_is_written(self):
        self.write("all.csv", rows(401))
        self.write("all-3.tsr", "old")
        self.expect(1, "convert", "all.csv", "all.tsr")
        self.assertEqual(self.names(), ["all-3.tsr", "all.csv"])

    def test_where_one_of_several_cannot_be_written_none_appears(self):
        self.write("all.csv", rows(401))

        def limit():
            resource.setrlimit(resource.RLIMIT_FSIZE, (100 * RECORD, 100 * RECORD))
        self.expect(1, "convert", "all.csv", "all.tsr", preexec_fn=limit)
        self.assertEqual(self.names(), ["all.csv"])

    def test_several_inputs_become_one_deck_of_the_first_ones_kind(self):
        self.write("a.csv", "a,b\n")
        self.write("q.txt", "EXT\n1.q\n=T\n")
        result = self.expect(2, "convert", "a.csv", "q.txt", "a.csv", "all.tsv")
        self.assertEqual(self.read("all.tsv"), b"a\tb\na\tb\n")
        self.assertEqual(result.stderr, b"q.txt:2: card 1: a card of the other kind is not kept\n")

    def test_no_cards_are_refused(self):
        for content in ("", "front,back\n"):
            self.write("a.csv", content)
            self.assertIn(b"no cards", self.expect(1, "convert", "a.csv", "a.tsr").stderr)
        self.assertEqual(self.names(), ["a.csv"])

    def test_only_regular_files_are_read(self):
        os.mkfifo(self.folder / "pipe.csv")
        (self.folder / "folder.csv").mkdir()
        for name, words in (("pipe.csv", b"no regular file"), ("folder.csv", b"no regular file"), ("none.csv", b"no such")):
            self.assertIn(words, self.expect(1, "convert", name, "a.tsr").stderr)

    def test_what_is_too_large_is_refused_in_words(self):
        with open(self.folder / "large.csv", "wb") as large:
            large.truncate((16 << 20) + 1)
        for arguments in (("large.csv",), ("-", "--from", "csv")):
            stdin = b"x" * ((16 << 20) + 1) if arguments[0] == "-" else b""
            result = self.expect(1, "convert", arguments[0], "a.tsr", *arguments[1:], stdin=stdin)
            self.assertIn(b"16 MB", result.stderr)

    def test_a_full_disk_is_told(self):
        self.write("a.csv", "a,b\n")
        with open("/dev/full", "wb") as full:
            result = subprocess.run([PROGRAM, "convert", "a.csv", "-", "--to", "tsv"], cwd=self.folder, stdout=full,
                                    stderr=subprocess.PIPE, check=False)
        self.assertEqual(result.returncode, 1)
        self.assertIn(b"No space left", result.stderr)


class Check(Command):
    def test_statuses_tell_clean_findings_and_unreadable(self):
        self.write("good.txt", "EXT\n1.q\n=T\n")
        self.write("bad.txt", "EXT\n1.q\n=X\n")
        self.assertEqual(self.expect(0, "check", "good.txt", SAMPLES / "capitals.tsr").stdout, b"")
        result = self.expect(1, "check", "good.txt", "bad.txt")
        self.assertTrue(result.stdout.startswith(b"bad.txt:3: card 1: the last character of its answer"))
        result = self.expect(2, "check", "none.txt", "bad.txt")
        self.assertTrue(result.stdout.startswith(b"bad.txt:3: "))
        self.assertIn(b"none.txt: there is no such file", result.stderr)
        self.assertEqual(self.expect(2, "check").stdout, b"")


class Show(Command):
    def test_cards_are_listed_with_nothing_hidden(self):
        self.write("a.csv", 'a,"1\n2\x1b"\n')
        self.assertEqual(self.expect(0, "show", "a.csv").stdout, b"1. a\n   1\\n2\\u001B\n")
        self.write("q.txt", "EXT\n1.q\nA.x\nB.y\n=B\n")
        self.assertEqual(self.expect(0, "show", "q.txt").stdout, b"1. q\n   A: x\n   B: y\n   answer: B\n")

    def test_json_has_all_of_a_deck(self):
        self.write("a.csv", 'a,"1\n2"\n')
        self.expect(0, "convert", "a.csv", "a.tsr", "--author", "A", "--description", "D")
        deck = json.loads(self.expect(0, "show", "--json", "a.tsr").stdout)
        date = deck.pop("date")
        self.assertRegex(date, r"^\d+/\d+/\d{4}$")
        self.assertEqual(deck, {"title": "a", "author": "A", "description": "D", "kind": "standard",
                                "cards": [{"front": "a", "back": "1\r\n2"}]})
        self.write("q.csv", "q,x,y,,,B\nr,,,,,T\n")
        deck = json.loads(self.expect(0, "show", "q.csv", "--json").stdout)
        self.assertEqual(deck["cards"], [{"question": "q", "choices": ["x", "y", "", ""], "answer": "B"},
                                         {"question": "r", "choices": [], "answer": "T"}])

    def test_information_comes_without_cards(self):
        science = SAMPLES / "science.tsr"
        self.assertIn(b"kind: extended\n", self.expect(0, "info", science).stdout)
        self.assertNotIn("cards", json.loads(self.expect(0, "info", "--json", science).stdout))


ENDING = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP)


def take_ending_signals():
    """Also where the tests themselves run with some of them ignored."""
    for ending in ENDING:
        signal.signal(ending, signal.SIG_DFL)


class Print(Command):
    def text_of(self, name):
        return subprocess.run(["pdftotext", "-layout", name, "-"], cwd=self.folder, capture_output=True, check=True,
                              text=True).stdout

    def pages_of(self, name):
        return self.text_of(name).count("\f")

    def test_chosen_cards_are_printed_front_and_back(self):
        self.write("a.csv", rows(30))
        self.expect(0, "print", "a.csv", "a.pdf", "--cards", "1-8,25")
        self.assertEqual(self.pages_of("a.pdf"), 4)
        text = self.text_of("a.pdf")
        for number in (1, 8, 25):
            self.assertIn(f"front {number}", text)
            self.assertIn(f"back {number}", text)
        self.assertNotIn("front 9", text)
        self.assertIn("exists", self.expect(1, "print", "a.csv", "a.pdf").stderr.decode())
        self.assertEqual(self.names(), ["a.csv", "a.pdf"])

    def test_who_waits_at_a_terminal_is_told_that_it_prints(self):
        master, terminal = os.openpty()
        subprocess.run([PROGRAM, "print", SAMPLES / "capitals.tsr", "a.pdf", "--listing", "--cards", "1-2"],
                       cwd=self.folder, stderr=terminal, timeout=60, check=True, env=self.environment)
        os.close(terminal)
        self.assertIn(b"printing 2 cards", os.read(master, 1000))
        os.close(master)
        silent = self.expect(0, "print", SAMPLES / "capitals.tsr", "b.pdf", "--listing", "--cards", "1-2")
        self.assertNotIn(b"printing", silent.stderr)

    def test_a_listing_is_printed(self):
        self.expect(0, "print", SAMPLES / "capitals.tsr", "a.pdf", "--listing", "--cards", "1-2")
        self.assertIn("TITLE: Capitals of the world", self.text_of("a.pdf"))

    def begin(self, scratch):
        """A job that is at its work, with its temporary files in the folder."""
        job = subprocess.Popen([PROGRAM, "print", SAMPLES / "capitals.tsr", "a.pdf"], cwd=self.folder,
                               stderr=subprocess.DEVNULL, env={**self.environment, "TMPDIR": str(scratch)},
                               preexec_fn=take_ending_signals)
        self.wait_until(lambda: any(scratch.glob("*/deck.tsr")))
        return job

    def wait_until(self, holds):
        end = time.monotonic() + 60
        while not holds() and time.monotonic() < end:
            time.sleep(0.05)
        self.assertTrue(holds())

    def test_one_that_is_ended_by_a_signal_leaves_nothing(self):
        for ending in ENDING:
            with self.subTest(ending), tempfile.TemporaryDirectory() as scratch:
                job = self.begin(pathlib.Path(scratch))
                job.send_signal(ending)
                self.assertNotEqual(job.wait(60), 0)
                self.wait_until(lambda: not os.listdir(scratch))
        self.assertEqual(self.names(), [])

    def test_what_a_killed_one_leaves_goes_with_the_next(self):
        with tempfile.TemporaryDirectory() as scratch:
            job = self.begin(pathlib.Path(scratch))
            job.kill()
            job.wait(60)
            self.assertTrue(os.listdir(scratch))
            self.environment["TMPDIR"] = scratch
            self.expect(0, "print", SAMPLES / "capitals.tsr", "a.pdf")
            self.wait_until(lambda: not os.listdir(scratch))

    def test_cards_that_are_not_there_are_refused(self):
        self.write("a.csv", rows(3))
        for cards in ("4", "0", "2-1", "x", "1,"):
            self.assertIn(b"no such cards", self.expect(1, "print", "a.csv", "a.pdf", "--cards", cards).stderr)
        self.write("b.csv", rows(201))
        self.assertIn(b"200 cards", self.expect(1, "print", "b.csv", "a.pdf").stderr)
        self.assertEqual(self.names(), ["a.csv", "b.csv"])


class Memory(Command):
    def test_stays_below_100_mb_whatever_is_given(self):
        size = 16 << 20
        hostile = {
            "quote.csv": b'"' + b"x" * (size - 1),
            "commas.csv": b"," * size,
            "rows.csv": b"a,b\n" * (size // 4),
            "long.csv": (b"x" * 400 + b",b\n") * (size // 403),
            "wide.csv": b"\xff\xfe" + ("\u4e2d" * 400 + ",b\n").encode("utf-16-le") * (size // 810),
            "lines.txt": b"STD\n" + b"a\n" * (size // 2 - 2),
            "questions.txt": b"EXT\n" + b"x" * (size - 4),
            "zeros.tsr": b"\0" * size,
            "tags.kvtml": b"<a>" * (size // 3),
            "attributes.kvtml": b"<a " + b'a="" ' * (size // 6) + b"/>",
            "text.kvtml": b"<kvtml version='2'><a>" + b"x" * (size - 40) + b"</a></kvtml>",
            "comments.tsv": b"#a:b\n" * (size // 5),
            "columns.tsv": b"# column:1\n" * (size // 11),
            "tags.tsv": b"#html:true\n" + (b"<a" * 500_000 + b"\t") * 16,
            "html.tsv": b"#html:true\n" + b"<&" * (size // 2 - 8),
        }
        for name, content in hostile.items():
            with self.subTest(name):
                self.write(name, content[:size])
                command = [PROGRAM, "convert", name, "-", "--to", "tsv"]
                used = subprocess.run(["/usr/bin/python3", "-c", MEASURE, *map(str, command)], cwd=self.folder,
                                      stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=100, check=True)
                self.assertLess(int(used.stdout) / 1024, 100, name)


MEASURE = """
import resource, subprocess, sys
subprocess.run(sys.argv[1:], stdout=subprocess.DEVNULL, check=False)
print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)
"""


class Manual(Command):
    def test_its_examples_run(self):
        self.write("verbs.csv", rows(2))
        page = (SOURCE / "packaging" / "tessara-deck.1.in").read_text()
        examples = re.search(r"\.EX\n(.*?)\.EE", page, re.DOTALL).group(1).splitlines()
        for example in examples:
            words = f"PATH={BUILD}:$PATH; {example}"
            done = subprocess.run(["sh", "-c", words], cwd=self.folder, capture_output=True, check=False,
                                  env=self.environment)
            self.assertEqual((done.returncode, done.stderr), (0, b""), example)
        self.assertEqual(self.names(), ["again.tsr", "verbs.csv", "verbs.pdf", "verbs.tsr", "verbs.tsv"])

    def test_it_and_the_completions_name_each_option(self):
        pages = [SOURCE / "packaging" / "tessara-deck.1.in", *(SOURCE / "packaging" / "completions").iterdir()]
        for command in ("convert", "check", "show", "info", "print"):
            told = self.expect(0, command, "--help").stdout.decode()
            for option in set(re.findall(r"--([a-z]+)", told)) - {"help", "version"}:
                for page in pages:
                    self.assertIn(option, page.read_text().replace("\\", ""), f"{page}: {command}")


class Start(Command):
    def test_starts_within_20_ms_of_a_program_that_does_nothing(self):
        def shortest(*command):
            times = []
            for _ in range(30):
                start = time.perf_counter()
                subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
                times.append(time.perf_counter() - start)
            return min(times)
        self.assertLess(shortest(PROGRAM, "--version") - shortest("/bin/true"), 0.020)


class Usage(Command):
    def test_help_and_version_of_each_command(self):
        for command in ((), ("convert",), ("check",), ("show",), ("info",), ("print",)):
            self.assertIn(b"Usage", self.expect(0, *command, "--help").stdout)
            self.assertIn(b"tessara-deck 1.", self.expect(0, *command, "--version").stdout)

    def test_a_wrong_call_is_told(self):
        for call in ((), ("wrong",), ("convert",), ("convert", "a.csv"), ("convert", "--wrong", "a.csv", "b.tsr")):
            self.assertNotEqual(self.expect(1, *call).stderr + self.run_command(*call).stdout, b"")
        self.expect(2, "check", "--wrong")


if __name__ == "__main__":
    unittest.main()
