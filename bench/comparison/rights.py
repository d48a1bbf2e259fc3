"""The ordinary user that everything is run as, where we are started as root."""

import os
import pickle
import pwd
import sys

from comparison.stage import RunFailed


def ordinary_user():
    """Returns the user and the group to run as: those who called sudo, or else nobody's."""
    if "SUDO_UID" in os.environ and os.environ["SUDO_UID"] != "0":
        return int(os.environ["SUDO_UID"]), int(os.environ["SUDO_GID"])
    nobody = pwd.getpwnam("nobody")
    return nobody.pw_uid, nobody.pw_gid


def give_to_user(*folders):
    if os.geteuid() == 0:
        for folder in folders:
            os.chown(folder, *ordinary_user())


def drop_rights():
    user, group = ordinary_user()
    os.setgroups([])
    os.setgid(group)
    os.setuid(user)


def as_ordinary_user(work, failures):
    """Returns what `work` returns. As root, it is done in another process that has given up its rights.
    One of the `failures` there is reported, and becomes RunFailed here."""
    if os.geteuid() != 0:
        return work()
    read_end, write_end = os.pipe()
    sys.stdout.flush()
    child = os.fork()
    if child == 0:
        os.close(read_end)
        work_and_exit(work, failures, write_end)
    os.close(write_end)
    with os.fdopen(read_end, "rb") as stream:
        answer = stream.read()
    _, status = os.waitpid(child, 0)
    if status != 0:
        raise RunFailed("the measuring process has failed")
    return pickle.loads(answer)


def work_and_exit(work, failures, write_end):
    """Does the work in the child process, sends what it returned, and ends the process."""
    status = 1
    try:
        drop_rights()
        with os.fdopen(write_end, "wb") as stream:
            pickle.dump(work(), stream)
        status = 0
    except failures as error:
        print(f"compare.sh: {error}", file=sys.stderr)
    finally:
        sys.stdout.flush()
        sys.stderr.flush()
        os._exit(status)
