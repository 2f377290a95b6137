"""Light and dark, and screens of twice the density. The pictures are kept for people to look at."""

import os
import subprocess
import unittest

from support.accessibility import Extents
from support.case import DesktopTestCase
from support.folders import CHOOSER
from support.waiting import eventually

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
