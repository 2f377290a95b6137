"""Makes pictures of the windows that work on photos, light and dark.

Usage: photo_screenshots.py FOLDER, with ORVIK_PROGRAMS set to the folder of the programs.
"""

import os
import shutil
import subprocess
import sys
import unittest

from support.action_window import run_action, start_companion
from support.case import DesktopTestCase
from support.waiting import eventually, give_time

SCHEMES = {"light": 0, "dark": 1}
# Until a window that is on view has been painted.
PAINTING = 0.6
TAGS = ["-Title=Harbour in the evening", "-ImageDescription=From the pier, before the rain", "-Artist=Alex Marin",
        "-Copyright=2026 Alex Marin", "-DateTimeOriginal=2026:06:21 19:42:08", "-Orientation#=1",
        "-GPSLatitude=43.296482", "-GPSLatitudeRef=N", "-GPSLongitude=5.369780", "-GPSLongitudeRef=E",
        "-Make=Camera", "-Model=C 100", "-ISO=200", "-FNumber=5.6", "-ExposureTime=1/250"]


class PhotoScreenshots(DesktopTestCase):
    folder = None

    def photo(self):
        path = os.path.join(self.home.files, "Harbour.jpg")
        subprocess.run(["convert", "-size", "300x200", "-seed", "11", "plasma:#f7d9a4-#1f5f8b", "-resize", "1000%",
                        "-quality", "92", path], check=True, timeout=240)
        subprocess.run(["exiftool", "-q", "-overwrite_original", *TAGS, path], check=True, timeout=240)
        return path

    def picture(self, name):
        give_time(PAINTING)
        path = os.path.join(self.folder, name + ".png")
        subprocess.run(["import", "-display", self.display.name, "-window", str(self.windows.active()), path],
                       check=True, timeout=240)
        # Nothing in a picture depends on when it was taken.
        subprocess.run(["mogrify", "-strip", "-define", "png:exclude-chunks=date,time", path], check=True, timeout=240)

    def test_both_windows_in_both_schemes(self):
        for program in ("exiftool", "env", "perl"):
            os.symlink(shutil.which(program), os.path.join(self.home.programs, program))
        self.start_portal()
        start_companion(self)
        path = self.photo()
        for scheme, number in SCHEMES.items():
            self.prefer_color_scheme(number)
            exif = run_action(self, "view-or-edit-exif-data", path)
            window = exif.active_window("Exif Data")
            eventually(lambda: "Alex Marin" in [item.name for item in window.all("tree item")], "the data")
            self.picture(f"exif-{scheme}")
            exif.kill()
            resize = run_action(self, "resize-photos", path)
            window = resize.active_window("Resize Photos")
            eventually(lambda: any("1920 × 1280" in label.name for label in window.all("label")), "the photo")
            self.picture(f"resize-{scheme}")
            resize.kill()


if __name__ == "__main__":
    os.environ.setdefault("ORVIK_SCREENSHOTS", "/nonexistent")
    PhotoScreenshots.folder = os.path.abspath(sys.argv.pop(1))
    unittest.main()
