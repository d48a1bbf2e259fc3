"""make-package.sh CLIENT.app OUT             write OUT/package/lumaport.cpk and OUT/INFO
make-package.sh --list PACKAGE             list a package's entries
make-package.sh --verify PACKAGE CLIENT.app  compare a package with the client it was made from

A package is a zip archive of everything below CLIENT.app. Its bytes depend on names, contents,
links and executable bits alone: entries are sorted, bear one fixed time, and have mode 755 when
they are folders or executable by anybody and 644 otherwise. A package that verifies holds what
packing the client would write; only the compression may be of another version of zlib.

What the Finder of macOS and archivers leave behind (._*, .DS_Store and __MACOSX) is left out, and
counted in the last line. Refused are names that a Mac would change or merge.

The last entry is Contents/Resources/INFO. A launcher that is interrupted while it unpacks therefore
leaves a copy without a build number, which the next start replaces.

Exits 0 on success, 1 when a client is refused or a package is wrong, 2 on wrong usage.
"""

import interruption

if __name__ == "__main__":
    interruption.handle_signals()  # Before the other modules load, which takes a while.

import argparse
import contextlib
import os
import pathlib
import re
import signal
import stat
import sys

import package_zip
from client_entries import Refused, failure, links_that_lead_out, printable, read_client

# Others make a build tool pack at each build, since CMake or Ninja reads them otherwise.
NAME_FOR_MAKE = re.compile(r"[\w ./+,=@()~-]*")


def tell(text):
    """Prints a message as one line, even if nobody reads it any more."""
    with contextlib.suppress(OSError):
        print(f"make-package.sh: {printable(text)}", file=sys.stderr, flush=True)


@contextlib.contextmanager
def replacing(path):
    """Gives a stream whose content takes the place of `path` at once when the block ends, and
    vanishes when the block fails or a signal ends the process."""
    temporary = path.with_name(f".{path.name}.{os.getpid()}")
    interruption.temporary_files.add(temporary)
    try:
        if os.path.isdir(path):
            raise Refused(f"'{path}' is a folder; remove it, or name another place")
        path.parent.mkdir(parents=True, exist_ok=True)
        temporary.unlink(missing_ok=True)
        with open(temporary, "x+b") as stream:
            yield stream
        temporary.chmod(0o644)
        temporary.replace(path)
    except OSError as error:
        advice = "name a place in a folder that has free space and that you may write to"
        raise failure("write", path, error, advice) from None
    finally:
        with contextlib.suppress(OSError):
            temporary.unlink()
        interruption.temporary_files.discard(temporary)


def show_progress(done, total):
    if sys.stderr.isatty():
        end = "\n" if done == total else ""
        with contextlib.suppress(OSError):
            print(f"\rpacking {done} of {total}", end=end, file=sys.stderr, flush=True)


def check_outputs(folder, outputs):
    """Refuses to write into the client, which would hold its own package the next time."""
    for path in outputs:
        top = os.path.realpath(folder)
        if os.path.commonpath([top, os.path.realpath(path.parent)]) == top:
            raise Refused(f"'{path}' lies inside the client; name another folder to write to")


def make(folder, out, dependency_file):
    package, info = out / "package" / "lumaport.cpk", out / "INFO"
    check_outputs(folder, [package, info] + [dependency_file] * bool(dependency_file))
    client = read_client(folder)
    for name, target in links_that_lead_out(folder, client.entries):
        tell(f"warning: the link '{name}' leads out of the client, to '{target}'")
    # INFO takes its place after the package: the other way round, an interruption would announce a
    # build that the package does not hold, and every start of the launcher would install again.
    with replacing(info) as info_stream:
        info_stream.write(client.info)
        with replacing(package) as stream:
            package_zip.write_package(stream, client.entries, show_progress)
            size = stream.seek(0, os.SEEK_END)
    if dependency_file:
        write_dependencies(dependency_file, package, folder, client.entries)
    counts = f"{len(client.entries)} entries, {size} bytes{client.summary()}"
    print(f"{printable(package)}: build {client.build}, {counts}")


def write_dependencies(path, package, folder, entries):
    """Writes a make rule: the package depends on the client's folders, whose times tell of objects
    that came, went or changed their kind, and on its files."""
    inputs = [str(folder)] + [entry.path for entry in entries if not stat.S_ISLNK(entry.mode)]
    names = [str(package)] + names_for_make(inputs, path.with_name(f"{path.name}.inputs"))
    target, *sources = (name.replace(" ", "\\ ") for name in names)
    with replacing(path) as stream:
        stream.write(os.fsencode(f"{target}: \\\n  " + " \\\n  ".join(sources) + "\n"))


def names_for_make(paths, folder):
    """Returns paths for a make rule. One that a build tool would misread gets a symbolic link in
    the folder, and its name is the link's."""
    try:
        folder.mkdir(parents=True, exist_ok=True)
        for link in folder.iterdir():
            if link.is_symlink():
                link.unlink()
        names = []
        for path in paths:
            if not NAME_FOR_MAKE.fullmatch(path):
                link = folder / str(len(names))
                link.symlink_to(os.path.abspath(path))
                path = str(link)
            names.append(path)
        return names
    except OSError as error:
        raise failure("write to", folder, error, "remove it, and run again") from None


def list_package(package):
    with package_zip.opened(package) as (_, archive):
        lines = [package_zip.listed(archive, record) for record in archive.infolist()]
        fault = package_zip.last_entry_fault(archive.namelist())
    print(*map(printable, lines), f"{len(lines)} entries; {fault or 'INFO is the last'}", sep="\n")
    return 1 if fault else 0


def verify(package, folder):
    client = read_client(folder)
    with package_zip.opened(package) as (stream, archive):
        faults = list(package_zip.package_faults(stream, archive, client.entries))
    for fault in faults:
        print(printable(f"{package}: {fault}"), file=sys.stderr)
    counts = f"{len(client.entries)} entries expected, {len(faults)} faults{client.summary()}"
    print(f"{printable(package)}: {counts}{'; write it anew' if faults else ''}")
    return 1 if faults else 0


def path_argument(text):
    if not text:
        raise argparse.ArgumentTypeError("a path is empty")
    return pathlib.Path(text)


def parse_arguments():
    parser = argparse.ArgumentParser(
        prog="make-package.sh",
        usage="make-package.sh CLIENT.app OUT | --list PACKAGE | --verify PACKAGE CLIENT.app",
        description=__doc__,
        formatter_class=argparse.RawDescriptionHelpFormatter,
    )
    parser.add_argument("make", nargs="*", type=path_argument, metavar="CLIENT.app OUT")
    parser.add_argument("--list", type=path_argument, metavar="PACKAGE")
    parser.add_argument("--verify", nargs=2, type=path_argument, metavar=("PACKAGE", "CLIENT.app"))
    parser.add_argument(
        "--depfile",
        type=path_argument,
        metavar="FILE",
        help="also write what the package depends on, as a make rule",
    )
    arguments = parser.parse_args()
    modes = [arguments.make, arguments.list, arguments.verify]
    if sum(bool(mode) for mode in modes) != 1 or len(arguments.make) not in (0, 2):
        parser.error("expected one of the three forms above")
    return arguments


def run():
    """Returns the exit status."""
    arguments = parse_arguments()
    if arguments.list:
        return list_package(arguments.list)
    if arguments.verify:
        return verify(*arguments.verify)
    make(*arguments.make, arguments.depfile)
    return 0


def main():
    for name in ("stdin", "stdout", "stderr"):
        if getattr(sys, name) is None:  # It is closed, and no file of ours may take its number.
            setattr(sys, name, open(os.devnull, "w"))
    try:
        try:
            status = run()
        except SystemExit as asked:
            status = asked.code
        sys.stdout.flush()
        return status
    except Refused as error:
        for line in error.args:
            tell(line)
        return 1
    except OSError as error:
        if isinstance(error, BrokenPipeError):
            return 128 + signal.SIGPIPE
        tell(f"cannot write to standard output: {error.strerror}; look at where it leads")
        return 1


if __name__ == "__main__":
    sys.exit(main())
