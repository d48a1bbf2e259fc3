"""The folders that everything is measured in.

Root mounts what an ordinary user cannot: a second volume in memory, to move to and from, and on the disk a
file system of its own. Many disks are told of each block that is freed (the option `discard`). The removal
of a file then takes up to a hundred times as long, and differs from minute to minute."""

import contextlib
import pathlib
import subprocess
import sys
import tempfile

from comparison import rights
from comparison.stage import Places

DISK_BYTES = 8 << 30


def mount(*words):
    """Returns whether the mount has been made."""
    return subprocess.run(["mount", *words], stderr=subprocess.DEVNULL).returncode == 0


def make_file_system(image):
    """Returns whether a file now holds an empty file system. It takes the room that is used in it."""
    try:
        with open(image, "wb") as file:
            file.truncate(DISK_BYTES)
        words = ["mkfs.ext4", "-q", "-F", image]
        return subprocess.run(words, stderr=subprocess.DEVNULL).returncode == 0
    except FileNotFoundError:
        return False


@contextlib.contextmanager
def mounted(folder, is_mounted, without):
    """Gives a folder where something was mounted, and ends the mount; else gives nothing and says what
    follows."""
    if not is_mounted:
        print(without, file=sys.stderr)
        yield None
        return
    try:
        rights.give_to_user(folder)
        yield folder
    finally:
        subprocess.run(["umount", folder], check=True)


@contextlib.contextmanager
def working_places(memory_folder, disk_folder, may_mount):
    """Makes the folders to work in, which belong to the user that everything is run as. A disk folder that
    was asked for is used as it is."""
    with contextlib.ExitStack() as stack:
        memory, second, disk, own_disk = (
            pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory(dir=place)))
            for place in (memory_folder, memory_folder, disk_folder, disk_folder)
        )
        rights.give_to_user(memory, disk)
        second_memory = stack.enter_context(
            mounted(
                second,
                may_mount and mount("-t", "tmpfs", "corvimo-bench", second),
                "No second volume in memory: moves start on the disk.",
            )
        )
        if disk_folder is None:
            image = disk / "file-system"
            is_mounted = (
                may_mount
                and make_file_system(image)
                and mount("-o", "loop,nodiscard", image, own_disk)
            )
            words = (
                "No file system of our own on the disk: it may be told of each freed block at once."
            )
            disk = stack.enter_context(mounted(own_disk, is_mounted, words)) or disk
        yield Places(memory, disk, second_memory)
