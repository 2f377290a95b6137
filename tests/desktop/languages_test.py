"""The programs in other languages than English, and what stays English in all of them."""

import os
import unittest

from gi.repository import GLib

from support.action_window import ask_for_action
from support.buses import call
from support.case import DesktopTestCase
from support.catalogues import TABS, Catalogue, as_pattern
from support.deployment import EXTENSION
from support.extension import INTERFACE, OBJECT, Companion
from support.notifications import Notifications
from support.suite import TITLES, record
from support.waiting import eventually

# What is said in every language, and what is the person's own.
NAMES = {"Orvik Menu", "", "/srv", "srv", "/usr"}


class Languages(DesktopTestCase):
    language = None

    @property
    def environment(self):
        return {**super().environment, **({"LANGUAGE": self.language} if self.language else {})}

    def speak(self, language):
        self.language = language
        self.catalogue = Catalogue(language.partition(":")[0])

    def start(self):
        panel = self.start_panel()
        return panel, panel.main_window()

    def tabs(self, window):
        return [tab.name for tab in window.all("page tab")]

    def said(self, tab):
        return self.catalogue.of("tabviewcontroller", tab)

    def catalogues_of(self, process):
        """Those that a process has open."""
        with open(f"/proc/{process}/maps", encoding="utf-8", errors="replace") as maps:
            return {os.path.basename(line.split()[-1]) for line in maps if line.rstrip().endswith((".qm", ".mo"))}

    def test_the_panel_is_in_the_person_s_language(self):
        self.speak("de")
        panel, window = self.start()

        self.assertEqual(self.tabs(window), [self.said(tab) for tab in TABS])
        self.assertNotEqual(self.tabs(window), list(TABS))
        self.assertEqual([box.name for box in window.all("check box")],
                         [self.catalogue.of("MenuCatalogue", title) for title in TITLES])

    def test_what_is_stored_is_english_in_every_language(self):
        self.speak("de")
        panel, window = self.start()

        self.hands.click(window.find("check box", self.catalogue.of("MenuCatalogue", "Set as Wallpaper")).extents)

        self.assertStored(menuArrayDic=record(2))

    def test_a_title_of_somebody_s_own_stays(self):
        self.speak("de")
        self.suite.write(menuArrayDic=[{"title": "Mine", "state": True}, {"title": "Resize Photos", "state": True}])
        panel, window = self.start()

        self.assertEqual([box.name for box in window.all("check box")],
                         ["Mine", self.catalogue.of("MenuCatalogue", "Resize Photos")])

    def test_no_catalogue_is_opened_for_english(self):
        for language in (None, "en_GB:de"):
            self.language = language
            panel, window = self.start()
            self.assertEqual(self.tabs(window), list(TABS))
            self.assertEqual(self.catalogues_of(panel.process_id), set())
            panel.close()

    def test_the_language_s_own_catalogue_is_opened_and_the_toolkit_s(self):
        self.speak("de")
        panel, window = self.start()

        self.assertEqual(self.catalogues_of(panel.process_id), {"orvik-menu_de.qm", "qtbase_de.qm"})

    def test_a_tab_is_asked_for_by_its_english_title(self):
        self.speak("de")
        panel = self.start_panel(wrapper=[os.path.join(self.programs, "orvik-menu"), "--tab"], program="General")

        window = panel.main_window()

        eventually(lambda: self.catalogue.shows_tab(window, "General"), "the tab")

    def test_arabic_runs_from_right_to_left(self):
        self.speak("ar")
        panel, window = self.start()

        places = [tab.extents.x for tab in window.all("page tab")]
        self.assertEqual(places, sorted(places, reverse=True))
        self.assertEqual([tab.name for tab in window.all("page tab")], [self.said(tab) for tab in TABS])

    def assertAllSaid(self, window):
        """Nothing on view is in English, or in no catalogue."""
        button = self.catalogue.of("tblcell", "Delete %1")
        names = NAMES | {button.replace("%1", name) for name in NAMES}
        left = [f"{each.role} “{each.name}”" for each in window.descendants()
                if each.name not in names and not self.catalogue.says(each.name)]
        self.assertEqual(left, [])

    def test_every_screen_is_in_the_language(self):
        self.speak("de")
        self.suite.write(foldersArray=["/srv", "/usr"], foldersArraystate=[1, 0], arrCustomFoldersUrls=["/srv"])
        panel, window = self.start()

        for tab in TABS:
            self.hands.click(window.find("page tab", self.said(tab)).extents)
            eventually(lambda tab=tab: self.catalogue.shows_tab(window, tab), f"the tab “{tab}”")
            self.assertAllSaid(window)

    def test_the_first_run_is_in_the_language(self):
        self.speak("de")
        self.become_a_newcomer()
        panel, window = self.start()

        self.assertAllSaid(window)

    def test_the_showcase_is_in_the_language(self):
        self.speak("de")
        panel, window = self.start()
        self.run_tool("orvik-notify", "ShowUtilityKit", EXTENSION)

        showcase = panel.active_window(self.catalogue.of("UtilityKitWindow", "More from Orvik Studio"))

        # The products are called the same everywhere, each by one word.
        left = [each.name for each in showcase.descendants() if " " in each.name
                and not any(map(self.catalogue.says, (each.name, each.name.partition(": ")[0])))]
        self.assertEqual(left, [])

    def test_the_extensions_window_is_in_the_language(self):
        self.speak("de")
        program = self.start_panel(program=os.path.join(self.programs, "orvik-menu-extensions"))

        window = program.active_window(self.catalogue.of("ExtensionsTool::ExtensionsWindow", "Extensions"))

        left = [each.name for each in window.all("label") if not self.catalogue.says(each.name)
                and each.name not in {"Files", "Nemo", "Caja", "Thunar", "Dolphin", ""}]
        self.assertEqual(left, [])

    def start_companion(self):
        self.suite.write(menuArrayDic=record(2), foldersArray=[self.home.files], foldersArraystate=[1])
        Companion(self).start()

    def published_titles(self):
        actions = call(self.bus.connection, EXTENSION, OBJECT, "org.freedesktop.DBus.Properties", "Get",
                       GLib.Variant("(ss)", (INTERFACE, "Actions")))[0]
        return {identifier: title for identifier, title, _, _ in actions}

    def test_the_menu_is_in_the_language(self):
        self.speak("de")
        self.start_companion()

        self.assertEqual(self.published_titles()["hide-unhide-item"],
                         self.catalogue.of("MenuCatalogue", "Hide / Unhide item"))
        self.assertNotIn("set-as-wallpaper", self.published_titles())

    def test_the_menu_is_in_english_otherwise(self):
        self.language = "en:de"
        self.start_companion()

        self.assertEqual(self.published_titles()["hide-unhide-item"], "Hide / Unhide item")

    def test_what_an_action_could_not_do_is_told_in_the_language(self):
        self.speak("de")
        notifications = Notifications(self)
        self.start_companion()
        path = os.path.join(self.home.files, "gone")

        with self.assertRaises(GLib.Error) as refused:
            ask_for_action(self, "hide-unhide-item", path)

        told = notifications.only()
        self.assertEqual(told["title"], self.catalogue.of("MenuCatalogue", "Hide / Unhide item"))
        self.assertRegex(told["words"], as_pattern(self.catalogue.of("Action", "%1 cannot be found: %2.")))
        self.assertIn(told["words"].partition("gone")[0], refused.exception.message)


if __name__ == "__main__":
    unittest.main()
