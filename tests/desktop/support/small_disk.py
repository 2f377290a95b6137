"""Starts a program for which a small disk lies on a folder. Nobody else sees that disk.

Usage: small_disk.py FOLDER SIZE COMMAND...
"""

import ctypes
import os
import sys

_CLONE_NEWNS = 0x00020000
_CLONE_NEWUSER = 0x10000000
_MS_PRIVATE_BELOW = 0x4000 | 0x40000

_libc = ctypes.CDLL(None, use_errno=True)


def _check(result):
    if result != 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()))


def _enter_namespace():
    owner = os.getuid()
    if owner == 0:
        _check(_libc.unshare(_CLONE_NEWNS))
        return
    _check(_libc.unshare(_CLONE_NEWUSER | _CLONE_NEWNS))
    with open("/proc/self/uid_map", "w", encoding="ascii") as file:
        file.write(f"{owner} {owner} 1")


def main():
    folder, size, *command = sys.argv[1:]
    _enter_namespace()
    _check(_libc.mount(b"none", b"/", None, _MS_PRIVATE_BELOW, None))
    _check(_libc.mount(b"tmpfs", os.fsencode(folder), b"tmpfs", 0, b"size=" + size.encode()))
    os.execv(command[0], command)


if __name__ == "__main__":
    main()
