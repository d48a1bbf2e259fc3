"""The work of diagnose.sh. Needs Python 3.9 and nothing but its standard library."""

import argparse
import json
import os
import sys

import errors
import report
import runs
import source as sources
import state as states
from privacy import Privacy

DESCRIPTION = """\
diagnose.sh HOME [--launcher Corvimo.app]     tell of the installation in a home folder
diagnose.sh ARCHIVE [--launcher Corvimo.app]  tell of one that a person has sent
diagnose.sh --errors                          print the table of errors of docs/shipping.md

Tells in plain words what state an installation of the client is in, what happened in each start of
the launcher, and what to do next. It only reads. With the launcher's bundle at hand it also compares
the installed client with the package, file by file.

The report may be pasted into a ticket: the home folder is shown as ~, and the person's own files are
counted but never named. A person makes the archive with

  tar -C ~ --exclude .Corvimo/data -czf ~/corvimo-report.tar.gz .Corvimo

Exits 0 with a report, whatever it tells, 1 when there is nothing to look at, 2 on wrong usage."""

RUNS = 30


def parse_arguments():
    """Returns the arguments of the command line."""
    parser = argparse.ArgumentParser(
        prog="diagnose.sh",
        usage="diagnose.sh HOME|ARCHIVE [--launcher Corvimo.app] [--json] [--runs N] | --errors",
        description=DESCRIPTION,
        formatter_class=argparse.RawDescriptionHelpFormatter,
    )
    parser.add_argument("home", nargs="?", metavar="HOME|ARCHIVE")
    parser.add_argument(
        "--launcher", metavar="Corvimo.app", help="the launcher's bundle that the person starts"
    )
    parser.add_argument("--json", action="store_true", help="print the report for a program")
    parser.add_argument(
        "--runs", type=int, default=RUNS, metavar="N", help=f"tell of the last N starts ({RUNS})"
    )
    parser.add_argument("--errors", action="store_true", help="print the table of errors")
    arguments = parser.parse_args()
    if bool(arguments.home) == arguments.errors or arguments.runs < 1:
        parser.error("name one home folder or archive")
    return arguments


def diagnose(home, launcher, keep):
    """Returns the report on a home folder or an archive."""
    source = sources.open_source(home)
    state = states.look(source, launcher)
    levels = state.launcher.levels if state.launcher and state.launcher.levels else {}
    log = runs.read_log(source, keep, levels.get("launcher_debug", 4) >= 3)
    last = log.runs[-1] if log.runs else None
    is_unfinished = last and last.verdict in ("ended half-way", "not told")
    if is_unfinished and state.lock == states.HELD and states.is_running(int(last.pid)):
        last.verdict = "running"
    privacy = Privacy(source.home if source.is_live else None)
    return safe(report.build(source, state, log, privacy), privacy)


def safe(value, privacy):
    """Returns a report with every text made safe to paste."""
    if isinstance(value, str):
        return privacy.shown(value)
    if isinstance(value, list):
        return [safe(item, privacy) for item in value]
    if isinstance(value, dict):
        return {key: safe(item, privacy) for key, item in value.items()}
    return value


def main():
    """Prints what the command line asks for. Returns the exit status."""
    arguments = parse_arguments()
    if arguments.errors:
        print(errors.markdown_table(), end="")
        return 0
    try:
        result = diagnose(arguments.home, arguments.launcher, arguments.runs)
    except (sources.Unusable, OSError) as error:
        subject = getattr(error, "subject", "") or Privacy(os.path.expanduser("~")).shown(
            arguments.home
        )
        reason = error.strerror if isinstance(error, OSError) else error
        print(f"diagnose.sh: {subject}: {reason}", file=sys.stderr)
        return 1
    if arguments.json:
        print(json.dumps(result, indent=2, ensure_ascii=False))
    else:
        has_colour = (
            sys.stdout.isatty()
            and "NO_COLOR" not in os.environ
            and os.environ.get("TERM") != "dumb"
        )
        print("\n".join(report.text_lines(result, has_colour)))
    return 0


def run():
    """Runs `main`; a pipe that nobody reads and Ctrl-C end it quietly."""
    try:
        status = main()
        sys.stdout.flush()
        return status
    except BrokenPipeError:
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
        return 0
    except KeyboardInterrupt:
        print("diagnose.sh: interrupted", file=sys.stderr)
        return 130


if __name__ == "__main__":
    sys.exit(run())
