"""The commands that the documents tell, and what runs each of them."""

# What the check runs itself, in the top folder: the command, but for what would change the checkout, wait for a
# person or take minutes. {scratch} is an empty folder, which is the home too.
RUN_AS = {
    "./run": "env -u DISPLAY ./run",
    "./run [deck]": "env -u DISPLAY ./run build/release/samples/science.tsr && test -s build/release/first-card.png",
    "cmake --install build/release --prefix ~/.local":
        "cmake --install build/release --prefix ~/.local && test -x ~/.local/bin/tessara",
    "./test --list": "./test --list | grep -x 'Release build .*'",
    # What is built stands; the rest is a build of minutes.
    "cmake -B build": "cmake -B {scratch}/build -S .",
    "cmake --build build": "cmake -B {scratch}/build -S . -G Ninja && cmake --build {scratch}/build -- -n",
    "cmake --install build": "cmake --install build/release --prefix {scratch}/installed",
    # The packages themselves take minutes, and a root of its own takes a mirror too.
    "scripts/debian_package.sh FOLDER": "bash -n scripts/debian_package.sh && test -x packaging/debian/rules",
    "scripts/release.sh check": "scripts/release.sh check",
    "cpack --config build/release/CPackConfig.cmake -G DEB":
        "cpack --config build/release/CPackConfig.cmake -G DEB -B {scratch} && ls {scratch}/tessara_*.deb",
    "build/release/tessara build/release/samples/capitals.tsr":
        "scripts/with_display.sh scripts/first_card.py {scratch}/card.png"
        " build/release/tessara build/release/samples/capitals.tsr",
    "build/release/tessara-deck convert data/samples/verbs.csv verbs.tsr":
        "build/release/tessara-deck convert data/samples/verbs.csv {scratch}/words.tsr",
    "build/release/tessara-deck print verbs.tsr verbs.pdf":
        "build/release/tessara-deck convert data/samples/verbs.csv {scratch}/verbs.tsr"
        " && build/release/tessara-deck print {scratch}/verbs.tsr {scratch}/verbs.pdf"
        " && pdftotext {scratch}/verbs.pdf - | grep drunk",
    "build/release/tests/tests_unit -tc='*deck*'":
        "build/release/tests/tests_unit -tc='*deck*' | grep 'test cases: *[1-9]'",
    # The rules are that version's, which not every system has.
    "scripts/format.sh": "! command -v clang-format-14 || scripts/format.sh --check",
    "bench/run": "bench/run once",
    "bench/run --check": "test -x bench/check_figures.py",
    "scripts/random_user [STEPS [SEED]]": "PRESET=release scripts/random_user 20 1",
    # Each of the two builds all tests anew; what they do with the results of that is run.
    "scripts/coverage.sh": "bash -n scripts/coverage.sh && echo '{{\"files\": []}}' >{scratch}/none.json"
        " && scripts/coverage_by_folder.py {scratch}/none.json",
    "scripts/mutants.py [COUNT [SEED]]": "python3 -c 'import sys; sys.path.insert(0, \"scripts\"); import mutants;"
        " assert any(list(mutants.faults_in(name)) for name in mutants.sources())'",
    # Real-time priority is root's; what runs under it is the line above.
    "ionice -c 1 chrt -f 10 bench/run": "ionice -c 3 chrt -i 0 test -x bench/run",
    "scripts/with_display.sh dbus-run-session -- tests/access/take_windows.py build/release /tmp/windows dark":
        "scripts/with_display.sh dbus-run-session -- tests/access/take_windows.py build/release {scratch} dark about"
        " && test -s {scratch}/about.png",
    "scripts/take_pictures.sh": "scripts/take_pictures.sh {scratch}/pictures",
    # The debug build compiles what the sanitizer build compiles: made ready here, not made.
    "cmake --preset debug": "cmake --preset debug -B {scratch}/debug",
    "cmake --build --preset debug": "cmake --preset debug -B {scratch}/debug && cmake --build {scratch}/debug -- -n",
    "gdb --args build/debug/tessara build/release/samples/capitals.tsr":
        "gdb -batch -ex 'break main' -ex run -ex kill"
        " --args build/release/tessara build/release/samples/capitals.tsr | grep 'Breakpoint 1, main'",
    "gdb --args build/debug/tests/tests_unit -tc='*deck*'":
        "gdb -batch -ex 'break main' -ex run -ex kill"
        " --args build/release/tests/tests_unit -tc='*deck*' | grep 'Breakpoint 1, main'",
    "env TESSARA_LONG_SESSION=100 build/asan/tests/desktop/tests_desktop -tc='*over and over*'":
        "env TESSARA_LONG_SESSION=1 build/release/tests/desktop/tests_desktop -tc='*over and over*'"
        " | grep 'test cases: *[1-9]'",
    "cp ~/.local/state/Tessara/copies/'verbs 2026-11-21 08-13-27-0042.tsr' ~/decks/verbs.tsr":
        "mkdir -p ~/.local/state/Tessara/copies ~/decks"
        " && echo verbs >~/.local/state/Tessara/copies/'verbs 2026-11-21 08-13-27-0042.tsr'"
        " && cp ~/.local/state/Tessara/copies/'verbs 2026-11-21 08-13-27-0042.tsr' ~/decks/verbs.tsr"
        " && grep -q verbs ~/decks/verbs.tsr",
}

# What another part of ./test runs: the file that does, and the line in it that says so.
RUN_BY = {
    "./test": (".ci/run", "test"),
    "scripts/on_debian.sh 13 './test quick'": (".ci/run", "scripts/on_debian.sh 12 ./test"),
    "./test quick": ("test", "tests \"Tests\" release \"$behaviourTests\""),
    "cmake --preset release": ("test", "cmake --preset \"$preset\""),
    "cmake --build --preset release": ("test", "cmake --build --preset \"$preset\""),
    "scripts/packages.sh build run test package lint sanitizers virtual-display":
        ("test", "scripts/packages.sh \"${groups[@]}\""),
    "scripts/tidy.py build/release": ("test", "scripts/tidy.py build/release"),
    "fuzz/run [SECONDS [NAME...]]": ("test", "fuzz/run $fuzzSeconds"),
    "build/fuzz/fuzz_NAME FILE": ("fuzz/run", "$built/fuzz_$name"),
}
