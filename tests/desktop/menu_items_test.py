"""Switching actions on and off in every way a person can, and records that others have written."""

import datetime
import os
import unittest

from support.case import DesktopTestCase
from support.suite import TITLES, record
from support.waiting import eventually

# A person who has clicked looks at the result: it is stored "at once".
AT_ONCE = 2.0

OTHERS = {
    "showmenuicon": True,
    "foldersArray": ["/home/someone", "/tmp/ä"],
    "somebody else's": {
        "flag": False,
        "one": 1,
        "one and no more": 1.0,
        "bytes": b"\0\xff",
        "when": datetime.datetime(2001, 2, 3, 4, 5, 6),
        "nested": [[], {}, {"deep": [1, 2.5, "three", True]}],
        "text": "<&> \u2028 “ä” 😀",
    },
}


class MenuItems(DesktopTestCase):
    def start(self):
        self.panel = self.start_panel()
        self.window = self.panel.main_window()

    def box(self, title):
        return self.window.find("check box", title)

    def states(self):
        return [box.has("checked") for box in self.window.all("check box")]

    def assertSwitchedOff(self, *rows, **others):
        """The rows, and none but they, are off on the screen and in the file."""
        self.assertStored(AT_ONCE, menuArrayDic=record(*rows), **others)
        self.assertEventuallyEqual(self.states, [row not in rows for row in range(len(TITLES))])

    def test_a_click_switches_that_row_alone(self):
        self.start()

        self.hands.click(self.box("Set as Wallpaper").extents)
        self.assertSwitchedOff(2)
        self.hands.click(self.box("Add Folders").extents)
        self.assertSwitchedOff(2, 15)
        self.hands.click(self.box("Set as Wallpaper").extents)
        self.assertSwitchedOff(15)

    def test_a_click_anywhere_on_a_row_switches_it(self):
        self.start()
        row = self.window.find("list item", "Set as Wallpaper").extents

        self.hands.click(row)
        self.assertSwitchedOff(2)
        self.hands.double_click(row)
        self.assertSwitchedOff(2)
        self.hands.click(row._replace(width=8))
        self.assertSwitchedOff()

    def test_typed_letters_lead_to_a_row(self):
        self.start()
        self.go_to_list()

        self.hands.type("send")
        self.assertEventuallyEqual(lambda: self.window.focused().name, "Send via Mail")
        # A space at once would be one of the words.
        self.hands.press("Down", "Up", "space")
        self.assertSwitchedOff(5)

    def test_the_space_bar_switches_the_row_that_the_arrow_keys_went_to(self):
        self.start()
        self.go_to_list()

        self.hands.press("Down", "Down", "Down", "space")
        self.assertSwitchedOff(3)
        self.hands.press("Up", "space")
        self.assertSwitchedOff(2, 3)
        self.hands.press("End", "space")
        self.assertSwitchedOff(2, 3, 15)
        self.hands.press("Home", "space")
        self.assertSwitchedOff(0, 2, 3, 15)

    def go_to_list(self):
        for _ in range(5):
            if self.window.focused().role == "check box":
                return
            before = self.window.focused()
            self.hands.press("Tab")
            eventually(lambda: self.window.focused() != before, "Tab to lead on")
        self.fail("Tab does not lead into the list")

    def test_the_keyboard_stays_on_a_row_that_it_switched(self):
        self.start()
        self.go_to_list()

        self.hands.press("Down", "space")
        self.assertSwitchedOff(1)

        self.assertEqual(self.window.focused().name, TITLES[1])
        self.hands.press("space")
        self.assertSwitchedOff()

    def test_a_screen_reader_switches_a_row(self):
        self.start()

        self.box("Find Duplicate Photos").act("Toggle")

        self.assertSwitchedOff(11)

    def test_what_others_keep_in_the_file_survives(self):
        self.suite.write(menuArrayDic=record(), **OTHERS)
        self.start()

        self.hands.click(self.box("Resize Photos").extents)

        self.assertSwitchedOff(13, **OTHERS)

    def test_what_others_store_while_the_panel_runs_survives(self):
        self.start()
        self.run_tool("orvik-defaults", "write", "suite", "showinSubMenu", "-bool", "true")

        self.hands.click(self.box("Resize Photos").extents)

        self.assertSwitchedOff(13, showinSubMenu=True)

    def test_a_row_keeps_what_others_added_to_it(self):
        rows = [{"title": "Send via Mail", "state": True, "shortcut": "m", "rank": 7}]
        self.suite.write(menuArrayDic=rows)
        self.start()

        self.hands.click(self.box("Send via Mail").extents)

        self.assertStored(AT_ONCE, menuArrayDic=[{**rows[0], "state": False}])

    def test_a_row_without_a_state_is_off_and_its_first_click_switches_it_on(self):
        self.suite.write(menuArrayDic=[{"title": "Open Terminal"}, {"title": "Add Folders", "state": "yes"}])
        self.start()
        self.assertEqual(self.states(), [False, False])

        self.hands.click(self.box("Open Terminal").extents)
        self.hands.click(self.box("Add Folders").extents)

        self.assertStored(AT_ONCE, menuArrayDic=record()[:1] + record()[-1:])
        self.assertEventuallyEqual(self.states, [True, True])

    def test_a_list_of_titles_that_the_panel_does_not_know_is_shown_as_it_stands(self):
        rows = [{"title": "Brew Tea <now> & “later”", "state": True},
                {"state": False},
                {"title": 5, "state": True}]
        self.suite.write(menuArrayDic=rows)
        self.start()

        self.assertEqual([box.name for box in self.window.all("check box")], [rows[0]["title"], "", ""])
        self.assertEqual(self.states(), [True, False, True])

    def test_a_list_of_another_length_is_shown_and_not_rewritten(self):
        self.suite.write(menuArrayDic=[record()[5], record()[0], record(8)[8]])
        before, bytes_before = os.stat(self.suite.path), self.suite.bytes()
        self.start()

        self.assertEqual([box.name for box in self.window.all("check box")],
                         ["Send via Mail", "Open Terminal", "Open New Finder Window"])
        self.assertEqual(self.states(), [True, True, False])
        after = os.stat(self.suite.path)
        self.assertEqual((after.st_ino, after.st_mtime_ns), (before.st_ino, before.st_mtime_ns))
        self.assertEqual(self.suite.bytes(), bytes_before)

    def test_a_record_of_another_kind_is_made_anew(self):
        for damaged in ("Open Terminal", 16, {"title": "Open Terminal"}, ["Open Terminal"]):
            with self.subTest(damaged=damaged):
                self.suite.write(menuArrayDic=damaged, showmenuicon=False)
                self.start()

                self.assertStored(AT_ONCE, menuArrayDic=record(), showmenuicon=False)
                self.assertEqual(self.states(), [True] * len(TITLES))
                self.panel.close()

    def test_every_row_of_a_long_list_is_reached_by_the_keyboard(self):
        rows = [{"title": f"Action {number}", "state": True} for number in range(2000)]
        self.suite.write(menuArrayDic=rows)
        self.start()
        self.go_to_list()

        self.hands.press("End", "space")

        rows[-1]["state"] = False
        self.assertStored(AT_ONCE, menuArrayDic=rows)
        self.assertEqual(self.window.focused().name, "Action 1999")


if __name__ == "__main__":
    unittest.main()
