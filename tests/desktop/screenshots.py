"""Makes pictures of every screen, light and dark, and a sheet of each.

Usage: screenshots.py FOLDER, with ORVIK_PROGRAMS set to the folder of the programs.
"""

import os
import subprocess
import sys
import unittest

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

    def start(self):
        panel = self.start_panel()
        panel.complaints()
        return panel, panel.main_window()

    def first_run(self, scheme):
        self.become_a_newcomer()
        panel, window = self.start()
        yield self.picture(window.name, f"first-run-{scheme}")
        panel.close()

    def tabs(self, scheme):
        self.become_someone_new()
        self.suite.write(foldersArray=FOLDERS, foldersArraystate=[1, 1, 0, 1, 1], arrCustomFoldersUrls=FOLDERS[:3])
        panel, window = self.start()
        for tab in TABS:
            self.hands.click(window.find("page tab", tab).extents)
            # Away from what would look different below the pointer.
            self.hands.move_to(window.extents._replace(width=2, height=2))
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
        self.start_portal()
        for scheme, number in SCHEMES.items():
            self.prefer_color_scheme(number)
            paths = list(self.pictures(scheme))
            subprocess.run(
                ["montage", *paths, "-background", "#7d8590", "-geometry", "480x448>+10+10", "-tile", "4x",
                 "-depth", "8", "-define", "png:compression-level=9",
                 os.path.join(self.folder, f"all-{scheme}.png")], check=True, timeout=120)


if __name__ == "__main__":
    os.environ.setdefault("ORVIK_SCREENSHOTS", "/nonexistent")
    Screenshots.folder = os.path.abspath(sys.argv.pop(1))
    unittest.main()
