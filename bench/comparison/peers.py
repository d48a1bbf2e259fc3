"""The commands that the product is compared with, each with its words for the table.

A peer gets the flags that make it do what the product does. The extractor restores neither owners nor
times nor extended attributes, and it lets the umask decide on the modes."""

from comparison.stage import command

FAIR_FLAGS = (
    *("-x", "-P", "-m", "--no-same-owner", "--no-same-permissions"),
    *("--no-acls", "--no-xattrs", "--no-fflags"),
)

FAIR_EXTRACTION = f"`bsdtar {' '.join(FAIR_FLAGS)} -f`"
TWO_PASSES = f"two passes: `bsdtar -t -f`, {FAIR_EXTRACTION}"
REMOVAL = "`rm -rf`"
PLAIN_COPY = "`plain_tree copy`: open, read and write by 8 KiB, `fsync`, close"
PLAIN_MOVE = "`plain_tree move`: the same, and `unlink`"
MOVE = "`mv`"
QT_PROGRAM = "`qt_peer`: a Qt program with a progress dialog"
UPGRADE = f"{REMOVAL}, {FAIR_EXTRACTION}, `qt_peer`"
REALPATH = "`realpath()`"
SPDLOG = "spdlog, `basic_logger_mt`, `flush_on(trace)`"
SPDLOG_ROTATING = "spdlog, `rotating_logger_mt` (5 MiB, 50 files), `flush_on(trace)`"


def fair_extraction(archive, target):
    return command("bsdtar", *FAIR_FLAGS, "-C", target, "-f", archive)


def listing(archive):
    return command("bsdtar", "-t", "-f", archive, is_quiet=True)


def removal(path):
    return command("rm", "-rf", path)


def move(source, destination):
    return command("mv", source, destination)


def plain_copy(stage, source, destination):
    return command(stage.program("plain_tree"), "copy", source, destination)


def plain_move(stage, source, destination):
    return command(stage.program("plain_tree"), "move", source, destination)


def qt_program(stage):
    return command(stage.program("qt_peer"))
