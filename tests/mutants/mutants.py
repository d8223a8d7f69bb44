#!/usr/bin/env python3
"""Plants small bugs in the code, one at a time, and prints those that no test finds.

    tests/mutants/mutants.py --count 50 --seed 7 --under engine,region,platform
    tests/mutants/mutants.py --count 50 --under tools

Works in a copy of the tree in build/mutants/. A change that no test finds is printed with its place. Either it does
not change the behaviour, or a test is missing.
"""

import argparse
import collections
import os
import pathlib
import random
import shutil
import subprocess
import sys
import time

sys.dont_write_bytecode = True  # leave no files among the sources
import mutations  # noqa: E402

PROJECT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = PROJECT / "build/mutants"
TREE = FOLDER / "tree"
BUILD = FOLDER / "build"
MEMORY = 4 << 30
# The tests of the tools and of the module. Those that find most bugs come first.
TOOLS_TESTS = ["zk_tools_tests"]
MODULE_TESTS = ["zk_module_tests", "zk_file_tests", "zk_failure_tests", "zk_tools_tests"]


def copy_tree():
    """Updates the copy. Unchanged files keep their times, so they are not compiled again."""
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                            cwd=PROJECT, check=True, capture_output=True).stdout.decode().split("\0")
    for name in filter(None, listed):
        source, copy = PROJECT / name, TREE / name
        if not source.is_file() or (copy.is_file() and copy.read_bytes() == source.read_bytes()):
            continue
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, copy)
    for copy in [path for path in TREE.rglob("*") if path.is_file()]:
        if str(copy.relative_to(TREE)) not in listed:
            copy.unlink()


def build(test):
    return subprocess.run(["cmake", "--build", BUILD, "-j", str(os.cpu_count()), "--target", test],
                          capture_output=True, text=True)


def passes(test, seconds):
    """Returns whether the test passes in this time. A test that hangs or uses too much memory fails."""
    scratch = FOLDER / "scratch"
    shutil.rmtree(scratch, ignore_errors=True)
    scratch.mkdir()
    with subprocess.Popen(["prlimit", f"--as={MEMORY}", BUILD / "bin" / test, "--gtest_fail_fast", "--gtest_brief=1"],
                          stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          env={**os.environ, "TMPDIR": str(scratch)}, start_new_session=True) as process:
        try:
            return process.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, 9)
            except ProcessLookupError:
                pass


def prepare(tests):
    """Builds the copy without a mutation, and returns the time limit of each test."""
    copy_tree()
    subprocess.run(["cmake", "-G", "Ninja", "-S", TREE, "-B", BUILD, "-DCMAKE_CXX_FLAGS=-O1 -w", "-DZK_EXAMPLES=OFF"],
                   check=True, stdout=subprocess.DEVNULL)
    limits = {}
    for test in tests:
        built = build(test)
        if built.returncode != 0:
            sys.exit(built.stdout[-4000:])
        start = time.monotonic()
        if not passes(test, 600):
            sys.exit(f"{test} also fails without a mutation.")
        limits[test] = 10 + 5 * (time.monotonic() - start)
    return limits


def outcome_of(mutation, limits):
    path = TREE / mutation.path
    original = path.read_text()
    path.write_text(mutation.applied_to(original))
    try:
        for test, seconds in limits.items():
            if build(test).returncode != 0:
                return "not compiled"
            if not passes(test, seconds):
                return "caught"
        return "survived"
    finally:
        path.write_text(original)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--count", type=int, default=20, help="the number of mutations, except those that do not compile")
    parser.add_argument("--seed", type=int, default=1, help="the same seed makes the same mutations of the same code")
    parser.add_argument("--under", default="engine,region,platform", help="folders or files, separated by commas")
    options = parser.parse_args()

    folders = options.under.split(",")
    for folder in folders:
        if not (PROJECT / folder).exists():
            parser.error(f"argument --under: {folder} does not exist")
    os.nice(10)
    limits = prepare(TOOLS_TESTS if folders[0].startswith("tools") else MODULE_TESTS)
    outcomes = collections.Counter()
    try:
        for mutation in mutations.random_mutations(TREE, folders, random.Random(options.seed)):
            if outcomes["caught"] + outcomes["survived"] == options.count:
                break
            outcome = outcome_of(mutation, limits)
            outcomes[outcome] += 1
            if outcome == "survived":
                print(f"{mutation}\n", flush=True)
    except KeyboardInterrupt:
        pass
    print(", ".join(f"{number} {outcome}" for outcome, number in sorted(outcomes.items())))


if __name__ == "__main__":
    main()
