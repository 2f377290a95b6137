"""Makes pictures of every screen, light and dark, and a sheet of each; and a sheet of some in twice the size, and from
right to left.

Usage: screenshots.py FOLDER, with ORVIK_PROGRAMS set to the folder of the programs.
"""

import os
import subprocess
import sys
import unittest

from gi.repository import GLib

from support import portal
from support.accessibility import Extents
from support.case import DesktopTestCase
from support.deployment import EXTENSION
from support.folders import CHOOSER as FOLDER_CHOOSER
from support.folders import go_to
from support.panel import CHOOSER as MAIL_CHOOSER
from support.waiting import eventually, give_time

TABS = ["Menu Items", "Folders", "General", "About", "Custom Folders"]
SHOWCASE = "More from Orvik Studio"
# On every machine, so that they have their icons.
FOLDERS = ["/home", "/media", "/opt", "/srv", "/usr/share/applications"]
SCHEMES = {"light": 0, "dark": 1}
# Until a window that is on view has been painted.
PAINTING = 0.6


class Screenshots(DesktopTestCase):
    folder = None

    def picture(self, title, name):
        """The window of that title, without its frame."""
        eventually(lambda: self.windows.title(self.windows.active()) == title, f"the window “{title}”")
        # Away from what would look different below the pointer.
        self.hands.move_to(Extents(0, 0, 2, 2))
        give_time(PAINTING)
        path = os.path.join(self.folder, name + ".png")
        subprocess.run(["import", "-display", self.display.name, "-window", str(self.windows.active()), path],
                       check=True, timeout=20)
        # Nothing in a picture depends on when it was taken.
        subprocess.run(["mogrify", "-strip", "-define", "png:exclude-chunks=date,time", path], check=True, timeout=20)
        return path

    def pictures(self, scheme):
        yield from self.first_run(scheme)
        yield from self.tabs(scheme)
        yield from self.other_windows(scheme)

    def sheet(self, name, paths, size, columns):
        subprocess.run(
            ["montage", *paths, "-background", "#7d8590", "-geometry", f"{size}+10+10", "-tile", f"{columns}x",
             "-depth", "8", "-define", "png:compression-level=9", os.path.join(self.folder, f"all-{name}.png")],
            check=True, timeout=120)

    def stand_still(self):
        """Nothing is pictured on its way."""
        self.start_portal()
        self.prefer(portal.REDUCED_MOTION, GLib.Variant("u", 1))

    def start(self, tab=None, **variables):
        if tab is None:
            panel = self.start_panel(**variables)
        else:
            program = os.path.join(self.programs, "orvik-menu")
            panel = self.start_panel(program=tab, wrapper=[program, "--tab"], **variables)
        panel.complaints()
        return panel, panel.main_window()

    def use_folders(self):
        self.suite.write(foldersArray=FOLDERS, foldersArraystate=[1, 1, 0, 1, 1], arrCustomFoldersUrls=FOLDERS[:3])

    def first_run(self, scheme):
        self.become_a_newcomer()
        panel, window = self.start()
        yield self.picture(window.name, f"first-run-{scheme}")
        panel.close()

    def tabs(self, scheme):
        self.become_someone_new()
        self.use_folders()
        panel, window = self.start()
        for tab in TABS:
            self.hands.click(window.find("page tab", tab).extents)
            yield self.picture(window.name, f"{tab.lower().replace(' ', '-')}-{scheme}")
        self.hands.click(window.find("page tab", "Folders").extents)
        self.hands.click(eventually(lambda: window.find("list item", FOLDERS[1]), "the row").extents)
        self.hands.press("Delete")
        eventually(lambda: len(panel.windows()) > 1, "the question")
        yield self.picture(window.name, f"remove-{scheme}")
        panel.close()

    def other_windows(self, scheme):
        self.become_someone_new()
        panel, window = self.start()
        self.run_tool("orvik-notify", "ShowUtilityKit", EXTENSION)
        panel.active_window(SHOWCASE)
        yield self.picture(SHOWCASE, f"showcase-{scheme}")
        panel.close()
        extensions = self.start_program("orvik-menu-extensions")
        yield self.picture("Extensions", f"extensions-{scheme}")
        extensions.terminate()
        extensions.wait()
        panel, window = self.start()
        self.hands.click(window.find("page tab", "Folders").extents)
        self.hands.click(eventually(lambda: window.find("push button", "Add Folder…"), "the tab").extents)
        go_to(self.hands, panel.active_window(FOLDER_CHOOSER), "/usr/share")
        yield self.picture(FOLDER_CHOOSER, f"grant-access-{scheme}")
        self.hands.press("Escape")
        panel.close()
        self.suite.write_request("/usr/share/common-licenses/GPL-3")
        panel = self.start_panel()
        panel.complaints()
        panel.chooser()
        yield self.picture(MAIL_CHOOSER, f"attach-to-mail-{scheme}")
        panel.close()

    def test_every_screen_in_both_schemes(self):
        self.stand_still()
        for scheme, number in SCHEMES.items():
            self.prefer_color_scheme(number)
            paths = list(self.pictures(scheme))
            self.sheet(scheme, paths, "480x448>", 4)


class OtherSurroundings(Screenshots):
    screen_size = (2048, 2048)
    # Made above.
    test_every_screen_in_both_schemes = None

    def pictures(self, name, tabs, **variables):
        self.become_a_newcomer()
        panel, window = self.start(**variables)
        yield self.picture(window.name, f"first-run-{name}")
        panel.close()
        for tab in tabs:
            self.become_someone_new()
            self.use_folders()
            panel, window = self.start(tab, **variables)
            yield self.picture(window.name, f"{tab.lower().replace(' ', '-')}-{name}")
            panel.close()

    def test_screens_of_twice_the_density(self):
        self.stand_still()
        self.sheet("2x", list(self.pictures("2x", TABS[:3], QT_SCALE_FACTOR="2")), "960x896>", 2)

    def test_screens_that_are_read_from_right_to_left(self):
        self.stand_still()
        self.sheet("right-to-left", list(self.pictures("right-to-left", TABS, LANGUAGE="ar")), "480x448>", 3)


if __name__ == "__main__":
    os.environ.setdefault("ORVIK_SCREENSHOTS", "/nonexistent")
    Screenshots.folder = os.path.abspath(sys.argv.pop(1))
    unittest.main()
