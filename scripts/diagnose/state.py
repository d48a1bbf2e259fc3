"""What state the installation is in."""

import contextlib
import dataclasses
import errno
import fcntl
import os
import re
import stat
import subprocess
import time
import typing

import client as clients
import source as sources
from source import CORVIMO, LUMAPORT

APP = CORVIMO + "/Corvimo.app"
BACKUPS = [APP + "_tmp"] + [f"{APP}_tmp{number}" for number in range(1, 10)]
LOCK = CORVIMO + "/launcher.lock"
PID_FILE = CORVIMO + "/ui.pid"
MARK = LUMAPORT + "/.corvimo_moving_data"
KNOWN = {os.path.basename(path) for path in (APP, LOCK, PID_FILE, *BACKUPS)} | {"data", "log"}
FILE_TIME_TOLERANCE = 2  # Seconds, as the launcher has it.
SHOWN_NAMES = 3

HELD, FREE, NO_LOCK, NOT_KNOWN = "held", "free", "no lock file", "not known"


class Launcher(typing.NamedTuple):
    """The launcher's bundle."""

    build: typing.Optional[str]
    package: clients.Package
    levels: typing.Optional[
        dict
    ]  # None where there is no file, or where the launcher takes none of it.
    level_notes: list


@dataclasses.dataclass
class State:
    """Everything that is known without the log."""

    client: clients.Client = None
    installed_build: typing.Optional[int] = None  # As the launcher reads it, also of half a client.
    comparison: typing.Optional[clients.Comparison] = None
    backups: list = dataclasses.field(default_factory=list)  # Of (name, client).
    leftovers: int = 0  # Copies that could not be removed, under random names.
    older: bool = False
    older_data: typing.Optional[sources.Usage] = None
    move_is_unfinished: bool = False
    data: typing.Optional[sources.Usage] = None
    lock: str = NOT_KNOWN
    process: typing.Tuple[str, str] = ("", "")  # A word for programs, and a sentence.
    free: typing.Optional[int] = None
    needed: typing.Optional[int] = None
    is_estimate: bool = True
    obstacles: list = dataclasses.field(default_factory=list)
    launcher: typing.Optional[Launcher] = None

    @property
    def lacks_space(self):
        return self.free is not None and self.needed is not None and self.free < self.needed

    @property
    def whole_backup(self):
        """Returns the backup that the launcher would put back, or None."""
        whole = [found for found in self.backups if found[1].state == clients.WHOLE]
        return max(reversed(whole), key=lambda found: found[1].build, default=None)

    @property
    def will_install(self):
        """Tells whether the next start installs the package; None where that is not known."""
        if self.launcher is None or self.launcher.build is None:
            return None
        installed = self.installed_build
        if self.client.state != clients.WHOLE and self.whole_backup:
            installed = self.whole_backup[1].build  # The launcher puts it back first.
        return installed is None or clients.leading_number(self.launcher.build) > installed


def look(source, launcher_path=None):
    """Returns the state of an installation."""
    state = State()
    state.client = clients.inspect(source, APP)
    state.installed_build = clients.decides(source, APP)
    state.backups = [(os.path.basename(path), clients.inspect(source, path)) for path in BACKUPS]
    state.backups = [found for found in state.backups if found[1].state != clients.MISSING]
    if launcher_path:
        state.launcher = look_at_launcher(launcher_path)
    _compare(state, source)
    _look_at_folders(state, source)
    if source.is_live:
        state.lock = lock_state(source.real(LOCK))
        _measure_space(state, source)
    state.process = client_process(source)
    state.obstacles = list(obstacles(source))
    return state


def _compare(state, source):
    launcher = state.launcher
    if (
        launcher is None
        or launcher.package.state != "whole"
        or state.client.state == clients.MISSING
    ):
        return
    build = clients.leading_number(launcher.build)
    if state.client.state != clients.WHOLE or state.client.build == build:
        state.comparison = clients.compare(source, APP, launcher.package)


def _look_at_folders(state, source):
    with contextlib.suppress(OSError):
        for name in source.names(CORVIMO):
            path = f"{CORVIMO}/{name}"
            is_leftover = re.fullmatch(r"[\w-]{8}", name, re.ASCII) and source.entry(
                path + "/Contents"
            )
            state.leftovers += bool(is_leftover)
    with contextlib.suppress(OSError):
        state.data = source.usage(CORVIMO + "/data")
        state.older = source.entry(LUMAPORT) is not None
        state.older_data = source.usage(LUMAPORT + "/data")
        state.move_is_unfinished = source.entry(MARK) is not None


def look_at_launcher(path):
    """Returns what a launcher's bundle holds."""
    resources = os.path.join(path, "Contents/Resources")
    if not os.path.isdir(resources):
        raise sources.Unusable(
            "it has no folder Contents/Resources; name a launcher, Corvimo.app", "--launcher"
        )
    bundle = sources.Folder(resources)
    build = None
    with contextlib.suppress(OSError, sources.NotAFile):
        build = clients.build_in(bundle.text("INFO"))
    package = clients.read_package(bundle.real("package/lumaport.cpk"))
    return Launcher(build, package, *_levels(bundle))


_ENTRY = re.compile(
    r"\s*([\w.-]+)\s*=\s*(?:\"([^\"]*)\"|'([^']*)'|([^\s#]\S*))\s*(?:#.*)?", re.ASCII
)
_COMPONENTS = ("launcher_debug", "service_debug", "extractor_debug", "file_op_debug")


def _levels(bundle):
    """Returns the levels that launcher.debug sets, and what is wrong with it."""
    try:
        lines = bundle.text("log/launcher.debug").decode("utf-8", "replace").split("\n")
    except (OSError, sources.NotAFile):
        return None, []
    levels, notes = {}, []
    for number, line in enumerate(lines, 1):
        if re.fullmatch(r"\s*[\w.-]*(#.*)?", line, re.ASCII):
            continue
        entry = _ENTRY.fullmatch(line)
        if not entry:
            return None, [
                f"Line {number} of launcher.debug is no entry, so the whole file is void."
            ]
        value = next(part for part in entry.groups()[1:] if part is not None)
        level = re.match(r"\s*[+-]?\d+", value)
        levels[entry.group(1)] = int(level.group()) if level else 0
        if entry.group(1) not in _COMPONENTS:
            notes.append(f"Line {number} of launcher.debug names no component, and does nothing.")
        elif not level:
            notes.append(
                f"Line {number} of launcher.debug sets no number, and silences the component."
            )
    return levels, notes


def lock_state(path):
    """Tells whether a launcher holds the lock. Tries a shared lock, and gives it back at once."""
    flags = os.O_RDONLY | os.O_NONBLOCK | os.O_NOFOLLOW | os.O_CLOEXEC
    try:
        descriptor = os.open(path, flags)
    except FileNotFoundError:
        return NO_LOCK
    except OSError:
        return NOT_KNOWN
    try:
        if not stat.S_ISREG(os.fstat(descriptor).st_mode):
            return NOT_KNOWN
        fcntl.flock(descriptor, fcntl.LOCK_SH | fcntl.LOCK_NB)
        fcntl.flock(descriptor, fcntl.LOCK_UN)
        return FREE
    except BlockingIOError:
        return HELD
    except OSError:
        return NOT_KNOWN
    finally:
        os.close(descriptor)


def is_running(pid):
    """Tells whether a process has the number. Sends nothing, and asks for no group."""
    if not 0 < pid < 2**31:
        return False
    try:
        os.kill(pid, 0)
    except OSError as error:
        return error.errno == errno.EPERM
    return True


def _pid_in(source):
    """Returns the number in the pid file: None where there is none, 0 where it names no process."""
    try:
        if source.entry(PID_FILE) is None:
            return None
        lines = source.text(PID_FILE).decode("utf-8", "replace").split("\n")
    except (OSError, sources.NotAFile):
        return 0
    entries = [_ENTRY.fullmatch(line) for line in lines]
    values = [
        next(filter(None, entry.groups()[1:]), "")
        for entry in entries
        if entry and entry.group(1) == "pid"
    ]
    pid = clients.leading_number(values[-1]) if values else 0
    return max(pid, 0)


def client_process(source):
    """Tells of the process that the pid file names."""
    pid = _pid_in(source)
    if pid is None:
        return "no file", "none: the client does not run, or does not write ui.pid"
    if not source.is_live:
        return (
            "not known",
            "the archive has one; only the person's machine can tell whether that process runs",
        )
    if pid == 0:
        return "no process", "names no process: the launcher will stop nothing"
    if not is_running(pid):
        return "gone", f"names process {pid}, which has ended: the client does not run"
    if _runs_from(source, _executable(pid)):
        return "client", f"process {pid} is the client, and runs"
    started = _start_time(pid)
    entry = source.entry(PID_FILE)
    if started is not None and entry and started > entry.mtime + FILE_TIME_TOLERANCE:
        return (
            "other",
            f"process {pid} is another program by now: the launcher leaves it alone",
        )
    return (
        "maybe",
        f"process {pid} runs from elsewhere, but is old enough: the launcher takes it for the client",
    )


def _executable(pid):
    with contextlib.suppress(OSError):
        return os.readlink(f"/proc/{pid}/exe")
    return _ask_ps(pid, "comm")


def _runs_from(source, executable):
    folder = os.path.realpath(source.real(CORVIMO))
    return bool(executable) and os.path.realpath(executable).startswith(folder + "/")


def _start_time(pid):
    """Returns when a process was started, in seconds since the epoch, or None."""
    with contextlib.suppress(ValueError, OverflowError):
        return time.mktime(time.strptime(_ask_ps(pid, "lstart"), "%a %b %d %H:%M:%S %Y"))
    return None


def _ask_ps(pid, what):
    command = ["ps", "-o", what + "=", "-p", str(pid)]
    try:
        environment = {**os.environ, "LC_ALL": "C"}
        return subprocess.run(
            command, env=environment, capture_output=True, text=True, timeout=10
        ).stdout.strip()
    except (OSError, subprocess.SubprocessError):
        return ""


def _measure_space(state, source):
    try:
        volume = os.statvfs(source.real(CORVIMO if source.entry(CORVIMO) else ""))
        installed = source.usage(APP)
        freed = sum(source.usage(path).size for path in _removed_first(state))
    except (OSError, AttributeError):
        return
    state.free = volume.f_bavail * volume.f_frsize + freed
    if state.launcher and state.launcher.package.state == "whole":
        state.needed, state.is_estimate = state.launcher.package.unpacked, False
    elif installed and state.client.state == clients.WHOLE:
        state.needed = installed.size


def _removed_first(state):
    """Returns the copies that the launcher removes before it unpacks."""
    backup = state.whole_backup
    copies = [(f"{CORVIMO}/{name}", found) for name, found in state.backups]
    if state.client.state == clients.WHOLE:
        return [path for path, _ in copies]
    if state.client.state == clients.TORSO and backup:
        return [APP] + [path for path, found in copies if found is not backup[1]]
    return [path for path, found in copies if found.state == clients.TORSO]


def _may_write(entry, person):
    """Tells whether a person may add and remove entries of a folder."""
    if person == 0:
        return True
    bits = (entry.mode >> 6 if entry.uid == person else entry.mode) & 7
    return bits & 3 == 3


def _owner(uid):
    return "root" if uid == 0 else f"another user (number {uid})"


_LOCKED = sum(
    getattr(stat, name) for name in ("UF_IMMUTABLE", "UF_APPEND", "SF_IMMUTABLE", "SF_APPEND")
)


class Obstacle(typing.NamedTuple):
    """What stops an upgrade, or only the lock or the log."""

    text: str
    is_owner: bool  # Giving ~/.Corvimo back to the person helps.
    stops_upgrade: bool = True


def obstacles(source):
    """Yields an Obstacle for each owner, mode or kind of object that is in the way."""
    person = _person(source)
    for path, result, is_folder in (
        (CORVIMO, "nothing can be installed", True),
        (CORVIMO + "/log", "no log can be written", True),
        (sources.LOG, "no log can be written", False),
        (LOCK, "two launchers could install at once", False),
    ):
        try:
            entry = source.entry(path)
            if entry and entry.is_link and path != LOCK:
                entry = source.followed(path)
            fault = entry and _fault(entry, person, is_folder, path == LOCK)
        except OSError as error:
            fault = f"cannot be looked at ({error.strerror})", False
        if fault:
            yield Obstacle(f"~/{path} {fault[0]}: {result}", fault[1], path == CORVIMO)
    yield from _foreign_objects(source, person)
    if source.is_live:
        yield from _home_obstacles(source, person)


def _fault(entry, person, is_folder, is_lock):
    """Returns what is wrong with an object and whether an owner is, or None."""
    if entry.is_folder != is_folder or not (entry.is_folder or entry.is_file):
        return "is no folder" if is_folder else "is not a file", False
    if entry.flags & _LOCKED:
        return "is locked (chflags)", False
    if entry.uid == -1:
        return None
    is_foreign = entry.uid != person
    is_useless = not is_folder and is_foreign and (is_lock or person != 0)
    is_closed = not _may_write(entry, person) if is_folder else not entry.mode & stat.S_IWUSR
    if is_useless or (is_closed and person != 0):
        return f"belongs to {_owner(entry.uid)}" if is_foreign else "may not be written", True
    return None


def _person(source):
    if source.is_live:
        return os.stat(source.home).st_uid
    # An archive does not tell whose home folder it is: whoever owns anything but root.
    entries = [entry for _, entry in sources.walk(source, CORVIMO) if entry.uid > 0]
    return entries[0].uid if entries else max(source.entry(CORVIMO).uid, 0)


def _foreign_objects(source, person):
    for folder in (APP, *BACKUPS):
        count = sum(
            bool(entry) and entry.uid not in (person, -1)
            for _, entry in sources.walk(source, folder)
        )
        top = source.entry(folder)
        count += bool(top) and top.uid not in (person, -1)
        if count:
            noun = "an object that belongs" if count == 1 else f"{count} objects that belong"
            text = f"~/{folder} holds {noun} to somebody else: the launcher cannot remove it all"
            yield Obstacle(text, True)


def _home_obstacles(source, person):
    home = os.stat(source.home)
    if source.entry(CORVIMO) is None and not _may_write(
        sources.Entry(home.st_mode, 0, home.st_uid), person
    ):
        yield Obstacle("~ may not be written: ~/.Corvimo cannot be made", False)
    with contextlib.suppress(OSError):
        if os.statvfs(source.real(CORVIMO)).f_flag & os.ST_RDONLY:
            yield Obstacle("the volume of ~/.Corvimo is read-only: nothing can be installed", False)
