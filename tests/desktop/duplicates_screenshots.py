"""Makes pictures of the windows that find duplicates, light and dark.

Usage: duplicates_screenshots.py FOLDER, with ORVIK_PROGRAMS set to the folder of the programs.
"""

import os
import shutil
import subprocess
import sys
import unittest

from support.duplicates_window import DuplicatesWindowTestCase
from support.waiting import eventually, give_time

SCHEMES = {"light": 0, "dark": 1}
# Until a window that is on view has been painted.
PAINTING = 1.0
# Nothing in a picture depends on when it was taken.
DAY = 1_783_000_000
HARBOUR = ["-size", "960x640", "gradient:#9fd3f5-#f7d9a4", "-fill", "#1f5f8b", "-draw", "rectangle 0,430 960,640",
           "-fill", "#fff4cf", "-draw", "circle 700,190 700,120", "-fill", "#5d4037", "-draw",
           "polygon 240,450 470,450 430,500 290,500", "-fill", "#ffffff", "-draw", "polygon 350,200 350,440 460,440"]
HILLS = ["-size", "960x640", "gradient:#f7d9a4-#b5562f", "-fill", "#35522b", "-draw",
         "polygon 0,420 250,250 520,430 760,300 960,410 960,640 0,640", "-fill", "#5f7f3f", "-draw",
         "polygon 0,540 400,430 960,560 960,640 0,640"]


class DuplicatesScreenshots(DuplicatesWindowTestCase):
    pictures = None

    def make_folder(self):
        # Its name is in the pictures.
        path = os.path.join(super().make_folder(), "alex")
        os.mkdir(path)
        return path

    def path(self, name):
        path = os.path.join(self.home.files, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        return path

    def photo(self, name, drawing, *changes):
        subprocess.run(["convert", *drawing, "-seed", "1", "+noise", "Gaussian", "-attenuate", "0.1", *changes,
                        self.path(name)], check=True, timeout=60)

    def copy(self, name, other):
        shutil.copy(self.path(name), self.path(other))

    def set_days(self):
        for number, (folder, _, names) in enumerate(sorted(os.walk(self.home.files))):
            for name in names:
                day = DAY + number * 86_400
                os.utime(os.path.join(folder, name), (day, day))

    def picture(self, name):
        give_time(PAINTING)
        path = os.path.join(self.pictures, name + ".png")
        subprocess.run(["import", "-display", self.display.name, "-window", str(self.windows.active()), path],
                       check=True, timeout=20)
        subprocess.run(["mogrify", "-strip", "-define", "png:exclude-chunks=date,time", path], check=True, timeout=20)

    def show(self, action, title, name, scheme):
        self.action_name, self.title = action, title
        self.open()
        eventually(lambda: len(self.groups()) == 2, "the groups")
        eventually(lambda: not self.window.all("progress bar"), "the end of the search")
        self.choose_by_rule("Down")
        eventually(lambda: any(label.startswith("Chosen") for label in self.labels()), "the choice")
        self.go_to("Groups")
        self.picture(f"{name}-{scheme}")
        self.hands.press("Escape")
        self.action.wait_for_end()

    def test_every_window_in_both_schemes(self):
        self.start_portal()
        self.photo("Pictures/Harbour.jpg", HARBOUR)
        self.photo("Pictures/Hills.jpg", HILLS)
        self.copy("Pictures/Harbour.jpg", "Pictures/Summer/Harbour.jpg")
        self.copy("Pictures/Hills.jpg", "Desktop/Hills (1).jpg")
        self.copy("Pictures/Hills.jpg", "Mail/Hills.jpg")
        self.set_days()
        for scheme, number in SCHEMES.items():
            self.prefer_color_scheme(number)
            self.show("find-duplicate-files", "Duplicate Files", "duplicate-files", scheme)
        os.remove(self.path("Pictures/Summer/Harbour.jpg"))
        os.remove(self.path("Mail/Hills.jpg"))
        self.photo("Mail/Harbour small.png", HARBOUR, "-resize", "50%", "-strip")
        self.photo("Desktop/Harbour turned.jpg", HARBOUR, "-resize", "75%", "-rotate", "90", "-quality", "70")
        self.set_days()
        for scheme, number in SCHEMES.items():
            self.prefer_color_scheme(number)
            self.show("find-duplicate-photos", "Duplicate Photos", "duplicate-photos", scheme)


if __name__ == "__main__":
    os.environ.setdefault("ORVIK_SCREENSHOTS", "/nonexistent")
    DuplicatesScreenshots.pictures = os.path.abspath(sys.argv.pop(1))
    unittest.main()
