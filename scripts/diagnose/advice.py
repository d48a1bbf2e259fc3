"""The one next step for a person, out of the state and the last start."""

import client as clients
import errors
import state as states

RESTORE = "rm -rf ~/.Corvimo/Corvimo.app && mv ~/.Corvimo/{} ~/.Corvimo/Corvimo.app"
LEVELS = ("launcher_debug", "service_debug", "extractor_debug")


def next_step(state, log):
    """Returns (key, text) of the next step."""
    last = log.runs[-1] if log.runs else None
    for rule in (_of_running, _of_obstacles, _of_broken_client, _of_last_failure, _of_what_is_left):
        step = rule(state, last)
        if step:
            return step
    if last is None or last.verdict in ("not told", "complained"):
        return (
            "nothing",
            "Nothing: the client is whole. If there is trouble, set the levels above and start once more.",
        )
    return "nothing", "Nothing: the client is whole, and the last start ended well."


def _of_running(state, last):
    if state.lock == states.HELD:
        return "wait", "A launcher is running: wait until it has ended, and run this tool again."
    return None


def _of_obstacles(state, last):
    step = _of_obstacle(state, True)
    if step:
        return step
    if state.launcher and state.launcher.package.state in ("damaged", "missing"):
        return (
            "package",
            f"The package in the launcher is {state.launcher.package.state}: {errors.AGAIN}.",
        )
    if state.lacks_space and state.will_install is not False:
        return "space", _sentence(errors.SPACE)
    return None


def _of_obstacle(state, stops_upgrade):
    for obstacle in state.obstacles:
        if obstacle.stops_upgrade == stops_upgrade:
            text = f"Put this right, then start the launcher again: {obstacle.text}."
            return ("owner", _sentence(errors.OWNER)) if obstacle.is_owner else ("obstacle", text)
    return None


def _of_broken_client(state, last):
    if state.client.state == clients.WHOLE:
        return None
    if state.client.state == clients.UNKNOWN:
        return "look", f"Find out why the client cannot be looked at: {state.client.reason}."
    backup = state.whole_backup
    if backup and last and last.verdict == "failed, not put back":
        advice = errors.plain(errors.BY_KEY["not-put-back"].helps)
        return "restore", f"{advice}: {RESTORE.format(backup[0])}"
    if backup:
        return (
            "start",
            f"Start the launcher: it puts build {backup[1].build} back, and then installs its own.",
        )
    cause = last and last.cause
    if cause and cause.error.role != errors.NOTE and cause.error is not errors.NOT_LOGGED:
        return "cause", _sentence(cause.error.helps)
    if state.will_install is False:
        return (
            "remove",
            "Move ~/.Corvimo/Corvimo.app away and start the launcher, which takes it for current.",
        )
    return "start", "Start the launcher: it installs the client."


def _of_last_failure(state, last):
    if state.comparison and not state.comparison.is_equal:
        return (
            "remove",
            "Quit the client, move ~/.Corvimo/Corvimo.app away and start the launcher.",
        )
    if last is None:
        return None
    if last.verdict.startswith("failed"):
        return "cause", _sentence(last.cause.error.helps)
    if last.verdict == "ended half-way" and last.cause:
        return "cause", _sentence(last.cause.error.helps)
    if last.verdict == "ended half-way":
        return "start", "Start the launcher again: it does what the last start has not finished."
    return None


def _of_what_is_left(state, last):
    step = _of_obstacle(state, False)
    if step:
        return step
    if state.older_data and state.older_data.files and state.client.state == clients.WHOLE:
        return "merge", _sentence(errors.BY_KEY["data-left"].helps)
    for error in last.also if last else ():
        if error.helps != "nothing":
            return "cause", _sentence(error.helps)
    if state.will_install:
        return "start", "Start the launcher: it carries a newer build."
    return None


def _sentence(text):
    text = errors.plain(text)
    return text[0].upper() + text[1:] + "."
