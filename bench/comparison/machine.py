"""The words that describe the machine."""

import os
import pathlib
import platform
import re
import subprocess


def first_line(words):
    """Returns the first line that a program prints; nothing where it is missing."""
    try:
        result = subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    except OSError:
        return ""
    return result.stdout.split("\n", 1)[0].strip()


def processor():
    try:
        text = pathlib.Path("/proc/cpuinfo").read_text()
    except OSError:
        return platform.processor() or platform.machine()
    found = re.search(r"^model name\s*: (.*)$", text, re.MULTILINE)
    return found[1].strip() if found else platform.machine()


def memory():
    return f"{os.sysconf('SC_PHYS_PAGES') * os.sysconf('SC_PAGE_SIZE') / 2**30:.0f} GiB"


def file_system(path):
    """Returns the type of the file system that holds a folder, as `stat` calls it."""
    name = first_line(["stat", "-f", "-c", "%T", str(path)])
    return name or "an unknown file system"


def words(stage):
    """Returns a few sentences: what was measured on."""
    libc = " ".join(platform.libc_ver()).strip()
    measured = first_line([str(stage.program("service_op")), "versions"])
    peers = ", ".join(
        version
        for version in (
            first_line(["rm", "--version"]),
            first_line(["bsdtar", "--version"]),
        )
        if version
    )
    places = stage.places
    in_memory = file_system(places.memory)
    on_disk = file_system(places.disk)
    return (
        f"Processor: {processor()}, {os.cpu_count()} cores; {memory()} of memory. "
        f"System: {platform.system()} {platform.release()}, {libc}. Libraries: {measured}. "
        f"Peers: {peers}. File systems: {in_memory} in memory, {on_disk} on disk."
    )
