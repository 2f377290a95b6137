"""Folders that look different to one program and its children. Nobody else sees that.

As a program it mounts and becomes the command: mounts.py KIND FOLDER OPTIONS COMMAND...
"""

import ctypes
import os
import subprocess
import sys

_CLONE_NEWNS = 0x00020000
_CLONE_NEWUSER = 0x10000000
_MS_PRIVATE_BELOW = 0x4000 | 0x40000

_libc = ctypes.CDLL(None, use_errno=True)


def small_disk(folder, size):
    """What starts a command for which a small disk lies on a folder."""
    return _mounted("tmpfs", folder, f"size={size}")


def laid_over(folder, over):
    """What starts a command for which the files of one folder are in another too, as if installed there."""
    return _mounted("overlay", over, f"lowerdir={folder}:{over}")


def mount_for(process_id, folder):
    """Mounts a small disk on a folder for a program that has been started so, while it runs."""
    whose = ["--user", "--preserve-credentials"] if os.getuid() != 0 else []
    # The program's root is another than its mounts' in a root of its own.
    subprocess.run(["nsenter", "--target", str(process_id), *whose, "--mount", "--root",
                    "mount", "-t", "tmpfs", "none", folder], check=True, timeout=20)


def _mounted(kind, folder, options):
    return [sys.executable, "-B", os.path.abspath(__file__), kind, folder, options]


def _check(result):
    if result != 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()))


def _enter_namespace():
    owner, group = os.getuid(), os.getgid()
    if owner == 0:
        _check(_libc.unshare(_CLONE_NEWNS))
        return
    _check(_libc.unshare(_CLONE_NEWUSER | _CLONE_NEWNS))
    # A program that is nobody's cannot say on the bus who it is.
    for name, text in (("uid_map", f"{owner} {owner} 1"), ("setgroups", "deny"), ("gid_map", f"{group} {group} 1")):
        with open(f"/proc/self/{name}", "w", encoding="ascii") as file:
            file.write(text)


def main():
    kind, folder, options, *command = sys.argv[1:]
    _enter_namespace()
    _check(_libc.mount(b"none", b"/", None, _MS_PRIVATE_BELOW, None))
    _check(_libc.mount(b"none", os.fsencode(folder), kind.encode(), 0, os.fsencode(options)))
    os.execvp(command[0], command)


if __name__ == "__main__":
    main()
