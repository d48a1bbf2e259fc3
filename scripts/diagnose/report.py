"""The report, as one structure for programs and as text for people."""

import client as clients
import errors
import runs
import state as states
from advice import LEVELS, next_step

_TELL = {
    "launcher_debug": "each start, whether there was anything to do, and whether it ended in order",
    "service_debug": "the builds, the stop of the client, the backup and the roll-back",
    "extractor_debug": "which package was unpacked, and when",
}
_GOOD, _BAD, _PLAIN = True, False, None


def amount(size):
    """Returns a number of bytes in words."""
    if size < 1000:
        return _count(size, "byte")
    for unit in ("kB", "MB", "GB"):
        size /= 1000
        if size < 1000 or unit == "GB":
            break
    return f"{size:.0f} {unit}" if size >= 10 else f"{size:.1f} {unit}"


def _count(number, one, many=""):
    return f"{number:,} {one if number == 1 else many or one + 's'}"


def build(source, state, log, privacy):
    """Returns the report. Texts of the system may still name the home folder."""
    key, step = next_step(state, log)
    items = {name: item for name, item in _state_items(source, state) if item}
    return {
        "looked_at": "folder" if source.is_live else "archive",
        "notes": [*source.notes, *log.notes, *_log_notes(source, log)],
        "state": items,
        "starts": {"count": sum(log.verdicts.values()), "verdicts": dict(log.verdicts)},
        "runs": [_run_item(run, privacy) for run in log.runs],
        "levels": _level_lines(state, log),
        "next_step": {"is": key, "text": step},
    }


def _item(word, text, good=_PLAIN, **more):
    return {"is": word, "text": text, "good": good, **more}


def _state_items(source, state):
    yield "client", _client_item(state)
    yield "launcher", _launcher_item(state)
    yield "backups", _backups_item(state)
    yield "data", _data_item(source, state)
    yield "older product", _older_item(source, state)
    yield "lock", _lock_item(source, state)
    yield "process", _item(state.process[0], state.process[1])
    yield "space", _space_item(source, state)
    texts = [obstacle.text for obstacle in state.obstacles]
    free = "nothing stands in the way of an upgrade"
    yield "owners", _item("bad", "; ".join(texts), _BAD) if texts else _item("good", free, _GOOD)
    if state.leftovers:
        copies = _count(state.leftovers, "copy", "copies") + " that the launcher could not remove"
        yield "left over", _item("leftovers", f"{copies}, under random names in ~/.Corvimo", _BAD)


def _client_item(state):
    client = state.client
    if client.state == clients.MISSING:
        return _item(client.state, "not installed", _BAD)
    if client.state == clients.UNKNOWN:
        return _item(client.state, client.reason, _BAD)
    text = (
        f"build {client.build}, whole"
        if client.state == clients.WHOLE
        else f"not whole: {client.reason}"
    )
    more = {} if client.build is None else {"build": client.build}
    comparison = state.comparison
    if comparison:
        more.update(
            missing=len(comparison.missing),
            different=len(comparison.different),
            extra=comparison.extra,
        )
        text += "; " + _comparison_text(comparison)
    good = client.state == clients.WHOLE and (comparison is None or comparison.is_equal)
    return _item(client.state, text, good, **more)


def _comparison_text(comparison):
    extra = f", and {_count(comparison.extra, 'object')} more than it" if comparison.extra else ""
    if comparison.is_equal:
        return f"all {comparison.entries:,} entries are as in the package{extra}"
    faulty = comparison.missing + comparison.different
    names = ", ".join(faulty[: states.SHOWN_NAMES]) + (
        ", …" if len(faulty) > states.SHOWN_NAMES else ""
    )
    counts = f"{len(comparison.missing):,} missing and {len(comparison.different):,} different"
    return f"of the package's {comparison.entries:,} entries {counts} ({names}){extra}"


def _launcher_item(state):
    launcher = state.launcher
    if launcher is None:
        return None
    package = launcher.package
    detail = f" ({package.detail})" if package.detail else ""
    texts = {
        "whole": f"its package is whole, {_count(len(package.entries), 'entry', 'entries')}",
        "damaged": f"its package is damaged{detail}",
        "missing": "its package is missing",
        "other format": f"its package has a format that this tool cannot compare{detail}",
    }
    will = {True: "the next start installs it", False: "the next start has nothing to do", None: ""}
    if package.state in ("damaged", "missing"):
        will[True] = "the next start tries to install it, and fails"
    build = f"build {launcher.build}" if launcher.build is not None else "its INFO names no build"
    parts = [build, texts[package.state], will[state.will_install]]
    good = package.state in ("whole", "other format") and launcher.build is not None
    more = {"build": launcher.build, "will_install": state.will_install}
    return _item(package.state, "; ".join(filter(None, parts)), good, **more)


def _backups_item(state):
    if not state.backups:
        return _item("none", "none", _GOOD)
    texts = []
    for name, client in state.backups:
        is_whole = client.state == clients.WHOLE
        texts.append(
            f"{name}: "
            + (f"build {client.build}, whole" if is_whole else f"not whole: {client.reason}")
        )
    word = "whole" if state.whole_backup else "torsos"
    good = _PLAIN if state.client.state == clients.WHOLE else _BAD
    return _item(word, "; ".join(texts), good, count=len(state.backups))


def _usage(usage):
    text = f"{_count(usage.files, 'file')}, {amount(usage.size)}"
    return text if usage.is_complete else text + ", and folders that may not be read"


def _data_item(source, state):
    if state.data:
        return _item("there", _usage(state.data), files=state.data.files, bytes=state.data.size)
    if not source.is_live:
        return _item("not in the archive", "not in the archive, as it should be")
    return _item("none", "none")


def _older_item(source, state):
    data = state.older_data
    if data and data.files:
        unfinished = (
            "; its move was interrupted, and goes on with the next start"
            if state.move_is_unfinished
            else ""
        )
        text = f"data was left in ~/.Lumaport: {_usage(data)}{unfinished}"
        return _item("data left", text, _BAD, files=data.files, bytes=data.size)
    if state.older:
        return _item("there", "~/.Lumaport is there, without data")
    if not source.is_live:
        return _item("not in the archive", "not in the archive")
    return _item("none", "none", _GOOD)


def _lock_item(source, state):
    texts = {
        states.HELD: "held: a launcher is running",
        states.FREE: "free: no launcher is running",
        states.NO_LOCK: "no lock file: no launcher has run here",
        states.NOT_KNOWN: "not known" if source.is_live else "not known from an archive",
    }
    return _item(state.lock, texts[state.lock])


def _space_item(source, state):
    if state.free is None:
        return _item("not known", "not known" if source.is_live else "not known from an archive")
    text = f"{amount(state.free)} free"
    if state.needed is not None:
        about = "about " if state.is_estimate else ""
        text += f"; an upgrade needs {about}{amount(state.needed)}"
    good = not state.lacks_space if state.needed is not None else _PLAIN
    return _item(
        "short" if good is False else "enough", text, good, free=state.free, needed=state.needed
    )


def _log_notes(source, log):
    if log.files and not log.records and log.bytes:
        yield "The log holds no record of the launcher: it is damaged, or of another program."
    elif log.other_lines:
        yield f"{_count(log.other_lines, 'line')} of the log hold no record, or a part of one."
    if log.ends_inside_record:
        yield "The log ends inside a record: the disk was full, or a launcher was writing."
    if not log.files and not log.notes:
        yield "There is no log: no launcher was started here, or it could not write."


def _run_item(run, privacy):
    source, target = run.builds.get("source"), run.builds.get("target")
    seconds = max(0, int((run.end - run.begin).total_seconds()))
    cause = run.cause
    also = [
        f"{error.meaning}; what helps: {error.helps}"
        for error in run.also
        if cause is None or error != cause.error
    ]
    return {
        "begin": run.begin.isoformat(),
        "end": run.end.isoformat(),
        "pid": int(run.pid),
        "is": run.verdict,
        "text": _verdict_text(run, source, target, seconds),
        "source_build": source,
        "target_build": target,
        "cause": _cause_text(cause, privacy) if cause and run.verdict != "installed" else None,
        "helps": errors.plain(cause.error.helps) if cause and run.verdict != "installed" else None,
        "also": [errors.plain(text) for text in also],
    }


def _verdict_text(run, source, target, seconds):
    took = f"{seconds} s" if seconds else "less than 1 s"
    builds = f"{source} -> {target}" if source and target else f"{target}" if target else ""
    first = ", for the first time" if "no source" in run.events else ""
    if run.verdict == "installed":
        cut = (
            f"; then {runs.VERDICTS['ended half-way']} ({run.stage})"
            if run.is_cut_after_installing
            else ""
        )
        return f"installed {builds or 'the package'}{first} in {took}{cut}"
    text = runs.VERDICTS[run.verdict]
    if run.verdict == "nothing to do":
        return f"{text}: build {source} is installed" if source else text
    if run.verdict == "ended half-way" and run.stage:
        text = text.replace(":", f" {run.stage}:", 1)
    return f"{builds}: {text}" if builds else text


def _cause_text(problem, privacy):
    text = errors.plain(problem.error.meaning)
    message = privacy.message(problem.text[:1000])
    if problem.error is errors.OTHER:
        return f"{text}: {message[:200]}"
    quoted = message.partition("'")[2].rpartition("'")[0]
    return f"{text} ({quoted[:200]})" if quoted and "->" not in quoted else text


def _level_lines(state, log):
    """Returns what a higher level of logging would tell, and how to set it."""
    launcher = state.launcher
    lines = list(launcher.level_notes) if launcher else []
    low = [name for name in LEVELS if log.levels.get(name, 0) < 7]
    if not low:
        return lines
    if not log.records:
        lines.append(
            "The log is silent: a good sign, since it holds errors and warnings at the levels as shipped."
        )
    elif log.records and log.levels.get("launcher_debug", 0) < 5:
        lines.append(
            "Only starts with an error or a warning show here: a good one writes nothing at these levels."
        )
    set_already = [name for name in low if launcher and (launcher.levels or {}).get(name, 4) >= 7]
    wanted = " ".join(f"{name}=7" for name in low if name not in set_already)
    lines += [f"{name}=7 would tell {_TELL[name]}." for name in low]
    if wanted:
        lines.append(
            f"Set {wanted}, a line for each, in the launcher's Contents/Resources/log/launcher.debug."
        )
    return lines


_COLOURS = {_GOOD: "\033[32m", _BAD: "\033[31m", _PLAIN: ""}
_BOLD, _END = "\033[1m", "\033[0m"
_FAILED = ("failed", "ended half-way")


def text_lines(report, has_colour):
    """Yields the report's lines for a person."""

    def paint(text, colour):
        return f"{colour}{text}{_END}" if has_colour and colour else text

    what = "this machine's ~" if report["looked_at"] == "folder" else "an archive"
    yield paint(f"The Corvimo client of {what}", _BOLD)
    yield from (f"  {note}" for note in report["notes"])
    yield ""
    yield paint("State", _BOLD)
    for name, item in report["state"].items():
        yield f"  {name:<15}" + paint(item["text"], _COLOURS[item["good"]])
    yield ""
    hidden = report["starts"]["count"] - len(report["runs"])
    yield paint("Starts, oldest first", _BOLD)
    if hidden:
        yield f"  {hidden:,} earlier ones; of all: " + _verdict_counts(report)
    for run in report["runs"]:
        is_bad = run["is"].startswith(_FAILED)
        yield f"  {run['begin'].replace('T', ' ')}  " + paint(
            run["text"], _COLOURS[not is_bad] if is_bad else ""
        )
        if run["cause"]:
            yield f"    cause: {run['cause']}"
            yield f"    helps: {run['helps']}"
        yield from (f"    also: {line}" for line in run["also"])
    if not report["starts"]["count"]:
        yield "  none in the log"
    yield from (f"  {line}" for line in report["levels"])
    yield ""
    yield paint("Next step", _BOLD)
    yield f"  {report['next_step']['text']}"


def _verdict_counts(report):
    return ", ".join(
        f"{count:,} {verdict}" for verdict, count in report["starts"]["verdicts"].items()
    )
