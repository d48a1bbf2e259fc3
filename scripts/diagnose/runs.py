"""Groups the records of the log by start, and gives each start a verdict."""

import collections
import datetime
import functools
import re
import typing

import errors
import source as sources

# After such a silence a process id names another start. It is longer than the hour that a clock skips in
# spring.
GAP = datetime.timedelta(minutes=90)
MAX_OPEN = 64  # Starts at a time whose end may still come.
MAX_PROBLEMS = 20  # Of one start.

# A record is its time, its process and thread, and a rest that comes again and again.
_HEAD = re.compile(rb"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d \( *(\d{1,10}): *\d{1,10}(?=\) \[)")
_REST = re.compile(rb"\) \[([A-Z]+)\] ([^ (\n]+)\((\d+)\): ?([^\n]*)\n?")
_FILE_OPERATION = b") [DEBUG] file-op("  # Most records, where they show at all.
_LINE = 1 << 14  # Bytes; longer ones are no records of the launcher.
_KEPT_RESTS = 2000
LEVELS = {b"ERROR": 3, b"WARNING": 4, b"NOTE": 5, b"INFO": 6, b"DEBUG": 7}
COMPONENTS = {
    b"main": "launcher_debug",
    b"launcher": "launcher_debug",
    b"cloud-service": "service_debug",
    b"mac/mac-service": "service_debug",
    b"extractor": "extractor_debug",
    b"file-op": "file_op_debug",
}

# The events that records tell of, by source and line where these are fixed, and by the text elsewhere.
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
    (b"failed to put back client from ", "not put back"),
)

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
    """A record that complains, and its row of the table."""

    error: errors.Error
    text: str


class Rest(typing.NamedTuple):
    """What a record says behind its time and its process."""

    level: int
    component: str
    event: str
    build: str
    problem: typing.Optional[Problem]


def _read_rest(text):
    """Returns what the rest of a record says, or None where it is no record."""
    found = _REST.fullmatch(text)
    level = LEVELS.get(found.group(1)) if found else None
    if level is None:
        return None
    source, line, message = found.group(2, 3, 4)
    event = _FIXED.get((source, line)) or next(
        (name for begin, name in _TEXTS if message.startswith(begin)), ""
    )
    message = message.decode("utf-8", "replace")
    version = message.split(", ") if event in ("target", "source") else ()
    problem = Problem(errors.find(message), message) if level <= 5 else None
    if problem and problem.error.key == "no-backup":
        event = "no backup"
    return Rest(
        level,
        COMPONENTS.get(source, ""),
        event,
        version[2][:20] if len(version) == 4 else "",
        problem,
    )


class Run:
    """One start of the launcher."""

    __slots__ = (
        "pid",
        "first",
        "last",
        "events",
        "builds",
        "levels",
        "problems",
        "verdict",
        "number",
    )

    def __init__(self, pid, number, time):
        self.pid = pid
        self.number = number
        self.first = self.last = time  # As the log has it.
        self.events = set()
        self.builds = {}
        self.levels = {}
        self.problems = []
        self.verdict = ""

    @property
    def begin(self):
        return _time(self.first)

    @property
    def end(self):
        return _time(self.last)

    def take(self, rest):
        """Takes one record of the start in."""
        if rest.level > self.levels.get(rest.component, 0):
            self.levels[rest.component] = rest.level
        if rest.problem and len(self.problems) < MAX_PROBLEMS:
            self.problems.append(rest.problem)
        event = rest.event
        if event == "not put back" and "failed" not in self.events:
            return  # The installation itself may put something whole in place.
        if event:
            self.events.add(event)
        if rest.build:
            self.builds[event] = rest.build

    @property
    def stage(self):
        """Returns how far the start came."""
        return next((text for event, text in _STAGES if event in self.events), "")

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
        """Gives the start its verdict, knowing whether its end and its failure would show."""
        seen = self.events
        has_failed = not seen.isdisjoint(("roll back", "no old", "no backup"))
        if "left" in seen:
            self.verdict = "another launcher ran"
        elif "failed" in seen or (has_failed and ("aged" in seen or not tells_failure)):
            self.verdict = self._failure()
        elif "ready" in seen:
            self.verdict = "installed"
        elif (
            has_failed
            or (expects_done and "done" not in seen)
            or ("target" in seen and "aged" not in seen)
        ):
            self.verdict = "ended half-way"
        elif "no need" in seen:
            self.verdict = "nothing to do"
        else:
            self.verdict = "installed" if "running" in seen else self._verdict_of_few_records()

    def _failure(self):
        if "not put back" in self.events:
            return "failed, not put back"
        if self.events & {"no old", "no source"}:
            return "failed, nothing to go back to"
        if "no backup" in self.events:
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


@functools.lru_cache(maxsize=1000)
def _time(stamp):
    """Returns the time of a record; one that the calendar does not have is the earliest of all."""
    try:
        return datetime.datetime.fromisoformat(stamp.decode())
    except ValueError:
        return datetime.datetime.min


def _is_over(run, stamp):
    """Tells whether a record of that time belongs to another start with the same number."""
    if "done" in run.events or "left" in run.events:
        return True
    return stamp != run.last and _time(stamp) - run.end > GAP


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
        self._current = None
        self._rests = {}
        self._count = 0
        self._expects_done = False
        self._tells_failure = tells_failure

    def read(self, stream):
        """Takes one file in."""
        line = b"\n"
        while True:
            last, line = line, stream.readline(_LINE)
            if not line:
                break
            self.bytes += len(line)
            head = _HEAD.match(line)
            rest = self._rest(line[head.end() :]) if head else None
            if rest is None:
                self.other_lines += 1
                continue
            self.records += 1
            self._take(line[:19], head.group(1), rest)
        self.ends_inside_record = not last.endswith(b"\n")

    def _rest(self, text):
        rest = self._rests.get(text)
        if rest is None:
            kind = _FILE_OPERATION if text.startswith(_FILE_OPERATION) else text
            rest = self._rests.get(kind) or _read_rest(text)
            if len(self._rests) >= _KEPT_RESTS:
                self._rests.clear()
            if rest is not None and len(kind) < 1000:
                self._rests[kind] = rest
        return rest

    def _take(self, stamp, pid, rest):
        run = self._current
        if run is None or run.pid != pid:
            run = self._current = self._open.get(pid)
        if run is None or rest.event == "start" or _is_over(run, stamp):
            run = self._current = self._begin(pid, stamp)
        elif len(self._open) > 1:
            self._open.move_to_end(pid)
        run.last = stamp
        run.take(rest)

    def _begin(self, pid, stamp):
        if pid in self._open:
            self._close(self._open.pop(pid))
        elif len(self._open) >= MAX_OPEN:
            self._close(self._open.popitem(last=False)[1])
        self._count += 1
        run = self._open[pid] = Run(pid, self._count, stamp)
        return run

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
