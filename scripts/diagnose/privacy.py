"""Makes a text safe to paste: without the home folder, the person's own files and control characters."""

import os
import re

_STORE = re.compile(r"\.(?:Corvimo|Lumaport)/data(?=/)")
# The system's own reason at a message's end, which may stay behind the name of a file.
_REASONS = sorted({os.strerror(number) for number in range(1, 140)}, key=len, reverse=True)
_REASON = re.compile(
    r"[)'\]]?[:.]? (?:errno : )?(?:%s)(?: \(\d+\))?$" % "|".join(map(re.escape, _REASONS))
)
# Whatever comes before the launcher's folders is a home folder.
_HOMES = (re.compile(r"/.*?(?=/\.(?:Corvimo|Lumaport)\b)"), re.compile(r"(?:/Users|/home)/[^/']+"))


class Privacy:
    """Knows a home folder, under the names by which it is told of."""

    def __init__(self, home=None):
        names = {str(home), os.path.realpath(home)} if home else set()
        self._homes = sorted(names - {"/"}, key=len, reverse=True)

    def shown(self, text):
        """Returns a text with `~` for the home folder and without names of the person's files."""
        text = _without_data(text)
        for home in self._homes:
            text = re.sub(re.escape(home) + r"(?![\w.-])", "~", text)
        return "".join(char if char.isprintable() else "?" for char in text)

    def message(self, text):
        """Returns a message of the log likewise, whatever home folder it names."""
        text = self.shown(text)
        for pattern in _HOMES:
            text = pattern.sub("~", text)
        return text


def _without_data(text):
    found = _STORE.search(text)
    if not found:
        return text
    reason = _REASON.search(text, found.end())
    return text[: found.end()] + "/…" + (reason.group() if reason else "")
