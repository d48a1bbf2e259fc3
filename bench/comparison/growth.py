"""How time and memory grow with the number of entries.

The time of the slope is that of each entry more, between a small and a large number of entries. It is
compared with the time of each entry at the small number, so that the fixed costs of one run make the
growth look larger rather than smaller."""

import functools
import subprocess

from comparison.stage import Side, command, do_nothing, fresh_folder, remove

# Source, copy and archives: inodes, directory entries and a page for each.
BYTES_OF_ENTRY = 12_000
SHAPES = ("foldered", "flat")
OPERATIONS = ("listing", "extraction, tar", "extraction, zip", "copying", "removal")


def time_counts(stage, on_disk, operation):
    """Returns the two numbers of entries of a slope. Copying to a disk flushes each file, so that it is
    measured with fewer of them."""
    divisor = 10 if on_disk and operation == "copying" else 1
    return stage.sizes.small // divisor, stage.sizes.large // divisor


def all_counts(stage, on_disk):
    """Returns all numbers of entries that are needed, in their order."""
    sizes = stage.sizes
    counts = {sizes.small, sizes.large}
    counts.update(time_counts(stage, on_disk, "copying"))
    if not on_disk:
        counts.add(sizes.base)
    return sorted(counts)


def counts_of(stage, on_disk, operation):
    counts = set(time_counts(stage, on_disk, operation))
    if not on_disk:
        counts.add(stage.sizes.base)
    return sorted(counts)


def make_source(stage, place, shape, count):
    """Makes a tree and its two archives."""
    place.mkdir(parents=True)
    stage.make_tree(shape, place / "tree", count)
    for kind in ("zip", "ustar"):
        archive = place / f"tree.{kind}"
        words = ["bsdtar", "--format", kind, "-cf", archive, "-C", place, "tree"]
        subprocess.run(words, check=True)


def operations(stage, place):
    """Returns each operation of a round by its name, in the order of the round. What is removed is what
    was written last: everything that is written is the same tree."""
    target = place / "written"
    service_op, file_op = stage.program("service_op"), stage.program("file_op")

    def writing(wanted):
        return Side(lambda: fresh_folder(target), [wanted])

    def extraction(archive):
        return writing(command(service_op, "extract", archive, target))

    return {
        "listing": Side(do_nothing, [command(file_op, "list", place / "tree")]),
        "extraction, tar": extraction(place / "tree.ustar"),
        "extraction, zip": extraction(place / "tree.zip"),
        "copying": writing(command(service_op, "copy", place / "tree", target / "tree")),
        "removal": Side(do_nothing, [command(file_op, "remove", target)]),
    }


@functools.lru_cache(maxsize=None)
def costs(stage, place, shape):
    """Returns the costs of all rounds: of each operation, of each number of entries."""
    on_disk = place == stage.places.disk
    counts = all_counts(stage, on_disk)
    stage.require_room(place, 3 * sum(counts), BYTES_OF_ENTRY // 3)
    sources = {count: place / f"growth-{count}" for count in counts}
    for count, source in sources.items():
        make_source(stage, source, shape, count)
    taken = {name: {count: [] for count in counts} for name in OPERATIONS}
    sides = {count: operations(stage, source) for count, source in sources.items()}
    rounds = stage.sizes.disk_growth_pairs if on_disk else stage.sizes.growth_pairs
    for index in range(-1, rounds):
        for name in OPERATIONS:
            for count in counts_of(stage, on_disk, name):
                cost = stage.run_side(sides[count][name])
                if index >= 0:
                    taken[name][count].append(cost)
    remove(*sources.values())
    return taken


def slope(stage, place, shape, operation):
    """Compares the microseconds of each further entry with those of each of few."""
    small, large = time_counts(stage, place == stage.places.disk, operation)
    taken = costs(stage, place, shape)[operation]
    few, many = ([cost.inner_seconds() * 1e6 for cost in taken[n]] for n in (small, large))
    further = [(b - a) / (large - small) for a, b in zip(few, many)]
    return further, [a / small for a in few]


def memory(stage, place, shape, operation):
    """Compares the peak memory for many entries with that for few."""
    taken = costs(stage, place, shape)[operation]
    many, few = (
        [cost.peak_kib / 1024 for cost in taken[count]]
        for count in (stage.sizes.large, stage.sizes.base)
    )
    return many, few
