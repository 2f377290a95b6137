"""Makes a picture of the menu in each of the five file managers.

Usage: menu_screenshots.py FOLDER, with ORVIK_PROGRAMS set to the folder of the programs.
"""

import os
import subprocess
import sys
import unittest

from support import processes
from support.accessibility import Extents
from support.file_manager_cases import FileManagerTestCase
from support.real_file_managers import Caja, Dolphin, Nautilus, Nemo, Thunar
from support.waiting import give_time

NAMES = ["Harbour.png", "Letter.txt", "Old town.png", "Packing list.txt", "Tickets.pdf"]
PICTURES = {"Harbour.png": "#9fd3f5-#1f5f8b", "Old town.png": "#f7d9a4-#b5562f"}
WINDOW = Extents(60, 60, 1020, 880)
# What of the screen is in the picture: the window with its frame.
PLACE = Extents(48, 24, 1044, 930)
# Where the item is in the windows whose menu opens elsewhere when a key asks for it.
ITEMS = {Nemo: (388, 139), Caja: (390, 161), Thunar: (339, 127)}
# Until what is on view has been painted.
PAINTING = 1.0


class MenuScreenshots(FileManagerTestCase):
    folder = None

    def make_folder(self):
        # Some file managers show a person's name, which is that of the folder.
        path = os.path.join(super().make_folder(), "alex")
        os.mkdir(path)
        return path

    def picture(self, file_manager):
        # pylint: disable-next=attribute-defined-outside-init
        self.file_manager = file_manager
        # So that shadows are shadows.
        compositor = processes.start(["xcompmgr"], env={"DISPLAY": self.display.name, "PATH": "/usr/bin"})
        self.addCleanup(processes.end, compositor)
        holiday = self.make_files("Holiday", *NAMES)
        os.mkdir(os.path.join(holiday, "Day 1"))
        for name, colours in PICTURES.items():
            subprocess.run(["convert", "-size", "240x160", f"gradient:{colours}", os.path.join(holiday, name)],
                           check=True, timeout=20)
        self.start(foldersArray=[holiday], showmenuicon=True)
        self.running.select(os.path.join(holiday, NAMES[0]))
        window = self.windows.active()
        self.hands.resize(window, WINDOW.width, WINDOW.height)
        self.hands.place(window, WINDOW.x, WINDOW.y)
        give_time(PAINTING)
        at = ITEMS.get(file_manager)
        menu = self.running.menu_at(*at) if at else self.running.menu()
        give_time(PAINTING)
        path = os.path.join(self.folder, f"menu-{file_manager.command[0]}.png")
        subprocess.run(
            ["import", "-display", self.display.name, "-window", "root", "-crop",
             f"{PLACE.width}x{PLACE.height}+{PLACE.x}+{PLACE.y}", "+repage", "-strip", "-define",
             "png:exclude-chunks=date,time", path],
            check=True, timeout=20)
        menu.close()

    def test_nautilus(self):
        self.picture(Nautilus)

    def test_nemo(self):
        self.picture(Nemo)

    def test_caja(self):
        self.picture(Caja)

    def test_thunar(self):
        self.picture(Thunar)

    def test_dolphin(self):
        self.picture(Dolphin)


if __name__ == "__main__":
    os.environ.setdefault("ORVIK_SCREENSHOTS", "/nonexistent")
    MenuScreenshots.folder = os.path.abspath(sys.argv.pop(1))
    unittest.main()
