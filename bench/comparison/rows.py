"""The table of all comparisons, with their targets."""

import dataclasses
from typing import Callable, Optional

from comparison import growth, measures, peers
from comparison.report import Result, Target
from comparison.stage import Skipped

PEERS = "Against programs that do the same work"
GROWTH = "Growth of the time with the number of entries"
MEMORY = "Growth of the memory with the number of entries"
ZIP_DIRECTORY = "exception: libarchive keeps a zip's directory in memory"


def at_most(limit):
    return Target(limit)


def at_least(limit):
    return Target(limit, is_least=True)


@dataclasses.dataclass(frozen=True)
class Row:
    """One comparison: what is measured, against what, how, and what it should come to. Without a target
    it is for information."""

    group: str  # What --only looks for.
    what: str
    peer: str
    unit: str
    target: Optional[Target]
    measure: Callable
    section: str = PEERS
    is_difference: bool = False
    note: str = "for information"

    def result(self, stage):
        """Measures and returns the row's result."""
        sides, skipped = ([], []), ""
        try:
            sides = self.measure(stage)
        except Skipped as reason:
            skipped = str(reason)
        return Result(
            section=self.section,
            what=self.what,
            peer=self.peer,
            unit=self.unit,
            target=self.target,
            is_difference=self.is_difference,
            note=self.note,
            ours=sides[0],
            peers=sides[1],
            skipped=skipped,
        )


def extraction_rows():
    for kind, peer, limit in (
        ("zip", peers.FAIR_EXTRACTION, 1.00),
        ("tar.gz", peers.TWO_PASSES, 0.95),
        ("tar.zst", peers.TWO_PASSES, 0.95),
    ):
        yield Row(
            "extraction",
            f"`Extract`, {kind}",
            peer,
            "s",
            at_most(limit),
            lambda stage, kind=kind: measures.extraction(stage, kind),
        )


def removal_rows(stage):
    sizes, places = stage.sizes, stage.places
    trees = (
        ("foldered", f"{sizes.large:,} files, 100 in a folder", sizes.large, 1.00),
        ("flat", f"{sizes.large:,} files in one folder", sizes.large, 1.00),
        ("nested", f"10 times {sizes.depth:,} nested folders", sizes.depth, 1.20),
    )
    for shape, words, count, limit in trees:
        for place, where in ((places.memory, "in memory"), (places.disk, "on disk")):
            if shape == "nested" and place == places.disk:
                continue  # Few blocks of the disk, and many paths: the disk tells nothing more.
            yield Row(
                "removal",
                f"`FSRemove`, {words}, {where}",
                peers.REMOVAL,
                "s",
                at_most(limit),
                lambda stage, a=(place, shape, count): measures.removal(stage, *a),
            )
    yield Row(
        "removal",
        f"`FSRemove`, peak memory for {sizes.huge:,} files in one folder",
        f"for {sizes.base:,} files",
        "MiB",
        at_most(1.05),
        measures.removal_memory,
    )


def copy_rows(stage):
    for place, where, target in (
        (stage.places.memory, "in memory", at_most(1.05)),
        (stage.places.disk, "on disk", None),
    ):
        yield Row(
            "copy",
            f"`FSCopyPath`, {where}",
            peers.PLAIN_COPY,
            "s",
            target,
            lambda stage, place=place: measures.copy(stage, place),
        )


def move_rows(stage):
    where = "both in memory" if stage.places.second_memory else "from the disk into memory"
    for peer, limit, measure in (
        (peers.PLAIN_MOVE, 1.05, measures.move),
        (peers.MOVE, 1.10, measures.move_against_mv),
    ):
        what = f"`FSRename` across volumes, {where}"
        yield Row("move", what, peer, "s", at_most(limit), measure)


def existence_rows():
    for levels in (2, 4, 8):
        names = f"ExistExactly/{levels}", f"ExistExactlyPeer/{levels}"
        yield Row(
            "existence",
            f"`IsFileExist` exact, {levels} levels",
            peers.REALPATH,
            "ns",
            at_most(1.20),
            lambda stage, names=names: measures.part(stage, "file_bench", *names),
        )


def start_rows():
    yield Row(
        "start",
        "a start with nothing to do",
        peers.QT_PROGRAM,
        "s",
        at_most(1.25),
        measures.start,
    )
    yield Row(
        "start", "its peak memory", peers.QT_PROGRAM, "MiB", at_most(1.12), measures.start_memory
    )


def upgrade_rows():
    yield Row("upgrade", "a whole upgrade", peers.UPGRADE, "s", at_most(0.95), measures.upgrade)
    yield Row(
        "stop",
        "an upgrade until `open` is called, of a running client",
        "the same without a running client",
        "s",
        at_most(0.15),
        measures.stop,
        is_difference=True,
    )


def log_rows():
    for peer, name in (
        (peers.SPDLOG, "WriteRecordPeer"),
        (peers.SPDLOG_ROTATING, "WriteRecordRotatingPeer"),
    ):
        for threads in (1, 4):
            yield Row(
                "log",
                f"written records, threads: {threads}",
                peer,
                "per ms",
                at_least(1.20),
                lambda stage, a=(name, threads): measures.log_rate(stage, *a),
            )
    names = "SuppressRecord", "SuppressRecordPeer"
    yield Row(
        "log",
        "a suppressed record",
        "`std::map` lookup",
        "ns",
        at_most(1.30),
        lambda stage: measures.part(stage, "log_bench", *names),
    )


def normalization_rows():
    for kind, words, limit in (
        ("composed", "composed", 1.05),
        ("decomposed", "decomposed", 1.05),
        ("ascii", "ASCII", 0.33),
    ):
        names = f"Normalize/{kind}", f"NormalizePeer/{kind}"
        yield Row(
            "normalization",
            f"`Normalize`, {words}",
            "ICU directly",
            "ns",
            at_most(limit),
            lambda stage, names=names: measures.part(stage, "string_helper_bench", *names),
        )


def growth_rows(stage):
    places = stage.places
    for place, where, is_judged in (
        (places.memory, "in memory", True),
        (places.disk, "on disk", False),
    ):
        for shape in growth.SHAPES:
            for operation in growth.OPERATIONS:
                small, large = growth.time_counts(stage, place == places.disk, operation)
                yield Row(
                    "growth",
                    f"{operation}, {shape}, {where}: each entry from {small:,} to {large:,}",
                    f"each of {small:,}",
                    "µs",
                    at_most(1.15) if is_judged else None,
                    lambda stage, a=(place, shape, operation): growth.slope(stage, *a),
                    section=GROWTH,
                )


def memory_rows(stage):
    sizes, place = stage.sizes, stage.places.memory
    for shape in growth.SHAPES:
        for operation in growth.OPERATIONS:
            is_zip = operation == "extraction, zip"
            yield Row(
                "growth",
                f"{operation}, {shape}: peak memory for {sizes.large:,} entries",
                f"for {sizes.base:,} entries",
                "MiB",
                None if is_zip else at_most(1.05),
                lambda stage, a=(place, shape, operation): growth.memory(stage, *a),
                section=MEMORY,
                note=ZIP_DIRECTORY if is_zip else "for information",
            )


def table(stage):
    """Returns all rows in the order of the documents."""
    return [
        *extraction_rows(),
        *removal_rows(stage),
        *copy_rows(stage),
        *move_rows(stage),
        *existence_rows(),
        *start_rows(),
        *upgrade_rows(),
        *log_rows(),
        *normalization_rows(),
        *growth_rows(stage),
        *memory_rows(stage),
    ]
