"""What the log tells of each start: its records are grouped by start, and each start gets a verdict."""

import collections
import datetime
import re
import typing

import errors
import source as sources

# A process id may name another start later. It does after a silence that no start keeps, and which is longer than
# the hour that a clock skips in spring.
GAP = datetime.timedelta(minutes=90)
MAX_OPEN = 64  # Starts at a time whose end may still come.
MAX_PROBLEMS = 20  # Of one start.

_RECORD = re.compile(
    rb"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d) \( *(\d+): *\d+\) \[([A-Z]+)\] ([^ (\n]+)\((\d+)\): ?([^\n]*)\n?"
)
_LINE = 1 << 14  # Bytes; longer ones are no records of the launcher.
LEVELS = {b"ERROR": 3, b"WARNING": 4, b"NOTE": 5, b"INFO": 6, b"DEBUG": 7}
COMPONENTS = {
    b"main": "launcher_debug",
    b"launcher": "launcher_debug",
    b"cloud-service": "service_debug",
    b"mac/mac-service": "service_debug",
    b"extractor": "extractor_debug",
    b"file-op": "file_op_debug",
}

# The events that records tell of: by source and line where these are fixed, by the text's beginning elsewhere.
_FIXED = {
    (b"main", b"106"): "start",
    (b"main", b"154"): "left",
    (b"launcher", b"89"): "running",
    (b"launcher", b"94"): "no need",
    (b"launcher", b"101"): "failed",
    (b"launcher", b"117"): "done",
}
_TEXTS = (
    (b"target_version = ", "target"),
    (b"source_version = ", "source"),
    (b"source does not exist", "no source"),
    (b"local appdata exist", "stop"),
    (b"extract package: ", "unpack"),
    (b"user installation is ready", "ready"),
    (b"removing aged app folder ", "aged"),
    (b"Failed to extract package, rollback", "roll back"),
    (b"Failed to extract package, and no old", "no old"),
)
_BUILD = re.compile(rb"\(.*?, .*?, (.*), .*?\)$")

# The last of these that was seen tells where a start ended that did not end in order.
_STAGES = (
    ("done", "after its work"),
    ("aged", "before the client was opened"),
    ("ready", "while the old copy was removed"),
    ("failed", "after the installation had failed"),
    ("roll back", "while the old copy was put back"),
    ("no old", "after the installation had failed"),
    ("unpack", "while unpacking"),
    ("stop", "while the running client was stopped or moved aside"),
    ("target", "before anything was unpacked"),
    ("running", "at the look at the installed client"),
    ("start", "before its work began"),
)

VERDICTS = {
    "installed": "installed",
    "nothing to do": "nothing to do",
    "failed, old copy back": "failed, and the old copy is back",
    "failed, nothing changed": "failed, and nothing was changed",
    "failed, not put back": "failed, and no old copy could be put in place",
    "failed, nothing to go back to": "failed, with nothing to go back to",
    "failed": "failed",
    "ended half-way": "ended half-way: killed or crashed, or the log could not be written any more",
    "another launcher ran": "left at once: another launcher ran",
    "running": "is running now",
    "complained": "complained, but no installation failed",
    "not told": "ran; these levels of logging do not tell how it ended",
}


class Problem(typing.NamedTuple):
    """A record that complains: its row of the table, and the text between its quotes or the system's reason."""

    error: errors.Error
    text: str


class Run:
    """One start of the launcher."""

    __slots__ = (
        "pid",
        "begin",
        "end",
        "events",
        "builds",
        "levels",
        "problems",
        "verdict",
        "stage",
        "number",
    )

    def __init__(self, pid, number):
        self.pid = pid
        self.number = number
        self.begin = self.end = None
        self.events = set()
        self.builds = {}
        self.levels = {}
        self.problems = []
        self.verdict = self.stage = ""

    def take(self, level, source, line, message):
        """Takes one record of the start in."""
        event = _FIXED.get((source, line)) or _event_of(message)
        if event:
            self.events.add(event)
        if event in ("target", "source"):
            found = _BUILD.search(message)
            self.builds[event] = found.group(1).decode("utf-8", "replace")[:20] if found else ""
        if level <= 5 and len(self.problems) < MAX_PROBLEMS:
            text = message.decode("utf-8", "replace")
            self.problems.append(Problem(errors.find(text), text))
            if "failed" in self.events and self.problems[-1].error.key == "not-put-back":
                self.events.add("not put back")

    @property
    def keys(self):
        return {problem.error.key for problem in self.problems}

    @property
    def cause(self):
        """Returns the problem that made the installation fail, or None."""
        causes = [p for p in self.problems if p.error.role == errors.CAUSE]
        causes += [p for p in self.problems if p.error.role == errors.REASON]
        if not causes:
            return Problem(errors.NOT_LOGGED, "") if self.verdict.startswith("failed") else None
        precise = [p for p in causes if p.error.refines == causes[0].error.key]
        return (precise or causes)[0]

    @property
    def also(self):
        """Returns the rows of what else went wrong, each once."""
        if self.verdict.startswith("failed"):
            roles = (errors.SIDE,)
        else:
            roles = (errors.SIDE, errors.REASON, errors.CAUSE)
        return list({p.error.key: p.error for p in self.problems if p.error.role in roles}.values())

    def settle(self, expects_done, tells_failure):
        """Gives the start its verdict, knowing whether its end and its failure would stand in the log."""
        self.stage = next((text for event, text in _STAGES if event in self.events), "")
        self.verdict = self._verdict(expects_done, tells_failure)

    def _verdict(self, expects_done, tells_failure):
        seen = self.events
        if "left" in seen:
            return "another launcher ran"
        has_failed = bool(seen & {"roll back", "no old"}) or "no-backup" in self.keys
        if "failed" in seen or (has_failed and ("aged" in seen or not tells_failure)):
            return self._failure()
        if "ready" in seen:
            return "installed"
        is_cut = "aged" not in seen and "target" in seen
        if has_failed or (expects_done and "done" not in seen) or is_cut:
            return "ended half-way"
        if "no need" in seen:
            return "nothing to do"
        if "running" in seen:
            return "installed"
        return self._verdict_of_few_records()

    def _failure(self):
        if "not put back" in self.events:
            return "failed, not put back"
        if self.events & {"no old", "no source"}:
            return "failed, nothing to go back to"
        if "no-backup" in self.keys:
            return "failed, nothing changed"
        return "failed, old copy back" if "roll back" in self.events else "failed"

    def _verdict_of_few_records(self):
        if "aged" in self.events and "unpack" not in self.events:
            return "nothing to do"
        if any(
            p.error.role == errors.CAUSE and p.error.key != "not-put-back" for p in self.problems
        ):
            return "ended half-way"  # A record of the failure would have followed.
        return "complained" if self.also else "not told"

    @property
    def is_cut_after_installing(self):
        return (
            self.verdict == "installed" and "running" in self.events and "done" not in self.events
        )


def _event_of(message):
    for text, event in _TEXTS:
        if message.startswith(text):
            return event
    return None


class Log:
    """All starts that a log tells of. Keeps the last ones, and counts the verdicts of all."""

    def __init__(self, keep, tells_failure=True):
        self.files = self.bytes = self.records = self.other_lines = 0
        self.notes = []
        self.levels = {}  # Of each component, the highest level that the last start shows.
        self.verdicts = collections.Counter()
        self.ends_inside_record = False
        self.runs = collections.deque(maxlen=keep)
        self._open = collections.OrderedDict()
        self._times = {}
        self._count = 0
        self._expects_done = False
        self._tells_failure = tells_failure

    def read(self, stream):
        """Takes one file in."""
        line, levels = b"\n", LEVELS
        while True:
            last, line = line, stream.readline(_LINE)
            if not line:
                break
            self.bytes += len(line)
            record = _RECORD.fullmatch(line)
            level = levels.get(record.group(3)) if record else None
            if level is None:
                self.other_lines += 1
                continue
            self.records += 1
            time, pid, _, source, number, message = record.groups()
            self._take(time, pid, level, source, number, message)
        self.ends_inside_record = not last.endswith(b"\n")

    def _take(self, stamp, pid, level, source, line, message):
        time = self._time(stamp)
        run = self._open.get(pid)
        is_start = source == b"main" and line == b"106"
        if (
            run is None
            or is_start
            or "done" in run.events
            or "left" in run.events
            or time - run.end > GAP
        ):
            run = self._begin(pid, time)
        else:
            self._open.move_to_end(pid)
        run.end = time
        component = COMPONENTS.get(source)
        if component and level > run.levels.get(component, 0):
            run.levels[component] = level
        if level < 7 or source != b"file-op":
            run.take(level, source, line, message)

    def _begin(self, pid, time):
        if pid in self._open:
            self._close(self._open.pop(pid))
        elif len(self._open) >= MAX_OPEN:
            self._close(self._open.popitem(last=False)[1])
        self._count += 1
        run = self._open[pid] = Run(int(pid), self._count)
        run.begin = time
        return run

    def _time(self, stamp):
        if stamp not in self._times:
            if len(self._times) > 1000:
                self._times.clear()
            try:
                self._times[stamp] = datetime.datetime.fromisoformat(stamp.decode())
            except ValueError:
                self._times[stamp] = datetime.datetime.min
        return self._times[stamp]

    def _close(self, run):
        # Where the start before told its end, this one would have told it, too.
        if "running" in run.events:
            self._expects_done = True
        elif run.events - {"start", "left"}:
            self._expects_done = False
        run.settle(self._expects_done and bool(run.events), self._tells_failure)
        self.verdicts[run.verdict] += 1
        self.runs.append(run)

    def finish(self):
        """Closes what is open. No file may be read afterwards."""
        for run in sorted(self._open.values(), key=lambda run: run.number):
            self._close(run)
        self._open.clear()
        last = sorted(self.runs, key=lambda run: run.number)
        self.runs.clear()
        self.runs.extend(last)
        self.levels = self.runs[-1].levels if self.runs else {}


def _age(name):
    number = sources.LOG_NAME.fullmatch(name).group(1)
    return -1 if number is None else int(number)


def read_log(source, keep, tells_failure=True):
    """Reads the log and all its older files, oldest first."""
    log = Log(keep, tells_failure)
    folder = sources.CORVIMO + "/log"
    try:
        names = [name for name in source.names(folder) if sources.LOG_NAME.fullmatch(name)]
    except OSError as error:
        names = []
        if source.is_live and not isinstance(error, FileNotFoundError):
            log.notes.append(f"The log folder cannot be read: {error.strerror}.")
    for name in sorted(names, key=_age, reverse=True):
        try:
            with source.opened(f"{folder}/{name}") as stream:
                log.read(stream)
            log.files += 1
        except sources.NotAFile:
            log.notes.append(f"{name} is not a file: the launcher cannot write its log.")
        except OSError as error:
            log.notes.append(f"{name} cannot be read: {error.strerror}.")
    log.finish()
    return log
