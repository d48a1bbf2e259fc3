"""Makes a client's bundle to measure with. Needs Python 3.9 and its standard library."""

import itertools
import random

FILES = 3000
FOLDERS = 400
BYTES = 85_000_000
INCOMPRESSIBLE_SHARE = 1 / 3  # Of the files: pictures, archives, signed code.
SIZE_SPREAD = 1.2  # Of the logarithms of the sizes: many small files and a few large ones.
MAX_DEPTH = 6
WORDS = 20_000
SEED = 20261122

EXECUTABLE = "Contents/MacOS/corvimo-ui"
INFO = "Contents/Resources/INFO"


def make_client(client, build, files=FILES, folders=FOLDERS, size=BYTES):
    """Writes the bundle: the same names and bytes for the same arguments, but for the build."""
    rng = random.Random(SEED)
    names = list(folder_names(rng, folders))
    for name in names:
        (client / name).mkdir(parents=True)
    text = Text(rng)
    for index, length in enumerate(file_sizes(rng, files - 2, size)):
        incompressible = rng.random() < INCOMPRESSIBLE_SHARE
        content = rng.randbytes(length) if incompressible else text.take(length)
        (client / rng.choice(names) / f"file-{index:04}").write_bytes(content)
    (client / EXECUTABLE).write_text("#!/bin/sh\n")
    (client / EXECUTABLE).chmod(0o755)
    write_info(client, build)


def write_info(client, build):
    (client / INFO).write_text(f"[Version]\nbuild_version={build}\n")


def folder_names(rng, count):
    """Parents come before their children."""
    names = ["Contents", "Contents/MacOS", "Contents/Resources"]
    for index in range(count - len(names)):
        shallow = [name for name in names if name.count("/") < MAX_DEPTH]
        names.append(f"{rng.choice(shallow)}/folder-{index:03}")
    return names


def file_sizes(rng, count, total):
    weights = [rng.lognormvariate(0, SIZE_SPREAD) for _ in range(count)]
    scale = total / sum(weights)
    return [int(weight * scale) for weight in weights]


class Text:
    """An endless text that compresses as prose and code do: words of which few are frequent."""

    def __init__(self, rng):
        self.rng = rng
        letters = "etaoinshrdlucmfwypvbgkjqxz"
        self.words = ["".join(rng.choices(letters, k=rng.randint(2, 11))) for _ in range(WORDS)]
        self.weights = list(itertools.accumulate(1 / rank for rank in range(1, WORDS + 1)))

    def take(self, length):
        count = length // 3 + 1  # Enough: no word with its blank is shorter.
        words = self.rng.choices(self.words, cum_weights=self.weights, k=count)
        return " ".join(words).encode()[:length]
