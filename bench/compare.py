"""The work of compare.sh. Needs Python 3.9 and nothing but its standard library."""

import argparse
import dataclasses
import functools
import os
import pathlib
import re
import subprocess
import sys

from comparison import machine, report, rights, rows, volumes
from comparison.stage import QUICK, RunFailed, Sizes, Stage

DESCRIPTION = """\
Compares the launcher and its parts with programs that do the same work, in paired runs A B A B, and
prints for each pair the medians, the median of the ratios A/B, their middle half, the target and
whether it holds. Makes its own data. BUILD is a build folder of the preset `bench`.

A target holds ("yes") or is missed ("no") when it lies outside the middle half; inside, it is "unclear".

Started as root, it runs everything as an ordinary user: nobody, or whoever called sudo.

Exits 0 when every target holds, 1 when one is missed, unclear or not measured, 2 on wrong usage or when
a run fails."""

ROOT = pathlib.Path(__file__).resolve().parents[1]
DOCUMENTS = {ROOT / "README.md": report.extract, ROOT / "docs/performance.md": report.whole}
FAILURES = (RunFailed, OSError, ValueError, subprocess.CalledProcessError)


def parse_arguments():
    parser = argparse.ArgumentParser(
        prog="compare.sh",
        description=DESCRIPTION,
        formatter_class=argparse.RawDescriptionHelpFormatter,
    )
    parser.add_argument("build", type=pathlib.Path, metavar="BUILD")
    parser.add_argument(
        "--only", metavar="PATTERN", help="some groups of rows, such as 'start|log'"
    )
    parser.add_argument("--list", action="store_true", help="list the rows, each with its group")
    parser.add_argument("--quick", action="store_true", help="little data and few runs: a trial")
    parser.add_argument(
        "--write",
        action="store_true",
        help="write the tables into README.md and docs/performance.md",
    )
    parser.add_argument("--pairs", type=int, help="paired runs in memory (default 11)")
    parser.add_argument(
        "--memory",
        type=pathlib.Path,
        default=pathlib.Path("/dev/shm"),
        metavar="FOLDER",
        help="a folder that is held in memory (default /dev/shm)",
    )
    parser.add_argument(
        "--disk",
        type=pathlib.Path,
        metavar="FOLDER",
        help="a folder on a disk (default: a file system of its own in the temporary folder where"
        " root can mount one, else that folder)",
    )
    # Given by compare.sh, which gives root a list of mounts of its own.
    parser.add_argument("--may-mount", action="store_true", help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    if not (arguments.build / "bench/plain_tree").exists():
        parser.error(f"'{arguments.build}' holds no benchmarks; build the preset bench")
    if arguments.pairs is not None and arguments.pairs < 2:
        parser.error("a spread needs at least 2 pairs")
    if arguments.write and (arguments.only or arguments.quick):
        parser.error("--write needs all rows and all data: leave out --only and --quick")
    return arguments


def sizes_of(arguments):
    sizes = QUICK if arguments.quick else Sizes()
    if arguments.pairs is not None:
        sizes = dataclasses.replace(sizes, pairs=arguments.pairs, growth_pairs=arguments.pairs)
    return sizes


def measure(stage, wanted):
    """Measures the wanted rows, prints each and returns their results with the machine's words."""
    if not os.access(stage.program("measure"), os.X_OK):
        raise RunFailed(f"user {os.getuid()} cannot run the programs in '{stage.build}'")
    os.chdir(stage.places.memory)
    os.umask(0o022)
    stage.set_up()
    results = []
    section = None
    for row in wanted:
        if row.section != section:
            section = row.section
            print(f"\n### {section}\n\n{report.HEADER}")
        result = row.result(stage)
        print(result.row(), flush=True)
        results.append(result)
    return results, machine.words(stage)


def wanted_rows(stage, pattern):
    return [row for row in rows.table(stage) if not pattern or re.search(pattern, row.group)]


def main():
    arguments = parse_arguments()
    with volumes.working_places(arguments.memory, arguments.disk, arguments.may_mount) as places:
        stage = Stage(arguments.build.resolve(), places, sizes_of(arguments))
        wanted = wanted_rows(stage, arguments.only)
        if not wanted:
            raise RunFailed(f"no group of rows is called like '{arguments.only}'; see --list")
        if arguments.list:
            for row in wanted:
                print(f"{row.group}: {row.what} | {row.peer}")
            return 0
        work = functools.partial(measure, stage, wanted)
        results, words = rights.as_ordinary_user(work, FAILURES)
    print(f"\n{report.summary(results)}\n{words}")
    if arguments.write:
        for path, text in DOCUMENTS.items():
            report.replace_measured(path, text(results, words))
    return 0 if report.all_hold(results) else 1


if __name__ == "__main__":
    try:
        sys.exit(main())
    except FAILURES as failure:
        print(f"compare.sh: {failure}", file=sys.stderr)
        sys.exit(2)
