"""Changes the settings over and over, a thousand times a second where the machine is fast enough.

Usage: restless_settings.py FILE
"""

import itertools
import os
import plistlib
import sys
import time

_INTERVAL = 0.001


def main():
    path, = sys.argv[1:]
    with open(path, "rb") as file:
        settings = plistlib.load(file)
    folders = settings["foldersArray"]
    temporary = path + ".restless"
    for number in itertools.count():
        begun = time.monotonic()
        # What is in the menu, and where it is shown.
        settings["showinSubMenu"] = number % 2 == 0
        settings["foldersArray"] = [*folders, f"/nowhere/{number}"]
        settings["foldersArraystate"] = [1] * len(settings["foldersArray"])
        with open(temporary, "wb") as file:
            plistlib.dump(settings, file)
        os.rename(temporary, path)
        time.sleep(max(0.0, begun + _INTERVAL - time.monotonic()))


if __name__ == "__main__":
    main()
