"""Light and dark, and screens of twice the density. The pictures are kept for people to look at."""

import os
import subprocess
import unittest

from gi.repository import GLib

from support import portal
from support.accessibility import Extents
from support.case import DesktopTestCase
from support.folders import CHOOSER
from support.waiting import eventually, throughout

A_MOMENT = 0.5
NO_PREFERENCE, DARK, LIGHT = range(3)


class AppearanceTestCase(DesktopTestCase):
    def start_with_request(self, **variables):
        for name in ("Budget.ods", "Holiday.jpg", "Report.pdf", "Notes.txt", ".profile"):
            self.home.make_file(name, b"x" * 5000 * len(name))
        os.mkdir(os.path.join(self.home.files, "Pictures"))
        self.suite.write_request(os.path.join(self.home.files, "Report.pdf"))
        panel = self.start_panel(**variables)
        return panel, panel.chooser()


class ColorScheme(AppearanceTestCase):
    def brightness(self, window):
        """The mean over the window's picture, from 0 (black) to 1 (white)."""
        at = window.extents
        answer = subprocess.run(
            ["import", "-display", self.display.name, "-window", "root", "-crop",
             f"{at.width}x{at.height}+{at.x}+{at.y}", "-format", "%[fx:mean]", "info:"],
            capture_output=True, text=True, check=True, timeout=20)
        return float(answer.stdout)

    def wait_for_light(self, window):
        eventually(lambda: self.brightness(window) > 0.8, "a light window")

    def wait_for_dark(self, window):
        eventually(lambda: self.brightness(window) < 0.3, "a dark window")

    def test_the_windows_are_light_where_nothing_else_is_preferred(self):
        self.start_portal()
        for color_scheme in (NO_PREFERENCE, LIGHT):
            with self.subTest(color_scheme=color_scheme):
                self.prefer_color_scheme(color_scheme)
                panel = self.start_panel()
                self.wait_for_light(panel.main_window())
                panel.close()

    def test_the_windows_are_dark_where_dark_is_preferred(self):
        self.start_portal(DARK)
        panel = self.start_panel()
        self.wait_for_dark(panel.main_window())
        self.save_picture("menu-items-dark")
        panel.close()

        self.wait_for_dark(self.start_with_request()[1])
        self.save_picture("attach-to-mail-dark")

    def test_the_showcase_is_dark_where_dark_is_preferred(self):
        self.start_portal(DARK)
        panel = self.start_panel()
        panel.main_window()
        self.run_tool("orvik-notify", "ShowUtilityKit")

        self.wait_for_dark(panel.active_window("More from Orvik Studio"))
        self.save_picture("showcase-dark")

    def test_a_change_of_the_preference_is_followed_at_once(self):
        self.start_portal(LIGHT)
        window = self.start_panel().main_window()
        self.wait_for_light(window)

        self.prefer_color_scheme(DARK)
        self.wait_for_dark(window)
        self.prefer_color_scheme(NO_PREFERENCE)
        self.wait_for_light(window)


class Contrast(AppearanceTestCase):
    def backgrounds(self, window):
        """The colours of the pixels along the window's lower edge, and of a heap of others."""
        at = window.extents
        row = at._replace(y=at.y + at.height - 4, height=1)
        pixels = self.display.picture_of(row)
        return {pixels[index:index + 3] for index in range(0, len(pixels), 3)}

    def test_a_wish_for_high_contrast_is_followed_at_once_in_light_and_in_dark(self):
        self.start_portal()
        window = self.start_panel().main_window()
        for color_scheme, name, behind in ((LIGHT, "light", b"\xff\xff\xff"), (DARK, "dark", b"\0\0\0")):
            with self.subTest(color_scheme=name):
                self.prefer_color_scheme(color_scheme)
                eventually(lambda: behind not in self.backgrounds(window), "the usual colours")
                self.prefer(portal.CONTRAST, GLib.Variant("u", 1))
                eventually(lambda: behind in self.backgrounds(window), "high contrast")
                self.save_picture("menu-items-high-contrast-" + name)
                self.prefer(portal.CONTRAST, GLib.Variant("u", 0))
                eventually(lambda: behind not in self.backgrounds(window), "the usual colours again")

    def test_the_wish_is_known_from_the_first_window_on(self):
        self.start_portal(DARK)
        self.prefer(portal.CONTRAST, GLib.Variant("u", 1))
        window = self.start_panel().main_window()

        eventually(lambda: b"\0\0\0" in self.backgrounds(window), "high contrast")


class ReducedMotion(AppearanceTestCase):
    def start_what_moves(self):
        """A window with a bar that goes to and fro for long."""
        folder = os.path.join(self.home.files, "Photos")
        os.mkdir(folder)
        # It takes no room, but it has to be read.
        with open(os.path.join(folder, "huge"), "wb") as file:
            file.truncate(400 << 30)
        self.suite.write_request(folder)
        panel = self.start_panel()
        panel.chooser()
        self.hands.press("Return")

        def bar():
            return next(window.find("progress bar") for window in panel.windows()
                        if window.name.startswith("Preparing"))

        self.panel = panel
        return eventually(lambda: self.found(bar), "the bar").extents

    @staticmethod
    def found(look):
        try:
            return look()
        except StopIteration as nothing:
            raise LookupError("nothing yet") from nothing

    def stands_still(self, where):
        pictures = set()
        for _ in range(4):
            pictures.add(self.display.picture_of(where))
        return len(pictures) == 1

    def test_a_wish_for_reduced_motion_is_followed_at_once(self):
        self.start_portal()
        bar = self.start_what_moves()
        eventually(lambda: not self.stands_still(bar), "the bar to move")
        for setting, still, moving in ((portal.REDUCED_MOTION, GLib.Variant("u", 1), GLib.Variant("u", 0)),
                                       (portal.ENABLE_ANIMATIONS, GLib.Variant("b", False), GLib.Variant("b", True))):
            with self.subTest(setting=setting):
                self.prefer(setting, still)
                eventually(lambda: self.stands_still(bar), "the bar to stand still")
                throughout(lambda: self.stands_still(bar), "the bar stands still", A_MOMENT)
                self.prefer(setting, moving)
                eventually(lambda: not self.stands_still(bar), "the bar to move again")
        self.hands.press("Escape")
        eventually(lambda: not self.panel.windows(), "the window to go")


class TwiceTheDensity(AppearanceTestCase):
    screen_size = (2048, 2048)

    def size(self, panel):
        window, = self.windows.of_process(panel.process_id)
        return self.windows.size(window)

    def assertTwiceAsLarge(self, start, picture):
        single = start()
        width, height = self.size(single)
        single.close()

        double = start(QT_SCALE_FACTOR="2")

        self.assertEqual(self.size(double), (2 * width, 2 * height))
        self.save_picture(picture)

    def test_the_main_window_is_twice_as_large(self):
        def start(**variables):
            panel = self.start_panel(**variables)
            panel.main_window()
            return panel

        self.assertTwiceAsLarge(start, "menu-items-2x")

    def test_the_chooser_is_twice_as_large(self):
        def start(**variables):
            self.become_someone_new()
            return self.start_with_request(**variables)[0]

        self.assertTwiceAsLarge(start, "attach-to-mail-2x")


class HalfAsLargeAgainOnASmallScreen(AppearanceTestCase):
    screen_size = (1024, 768)
    scale = 1.5

    def on_screen(self, control):
        """Its place in the screen's own pixels; the accessibility bus tells the scaled ones."""
        return Extents(*(round(self.scale * number) for number in control.extents))

    def assertOnTheScreen(self, extents):
        self.assertGreaterEqual(min(extents.x, extents.y), 0)
        self.assertLessEqual(extents.x + extents.width, self.screen_size[0])
        self.assertLessEqual(extents.y + extents.height, self.screen_size[1])

    def test_the_first_run_fits_and_is_operated_with_the_pointer(self):
        self.become_a_newcomer()
        panel = self.start_panel(QT_SCALE_FACTOR=str(self.scale))
        window = panel.main_window()
        self.save_picture("first-run-1.5x")

        self.assertOnTheScreen(self.on_screen(window))
        button = self.on_screen(window.find("push button", "Choose Folders…"))
        self.assertOnTheScreen(button)
        self.hands.click(button)
        self.assertTrue(panel.active_window(CHOOSER))


if __name__ == "__main__":
    unittest.main()
