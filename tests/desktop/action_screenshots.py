"""Makes pictures of the windows of moving and copying, light and dark.

Usage: action_screenshots.py FOLDER, with ORVIK_PROGRAMS set to the folder of the programs.
"""

import os
import re
import subprocess
import sys
import unittest

from support.transfers import COPY, MOVE, TransferTestCase
from support.waiting import eventually, give_time

SCHEMES = {"light": 0, "dark": 1}
# Until a window that is on view has been painted.
PAINTING = 0.6
# Of what is pictured: nothing depends on when it was taken.
DAYS = {"Camera": 1_783_000_000, "Holiday": 1_751_000_000}


class ActionScreenshots(TransferTestCase):
    pictures = None

    def picture(self, name):
        give_time(PAINTING)
        path = os.path.join(self.pictures, name + ".png")
        subprocess.run(["import", "-display", self.display.name, "-window", str(self.windows.active()), path],
                       check=True, timeout=20)
        subprocess.run(["mogrify", "-strip", "-define", "png:exclude-chunks=date,time", path], check=True, timeout=20)

    def photo(self, folder, name, colours):
        path = os.path.join(self.folder(folder), name)
        subprocess.run(["convert", "-size", "1600x1000", f"gradient:{colours}", path], check=True, timeout=60)
        os.utime(path, (DAYS[folder], DAYS[folder]))
        return path

    def conflict_of_photos(self, scheme):
        self.photo("Holiday", "Harbour.jpg", "#f7d9a4-#b5562f")
        self.open_window(COPY, self.photo("Camera", "Harbour.jpg", "#9fd3f5-#1f5f8b"), target=self.folder("Holiday"),
                         title="There is a file “Harbour.jpg” in “Holiday” already.")
        self.picture(f"copy-conflict-{scheme}")
        self.leave()

    def problems(self, scheme):
        self.open_window(MOVE, self.folder("Holiday"), self.make("Camera/Old town.jpg"), target=self.folder("Holiday"),
                         title="Not everything can be done.")
        self.picture(f"move-problems-{scheme}")
        self.leave()

    def progress(self, scheme):
        for number in range(120_000):
            self.make(f"Letters/{number % 120}/{number}", b"")
        self.open_window(COPY, os.path.join(self.home.files, "Letters"), target=self.folder("Holiday"),
                         title="Copying “Letters” to “Holiday”")
        eventually(lambda: any(re.match("[0-9]+,[0-9]+ of", words) for words in self.labels()),
                   "a thousand files to be copied", within=120)
        self.picture(f"copy-progress-{scheme}")
        self.leave()

    def leave(self):
        self.hands.press("Escape")
        self.action.wait_for_end()

    def test_every_window_in_both_schemes(self):
        self.start_portal()
        self.start()
        for scheme, number in SCHEMES.items():
            self.prefer_color_scheme(number)
            self.conflict_of_photos(scheme)
            self.problems(scheme)
            self.progress(scheme)


if __name__ == "__main__":
    os.environ.setdefault("ORVIK_SCREENSHOTS", "/nonexistent")
    ActionScreenshots.pictures = os.path.abspath(sys.argv.pop(1))
    unittest.main()
