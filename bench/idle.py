#!/usr/bin/python3
"""Counts how often the programs wake the processor while nobody uses them: the panel with no status screen in sight,
the panel with one in sight, and the companion. Needs a display, a session bus and an empty configuration folder.

Usage: idle.py PROGRAMS [SECONDS]
"""

import contextlib
import glob
import os
import subprocess
import sys
import time

# Until a program that was started, or a tab that was shown, has nothing left to do.
_SETTLING = 4


def switches(process):
    """By thread: each time that one gave the processor away it had been woken before."""
    counts = {}
    for path in glob.glob(f"/proc/{process}/task/*/status"):
        # It may end at any moment.
        with contextlib.suppress(OSError), open(path, encoding="ascii", errors="replace") as file:
            counts[path] = sum(int(line.split()[1]) for line in file if line.startswith("voluntary_ctxt_switches"))
    return counts


def wake_ups(before, after):
    """A thread that has ended was woken once at least, to end."""
    return sum(count - before.get(thread, 0) for thread, count in after.items()) + len(before.keys() - after.keys())


def resident_kibibytes(process):
    with open(f"/proc/{process}/status", encoding="ascii", errors="replace") as file:
        return next(int(line.split()[1]) for line in file if line.startswith("VmRSS"))


def watch(title, process, seconds):
    time.sleep(_SETTLING)
    before = switches(process)
    time.sleep(seconds)
    woken = wake_ups(before, switches(process))
    print(f"  {title:40} {woken:5} wake-ups in {seconds} s, {resident_kibibytes(process):6} KiB resident", flush=True)


def main():
    programs, seconds = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 60
    subprocess.run([f"{programs}/orvik-defaults", "write", "app", "firstRun", "-bool", "true"], check=True)
    panel = subprocess.Popen([f"{programs}/orvik-menu"])
    companion = subprocess.Popen([f"{programs}/orvik-menu-extension"])
    subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--class", "orvik-menu"], check=True,
                   stdout=subprocess.DEVNULL)
    time.sleep(1)
    watch("panel, menu items in sight", panel.pid, seconds)
    # The third tab shows the companion's state, and looks for it every 5 seconds.
    subprocess.run(["xdotool", "key", "ctrl+Tab", "ctrl+Tab"], check=True)
    watch("panel, general settings in sight", panel.pid, seconds)
    subprocess.run(["xdotool", "key", "ctrl+Tab"], check=True)
    watch("panel, general settings left again", panel.pid, seconds)
    watch("companion", companion.pid, seconds)
    panel.terminate()
    companion.terminate()
    panel.wait()
    companion.wait()


if __name__ == "__main__":
    os.environ.setdefault("LANG", "C.UTF-8")
    main()
