"""Every window at its smallest, with texts half as large again, in every language: nothing that it says is cut."""

import contextlib
import functools
import os
import unittest

from support.action_window import run_action, start_companion
from support.case import DesktopTestCase
from support.catalogues import LANGUAGES, TABS, Catalogue
from support.deployment import EXTENSION
from support.exif_window import ExifWindow
from support.waiting import eventually

# Half as large again as the usual 96.
DOTS_PER_INCH = "144"
# The smallest width; lists are to be higher than a row.
SMALLEST = (300, 560)


class English(Catalogue):
    """It has no catalogue."""

    def __init__(self):
        self.language = "en"

    def of(self, _table, text):
        return text.replace("&", "")


def in_each_language(test):
    """The test for a person of each language."""
    @functools.wraps(test)
    def tests(self):
        for catalogue in (English(), *map(Catalogue, LANGUAGES)):
            self.catalogue = catalogue
            with self.subTest(catalogue.language):
                self.become_someone_new()
                try:
                    test(self)
                finally:
                    self.doCleanups()

    return tests


class Texts(ExifWindow, DesktopTestCase):
    screen_size = (1600, 1200)

    @property
    def environment(self):
        return {
            **super().environment,
            "LANGUAGE": self.catalogue.language,
            "QT_FONT_DPI": DOTS_PER_INCH,
            # Else everything grows, not the texts alone.
            "QT_ENABLE_HIGHDPI_SCALING": "0",
            "QT_PLUGIN_PATH": os.environ["ORVIK_TEST_PLUGINS"],
            "QT_QPA_GENERIC_PLUGINS": "orvik-cut-texts",
            "ORVIK_CUT_TEXTS": os.path.join(self.home.folder, "cut-texts"),
        }

    def setUp(self):
        self.catalogue = English()
        super().setUp()

    def report(self):
        """How often was looked, and what was cut the last time."""
        with open(self.environment["ORVIK_CUT_TEXTS"], encoding="utf-8") as file:
            number, *cut = file.read().splitlines()
        return int(number), cut

    def assertWhole(self, where):
        """What is on view when this is called, and in the place that it takes then."""
        seen = []
        # It may be another program's.
        with contextlib.suppress(FileNotFoundError):
            os.unlink(self.environment["ORVIK_CUT_TEXTS"])

        def settled():
            try:
                number, cut = self.report()
            except (OSError, ValueError):
                return False
            if not seen or number > seen[-1][0]:
                seen.append((number, cut))
            # Layouts take their time.
            return len(seen) > 3 and seen[-1][1] == seen[-2][1] == seen[-3][1]

        eventually(settled, "a look at the texts")
        self.assertEqual(seen[-1][1], [], where)

    def make_smallest(self):
        self.hands.resize(self.windows.active(), *SMALLEST)

    def open_panel(self):
        panel = self.start_panel()
        # The toolkit says that the plugin's folder has no other plugins.
        panel.complaints()
        return panel, panel.main_window()

    def go_to_tab(self, window, title):
        name = self.catalogue.of("tabviewcontroller", title)
        # A bar that is too short for its tabs scrolls.
        tab = next(tab for tabs in window.all("page tab list") for tab in tabs.children if tab.name == name)
        tab.act("Press")
        eventually(lambda: tab.has("selected"), f"the tab “{name}”")

    def click_button(self, window, name):
        button = eventually(lambda: window.find("push button", name), f"the button “{name}”")
        eventually(lambda: button.has("enabled"), "the button to do something")
        self.hands.click(button.extents)

    @in_each_language
    def test_on_the_tabs(self):
        self.suite.write(foldersArray=["/srv", "/usr"], foldersArraystate=[1, 0], arrCustomFoldersUrls=["/srv"])
        panel, window = self.open_panel()
        self.make_smallest()
        for tab in TABS:
            self.go_to_tab(window, tab)
            self.assertWhole(tab)
        panel.close()

    @in_each_language
    def test_on_empty_lists(self):
        panel, window = self.open_panel()
        self.make_smallest()
        for tab in ("Folders", "Custom Folders"):
            self.go_to_tab(window, tab)
            self.assertWhole(tab)
        panel.close()

    @in_each_language
    def test_in_the_first_run(self):
        self.become_a_newcomer()
        panel, _ = self.open_panel()
        self.make_smallest()
        self.assertWhole("the first run")
        panel.close()

    @in_each_language
    def test_in_the_question_about_a_folder(self):
        self.suite.write(foldersArray=["/srv"], foldersArraystate=[1])
        panel, window = self.open_panel()
        self.go_to_tab(window, "Folders")
        self.hands.click(eventually(lambda: window.find("list item", "/srv"), "the row").extents)
        self.click_button(window, self.catalogue.of("foldersArrvc", "&Remove Folder…"))
        eventually(lambda: len(panel.windows()) > 1, "the question")
        self.assertWhole("the question")
        panel.close()

    @in_each_language
    def test_in_the_chooser(self):
        self.suite.write(foldersArray=["/srv"], foldersArraystate=[1])
        panel, window = self.open_panel()
        self.go_to_tab(window, "Folders")
        self.click_button(window, self.catalogue.of("foldersArrvc", "&Add Folder…"))
        eventually(lambda: len(panel.windows()) > 1, "the chooser")
        self.make_smallest()
        self.assertWhole("the chooser")
        panel.close()

    @in_each_language
    def test_in_the_showcase(self):
        panel, _ = self.open_panel()
        self.run_tool("orvik-notify", "ShowUtilityKit", EXTENSION)
        panel.active_window(self.catalogue.of("UtilityKitWindow", "More from Orvik Studio"))
        self.make_smallest()
        self.assertWhole("the showcase")
        panel.close()

    @in_each_language
    def test_in_the_extensions_window(self):
        program = self.start_panel(program=os.path.join(self.programs, "orvik-menu-extensions"))
        program.complaints()
        program.active_window(self.catalogue.of("ExtensionsTool::ExtensionsWindow", "Extensions"))
        self.make_smallest()
        self.assertWhole("the extensions")
        program.close()

    @in_each_language
    def test_in_the_problem_window(self):
        self.suite.write(foldersArray=["/srv"], foldersArraystate=[1, 1, 1])
        program = self.start_panel(program=os.path.join(self.programs, "orvik-menu-problem"),
                                   ORVIK_MENU_FATAL_ERROR="foldersArraystate is wrong")
        program.complaints()
        eventually(lambda: self.windows.title(self.windows.active()) == "Orvik Menu", "the window")
        self.assertWhole("the problem")
        program.close()

    def look_at_action(self, action, title, *paths, before=lambda window: None):
        started = run_action(self, action, *paths)
        window = started.active_window(title)
        self.make_smallest()
        before(window)
        self.assertWhole(action)
        started.kill()

    @in_each_language
    def test_in_the_windows_that_work_on_photos(self):
        self.install_exiftool()
        start_companion(self)
        photo = self.photo()
        self.look_at_action("view-or-edit-exif-data",
                            self.catalogue.of("MenuExtension::Exif::ExifWindow", "Exif Data"), photo)
        self.look_at_action("resize-photos",
                            self.catalogue.of("MenuExtension::Resizing::ResizeWindow", "Resize Photos"), photo)

    @in_each_language
    def test_in_the_windows_that_find_duplicates(self):
        start_companion(self)
        folder = os.path.join(self.home.files, "some")
        os.makedirs(folder, exist_ok=True)
        for name in ("one", "other"):
            with open(os.path.join(folder, name), "wb") as file:
                file.write(b"same")
        for action, context, title in (("find-duplicate-files", "FindDuplicateFiles", "Duplicate Files"),
                                       ("find-duplicate-photos", "FindDuplicatePhotos", "Duplicate Photos")):
            self.look_at_action(action, self.catalogue.of(context, title), folder)


if __name__ == "__main__":
    unittest.main()
