#!/usr/bin/python3 -B
"""A stand-in for the program of any action, and a companion that has no other actions' programs.

Each call becomes a file in the folder IDENTIFIER.calls beside the program: its arguments, an empty one, and the paths,
each ended by a zero byte.
"""

import os
import shutil
import sys
from collections import namedtuple

# `target` is nothing where none was named.
ActionCall = namedtuple("ActionCall", "target paths")


def install_actions(programs, folder, *identifiers):
    """Lays a companion and these actions in a folder as they are installed. Answers the folder of the companion."""
    for below in "bin", "libexec/orvik-menu":
        os.makedirs(os.path.join(folder, below))
    companion = shutil.copy(os.path.join(programs, "orvik-menu-extension"), os.path.join(folder, "bin"))
    for identifier in identifiers:
        program = _program(folder, identifier)
        os.mkdir(program + ".calls")
        os.chmod(shutil.copy(__file__, program), 0o755)
    return os.path.dirname(companion)


def calls_of(folder, identifier):
    """The calls of an action so far."""
    calls = _program(folder, identifier) + ".calls"
    found = []
    for entry in sorted(os.listdir(calls), key=lambda each: os.stat(os.path.join(calls, each)).st_mtime_ns):
        if entry.endswith(".unfinished"):
            continue
        with open(os.path.join(calls, entry), "rb") as file:
            parts = file.read().split(b"\0")[:-1]
        end = parts.index(b"")
        arguments = parts[:end]
        target = arguments[arguments.index(b"--target") + 1] if b"--target" in arguments else None
        found.append(ActionCall(target, parts[end + 1:]))
    return found


def _program(folder, identifier):
    return os.path.join(folder, "libexec", "orvik-menu", identifier)


def main():
    path = os.path.join(os.path.abspath(sys.argv[0]) + ".calls", str(os.getpid()))
    with open(path + ".unfinished", "wb") as file:
        for argument in [*map(os.fsencode, sys.argv[1:]), b""]:
            file.write(argument + b"\0")
        file.write(sys.stdin.buffer.read())
    os.rename(path + ".unfinished", path)
    # It is done.
    sys.stdout.write("0")


if __name__ == "__main__":
    main()
