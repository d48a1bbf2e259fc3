"""Verdicts, tables, and the documents that hold them."""

import dataclasses
import datetime
import re
import statistics
from typing import Optional

BEGIN = "<!-- measured: begin. bench/compare.sh --write makes what follows; do not change it by hand -->"
END = "<!-- measured: end -->"
HEADER = """\
| What | Peer | Medians | Pairs | Ratio | Middle half | Target | Holds |
|---|---|---|---|---|---|---|---|"""
SHORT_HEADER = """\
| What | Peer | Ratio | Target | Holds |
|---|---|---|---|---|"""


@dataclasses.dataclass(frozen=True)
class Target:
    """What the ratio of a row should come to."""

    limit: float
    is_least: bool = False

    def words(self, unit):
        return f"at {'least' if self.is_least else 'most'} {self.limit:.2f}{unit}"

    def holds(self, ratio):
        return ratio >= self.limit if self.is_least else ratio <= self.limit


@dataclasses.dataclass(frozen=True)
class Result:
    """What was measured of the two sides of a row, run by run; or why it was not."""

    section: str
    what: str
    peer: str
    unit: str
    target: Optional[Target]
    is_difference: bool
    note: str
    ours: list
    peers: list
    skipped: str = ""

    def quartiles(self):
        """Returns the quartiles of the ratios of the paired runs, or of their differences."""
        pairs = zip(self.ours, self.peers)
        values = [a - b if self.is_difference else a / b for a, b in pairs]
        return statistics.quantiles(values, n=4, method="inclusive")

    def verdict(self):
        """Returns "yes", "no" or "unclear"; or why there is no verdict."""
        if self.skipped:
            return f"not measured: {self.skipped}"
        if self.target is None:
            return self.note
        low, ratio, high = self.quartiles()
        # Where every run gave the limit itself, nothing is unclear.
        if low <= self.target.limit <= high and low != high:
            return "unclear"
        return "yes" if self.target.holds(ratio) else "no"

    def is_counted(self):
        """Returns whether the row has a target, reached or not."""
        return self.target is not None

    def figure(self, value):
        return f"{value:+.2f} s" if self.is_difference else f"{value:.2f}"

    def target_words(self):
        if self.target is None:
            return "none"
        return self.target.words(" s" if self.is_difference else "")

    def cells(self):
        """Returns the figures: medians, number of pairs, ratio and middle half."""
        if self.skipped:
            return ["", "", "", ""]
        low, ratio, high = self.quartiles()
        ours, peers = statistics.median(self.ours), statistics.median(self.peers)
        return [
            f"{ours:.3g} / {peers:.3g} {self.unit}",
            str(len(self.ours)),
            self.figure(ratio),
            f"{self.figure(low)} to {self.figure(high)}",
        ]

    def row(self):
        return line([self.what, self.peer, *self.cells(), self.target_words(), mark(self)])

    def short_row(self):
        ratio = self.cells()[2]
        return line([self.what, self.peer, ratio, self.target_words(), mark(self)])


def mark(result):
    """Returns the verdict, in bold letters where it is not what it should be."""
    verdict = result.verdict()
    return f"**{verdict}**" if verdict in ("no", "unclear") else verdict


def line(cells):
    return "| " + " | ".join(cells) + " |"


def counted_words(number, one, many):
    return f"{number} {one if number == 1 else many}"


def summary(results):
    """Returns how many targets hold, in a sentence."""
    counted = [result for result in results if result.is_counted()]
    verdicts = [result.verdict() for result in counted]
    unmeasured = sum(bool(result.skipped) for result in counted)
    parts = [f"Of {len(counted)} targets {counted_words(verdicts.count('yes'), 'holds', 'hold')}"]
    for number, one, many in (
        (verdicts.count("no"), "is missed", "are missed"),
        (verdicts.count("unclear"), "is unclear", "are unclear"),
        (unmeasured, "was not measured", "were not measured"),
    ):
        if number > 0:
            parts.append(counted_words(number, one, many))
    return (", ".join(parts[:-1]) + " and " + parts[-1] if len(parts) > 1 else parts[0]) + "."


def all_hold(results):
    return all(not result.is_counted() or result.verdict() == "yes" for result in results)


def when_and_where(machine):
    return f"Measured on {datetime.date.today().isoformat()}. {machine}"


def whole(results, machine):
    """Returns everything that was measured, with a table for each section."""
    parts = [when_and_where(machine), summary(results)]
    for section in dict.fromkeys(result.section for result in results):
        rows = [result.row() for result in results if result.section == section]
        parts.append("\n".join([f"### {section}", "", HEADER, *rows]))
    return "\n\n".join(parts)


def extract(results, machine):
    """Returns the rows of the first section that have a target, with fewer columns."""
    first = results[0].section
    rows = [r.short_row() for r in results if r.section == first and r.is_counted()]
    others = [result for result in results if result.section != first]
    tail = f"How time and memory grow with the number of entries: {lower_first(summary(others))}"
    return "\n\n".join([when_and_where(machine), "\n".join([SHORT_HEADER, *rows]), tail])


def lower_first(text):
    return text[0].lower() + text[1:]


def replace_measured(path, text):
    """Replaces what stands between the two marks of a document. Raises ValueError where it has not
    exactly one of each."""
    document = path.read_text(encoding="utf-8")
    pattern = re.compile(f"({re.escape(BEGIN)}\n).*?({re.escape(END)}\n)", re.DOTALL)
    if len(pattern.findall(document)) != 1:
        raise ValueError(
            f"{path} needs exactly one place to write to, between '{BEGIN}' and '{END}'"
        )
    changed = pattern.sub(lambda found: f"{found[1]}\n{text}\n\n{found[2]}", document)
    path.write_text(changed, encoding="utf-8")
