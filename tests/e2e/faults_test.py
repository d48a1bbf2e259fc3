"""Tests that failures in one or several starts of the launcher lose neither data nor a client."""

# faults_test.py KIND      each call of a kind (see world.py) fails; the next start has a fault, too
# faults_test.py rows      sequences of starts that once lost something
# faults_test.py random    random sequences
# faults_test.py SEED      repeats one random sequence
#
# A run tries a sample of the calls, and few sequences. With CORVIMO_WHOLE_MATRIX it tries all calls
# and many sequences.

import collections
import random
import sys
import unittest
from errno import EIO, EMFILE, ENOSPC
from signal import SIGKILL

from scene import IS_WHOLE, TRIES, main
from world import FEATURES, KINDS, MISSING, NO_FAULT, Start, World, random_start

KILLED = Start(fault=("change", 40, -SIGKILL))
# In each row: the features of the World, and the starts. Two starts without a fault follow.
ROWS = {
    "killed, then no package": ("installed", KILLED, Start(MISSING)),
    "killed, then a cut package": ("installed", KILLED, Start(0.5)),
    "killed, then a full disk": ("installed", KILLED, Start(None, ("full", 9, ENOSPC))),
    "killed, then EMFILE": ("installed", KILLED, Start(None, ("open", 12, EMFILE))),
    "killed eleven times": ("installed", *[KILLED] * 11),
    "killed on a tight disk": ("installed tight", Start(None, ("change", 60, -SIGKILL))),
    "cut late, killed in the roll-back": ("installed", Start(1.0, ("unlink", 20, -SIGKILL))),
    "cut late, unlink fails": ("installed", Start(1.0, ("unlink", 20, EIO))),
    "cut late, opendir fails": ("installed", Start(1.0, ("opendir", 6, EIO))),
    "cut late, readdir fails": ("installed", Start(1.0, ("readdir", 60, EIO))),
    "data on both sides": ("older data volume",),
    "read-only folders, ordinary user": ("installed ordinary", *[Start()] * 11),
}

# In each scenario: the features of the World, and the share of the package that a cut leaves.
SCENARIOS = {
    "upgrade": ("installed data", None),
    "upgrade with a bad package": ("installed data", 1.0),
    "migration": ("older", None),
    "migration with a bad package": ("older", 1.0),
    "migration to another volume": ("older volume", None),
    "migration onto data on another volume": ("older data volume", None),
    "large upgrade": ("installed data large", None),
}
LARGE_SAMPLE = 200  # The large upgrade repeats the same calls for each entry.


# Each of these functions yields cases: the group that counts it, a name, the features, the starts.
def rows():
    for name, (features, *starts) in ROWS.items():
        yield "rows", name, features, starts


def random_sequences(seeds):
    for seed in seeds:
        rng = random.Random(seed)
        wanted = {rng.choice(["installed", "older"]), *(x for x in FEATURES if rng.random() < 0.2)}
        if "tight" in wanted:
            wanted.discard("backup")  # A backup fills the tight disk.
        starts = [random_start(rng) for _ in range(rng.randint(3, 8))]
        yield "random sequences", seed, " ".join(sorted(wanted)), starts


def matrix(test, kind):
    call, errors = KINDS[kind]
    seen = 0
    for scenario, (features, kept) in SCENARIOS.items():
        if "large" in features and kind != "kill":
            continue
        world = World(test, features)
        world.check_start(Start(kept, (call, 0, 0)))
        test.doCleanups()
        count = world.calls
        sample = LARGE_SAMPLE if "large" in features else count
        steps = min(count, sample if IS_WHOLE else TRIES)
        seen += count
        for step in range(steps):
            number = 1 + (2 * step + 1) * count // (2 * steps)
            for error in errors if IS_WHOLE else [errors[step % len(errors)]]:
                second = random_start(random.Random(f"{kind} {number} {error}"), is_faulty=True)
                starts = [Start(kept, (call, number, error)), second]
                yield f"{kind}, {scenario}", "", features, starts
    test.assertTrue(seen, "no call of this kind")


class FaultsTest(unittest.TestCase):
    what = ""

    def cases(self):
        if self.what.isdigit():
            return random_sequences([int(self.what)])
        first = random.SystemRandom().randrange(10**9)
        seeds = range(first, first + (3000 if IS_WHOLE else 60 if TRIES > 1 else 4))
        others = {"rows": rows(), "random": random_sequences(seeds)}
        return others.get(self.what) or matrix(self, self.what)

    def test_loses_nothing(self):
        results = collections.defaultdict(list)  # For each try: 1 if good, starts, faults.
        for group, name, features, starts in self.cases():
            results[group].append((0, 0, 0))
            with self.subTest(group, name=name, features=features, starts=starts):
                try:
                    struck = World(self, features).play(*starts)
                finally:
                    self.doCleanups()
                wanted = sum(start.fault != NO_FAULT for start in starts)
                self.assertTrue(group != "rows" or struck == wanted, "a fault has not struck")
                results[group][-1] = 1, len(starts) + 2, struck
        for group, tries in results.items():
            good, starts, faults = map(sum, zip(*tries))
            print(f"figure: {group}: {good} of {len(tries)} ({starts} starts, {faults} faults)")


if __name__ == "__main__":
    # No scenario calls chmod. Random sequences do.
    names = [*(kind for kind in KINDS if kind != "chmod"), "rows", "random"]
    FaultsTest.what = sys.argv.pop() if sys.argv[1:] != ["list"] else ""
    main(names)
