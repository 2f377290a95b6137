"""The general settings: whether the companion runs, and two switches that it reads."""

import signal
import unittest

from support.case import DesktopTestCase
from support.extension import EXTENSIONS_NAME, Companion
from support.suite import record
from support.waiting import eventually

ENABLED = "Orvik Menu Extension is enabled"
NOT_ENABLED = 'Enable "Orvik Menu Extension" in System Preferences > Extensions to make Orvik Menu work.'
# The panel looks every 5 seconds.
NEXT_LOOK = 9.0

ICON = "Show an icon beside each menu item"
SUBMENU = "Group the menu items in a submenu"


class General(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.companion = Companion(self)

    def start(self):
        self.panel = self.start_panel()
        self.window = self.panel.main_window()
        self.hands.click(self.window.find("page tab", "General").extents)
        eventually(lambda: self.window.find("check box", ICON), "the general settings")

    def says(self, words):
        return any(label.name == words for label in self.window.all("label"))

    def box(self, title):
        return self.window.find("check box", title)

    def test_the_state_follows_the_companion_as_it_starts_and_is_killed(self):
        self.start()
        eventually(lambda: self.says(NOT_ENABLED), "the first look")
        self.save_picture("general")

        self.companion.start()
        eventually(lambda: self.says(ENABLED), "the look after the start", NEXT_LOOK)
        self.companion.kill(signal.SIGKILL)
        eventually(lambda: self.says(NOT_ENABLED), "the look after the end", NEXT_LOOK)

    def test_a_companion_that_runs_is_seen_at_once(self):
        self.companion.start()
        self.start()

        eventually(lambda: self.says(ENABLED), "the first look", 2.0)

    def test_an_empty_suite_gets_the_initial_values(self):
        self.start()

        self.assertTrue(self.box(ICON).has("checked"))
        self.assertFalse(self.box(SUBMENU).has("checked"))
        self.assertStored(menuArrayDic=record(), showmenuicon=True, showinSubMenu=False)

    def test_stored_values_are_shown_and_left_alone(self):
        self.suite.write(showmenuicon=False, showinSubMenu=True)
        self.start()

        self.assertFalse(self.box(ICON).has("checked"))
        self.assertTrue(self.box(SUBMENU).has("checked"))
        self.assertStored(menuArrayDic=record(), showmenuicon=False, showinSubMenu=True)

    def test_values_of_another_kind_are_replaced(self):
        self.suite.write(showmenuicon=0, showinSubMenu="yes", theirs=[1])
        self.start()

        self.assertTrue(self.box(ICON).has("checked"))
        self.assertFalse(self.box(SUBMENU).has("checked"))
        self.assertStored(menuArrayDic=record(), showmenuicon=True, showinSubMenu=False, theirs=[1])

    def test_clicks_are_stored(self):
        self.start()
        self.hands.click(self.box(ICON).extents)
        self.assertStored(menuArrayDic=record(), showmenuicon=False, showinSubMenu=False)
        self.hands.click(self.box(SUBMENU).extents)
        self.assertStored(menuArrayDic=record(), showmenuicon=False, showinSubMenu=True)
        self.hands.click(self.box(ICON).extents)
        self.assertStored(menuArrayDic=record(), showmenuicon=True, showinSubMenu=True)

    def test_the_keyboard_and_a_screen_reader_switch_too(self):
        self.start()
        self.box(SUBMENU).act("Toggle")
        self.assertStored(menuArrayDic=record(), showmenuicon=True, showinSubMenu=True)
        self.hands.press("alt+s")
        self.assertStored(menuArrayDic=record(), showmenuicon=True, showinSubMenu=False)

    def test_the_button_opens_the_window_of_extensions(self):
        self.start()
        self.hands.click(self.window.find("push button", "Open Extensions…").extents)

        eventually(lambda: self.windows.title(self.windows.active()) == "Extensions", "the window of extensions")
        self.hands.press("Escape")
        eventually(lambda: not self.bus.has_owner(EXTENSIONS_NAME), "the window of extensions to go")


if __name__ == "__main__":
    unittest.main()
