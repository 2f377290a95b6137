"""Whether everything is reached by the keyboard and has a name for those who cannot see it."""

import unittest
from functools import partial

from support.case import DesktopTestCase
from support.panel import CHOOSER
from support.suite import TITLES
from support.waiting import eventually, settled

# More than any window has.
MANY_CONTROLS = 40


# Pixels that are clearly others where the keyboard is: less than any ring around a control has.
MARKED = 60
CLEARLY = 40

MENU = ("button menu", "Orvik Menu")


def differing_pixels(one, other):
    """How many pixels of two pictures of the same size are clearly different; both are red, green, blue, red, ..."""
    return sum(max(abs(a - b) for a, b in zip(one[at:at + 3], other[at:at + 3])) >= CLEARLY
               for at in range(0, len(one), 3) if one[at:at + 3] != other[at:at + 3])


class Keyboard(DesktopTestCase):
    def walk(self, window, key):
        """The controls that get the keyboard one after the other until the first of them gets it again."""
        focused = settled(window.focused)
        walked = []
        while focused not in walked:
            walked.append(focused)
            self.assertLess(len(walked), MANY_CONTROLS, "the walk does not come round")
            last = focused
            self.hands.press(key)
            eventually(lambda: window.focused() != last, f"{key} to lead on from “{last.name}”")
            focused = window.focused()
        self.assertEqual(focused, walked[0], "the walk goes round without its first control: "
                         f"{[self.described(control) for control in walked]}")
        return walked

    def assertWalksBothWays(self, window):
        """Answers the walk forward, as roles and names."""
        forward = self.walk(window, "Tab")
        backward = self.walk(window, "shift+Tab")
        self.assertEqual(backward, [forward[0], *reversed(forward[1:])])
        walk = [self.described(control) for control in forward]
        self.assertTrue(all(name for _, name in walk), f"a control has no name: {walk}")
        return walk

    @staticmethod
    def described(control):
        return control.role, control.name

    def test_the_main_window_is_walked_both_ways(self):
        window = self.start_panel().main_window()

        walk = self.assertWalksBothWays(window)

        self.assertCountEqual(walk, [("page tab list", "Pages"), MENU, ("check box", "Open Terminal")])

    def test_every_tab_is_walked_both_ways_and_shows_where_the_keyboard_is(self):
        folders = [self.home.files, self.home.programs]
        self.suite.write(foldersArray=folders, foldersArraystate=[1, 0],
                         arrCustomFoldersUrls=["/srv/Projects", "/srv/Photos"])
        expected = {
            "Menu Items": [("check box", "Open Terminal")],
            "Folders": [("check box", folders[0]), ("push button", "Add Folder…"),
                        ("push button", "Remove Folder…")],
            "General": [("push button", "Open Extensions…"), ("check box", "Show an icon beside each menu item"),
                        ("check box", "Group the menu items in a submenu")],
            "About": [("push button", "Web Site"), ("push button", "Twitter"), ("push button", "Facebook"),
                      ("push button", "Rate Orvik Menu")],
            "Custom Folders": [("list item", "Projects"), ("push button", "Delete Projects")],
        }
        panel = self.start_panel()
        window = panel.main_window()
        for tab, controls in expected.items():
            with self.subTest(tab=tab):
                self.hands.click(window.find("page tab", tab).extents)
                eventually(lambda: self.has_control(window, *controls[-1]), f"the tab “{tab}”")
                walk = self.assertWalksBothWays(window)
                self.assertCountEqual(walk, [("page tab list", "Pages"), MENU, *controls])
                self.assertFocusIsVisible(window)

    def test_the_first_run_is_walked_both_ways_and_shows_where_the_keyboard_is(self):
        self.become_a_newcomer()
        window = self.start_panel().main_window()
        walk = self.assertWalksBothWays(window)

        self.assertCountEqual(walk, [("push button", "Open Extensions…"), ("push button", "Choose Folders…"), MENU])
        self.assertFocusIsVisible(window)

    def test_the_showcase_is_walked_both_ways_and_shows_where_the_keyboard_is(self):
        panel = self.start_panel()
        panel.main_window()
        self.assertEqual(self.run_tool("orvik-notify", "ShowUtilityKit").returncode, 0)
        window = panel.active_window("More from Orvik Studio")
        eventually(lambda: len(window.all("push button")) >= 4, "the cards")
        walk = self.assertWalksBothWays(window)

        self.assertEqual(len([role for role, _ in walk if role == "push button"]), 17)
        self.assertFocusIsVisible(window)

    @staticmethod
    def has_control(window, role, name):
        try:
            return bool(window.find(role, name))
        except LookupError:
            return False

    def assertFocusIsVisible(self, window):
        """Wherever the keyboard is, the control looks other than it does without."""
        self.hands.move_to(window.extents._replace(width=2, height=2))
        seen = []
        compared = 0
        control = settled(window.focused)
        while control not in seen:
            seen.append(control)
            where = control.extents
            picture = partial(self.display.picture_of, where)
            with_keyboard = settled(picture)
            self.hands.press("Tab")
            eventually(lambda: window.focused() != control, "Tab to lead on")
            following = settled(window.focused)
            # One that was scrolled away cannot be looked at without the keyboard.
            if control.extents == where:
                compared += 1
                self.assertGreaterEqual(differing_pixels(settled(picture), with_keyboard), MARKED,
                                        f"“{control.name}” looks the same with the keyboard and without")
            control = following
        self.assertGreaterEqual(2 * compared, len(seen), "too few controls could be looked at")

    def test_the_arrow_keys_reach_every_row_by_its_name(self):
        window = self.start_panel().main_window()
        while window.focused().role != "check box":
            last = window.focused()
            self.hands.press("Tab")
            eventually(lambda: window.focused() != last, "Tab to lead on")

        for title in TITLES[1:]:
            self.hands.press("Down")
            self.assertEventuallyEqual(lambda: self.described(window.focused()), ("check box", title))
        for title in reversed(TITLES[:-1]):
            self.hands.press("Up")
            self.assertEventuallyEqual(lambda: self.described(window.focused()), ("check box", title))

    def test_the_chooser_is_walked_both_ways_and_shows_where_the_keyboard_is(self):
        self.suite.write_request(self.home.make_file("Report.pdf"))
        window = self.start_panel().chooser()
        self.assertEqual(window.focused().name, "Files")

        walk = self.assertWalksBothWays(window)

        self.assertCountEqual(walk, [("push button", "Up"), ("push button", "Home"), ("text", "Location"),
                                     ("push button", "New Folder"), ("list", "Places"), ("tree", "Files"),
                                     ("push button", "Cancel"), ("push button", CHOOSER)])
        self.assertFocusIsVisible(window)

    def test_the_question_before_a_removal_is_walked_both_ways(self):
        self.suite.write(foldersArray=["/srv"], foldersArraystate=[1])
        panel = self.start_panel()
        window = panel.main_window()
        self.hands.click(window.find("page tab", "Folders").extents)
        self.hands.click(eventually(lambda: window.find("list item", "/srv"), "the row").extents)
        self.hands.press("Delete")
        question = eventually(lambda: next((each for each in panel.windows() if each.name == "Remove selected folder?"),
                                           None), "the question")
        eventually(lambda: question.has("active"), "the question to have the keyboard")
        walk = self.assertWalksBothWays(question)

        self.assertCountEqual(walk, [("push button", "OK"), ("push button", "Cancel")])
        self.assertFocusIsVisible(question)

    def test_the_arrow_keys_lead_through_the_folders_and_back(self):
        self.suite.write(foldersArray=["/home", "/opt", "/srv"], foldersArraystate=[1, 1, 1],
                         arrCustomFoldersUrls=["/home", "/opt", "/srv"])
        window = self.start_panel().main_window()
        for tab, role, names in (("Folders", "check box", ["/home", "/opt", "/srv"]),
                                 ("Custom Folders", "list item", ["home", "opt", "srv"]),
                                 ("Custom Folders", "push button", ["Delete home", "Delete opt", "Delete srv"])):
            with self.subTest(tab=tab, role=role):
                self.hands.click(window.find("page tab", tab).extents)
                eventually(lambda: self.has_control(window, role, names[-1]), f"the tab “{tab}”")
                while window.focused().name != names[0]:
                    last = window.focused()
                    self.hands.press("Tab")
                    eventually(lambda: window.focused() != last, "Tab to lead on")
                for key, order in (("Down", names[1:]), ("Up", names[-2::-1])):
                    for name in order:
                        self.hands.press(key)
                        self.assertEventuallyEqual(lambda: self.described(window.focused()), (role, name))

    def test_ctrl_and_the_page_keys_go_from_tab_to_tab_wherever_the_keyboard_is(self):
        window = self.start_panel().main_window()
        while window.focused().role != "check box":
            last = window.focused()
            self.hands.press("Tab")
            eventually(lambda: window.focused() != last, "Tab to lead on")
        for keys, control in (("ctrl+Next", ("push button", "Add Folder…")),
                              ("ctrl+Next", ("push button", "Open Extensions…")),
                              ("ctrl+Prior", ("push button", "Add Folder…")),
                              ("ctrl+Prior", ("check box", "Open Terminal")),
                              ("ctrl+Prior", ("heading", "No Custom Folders"))):
            self.hands.press(keys)
            eventually(lambda: self.has_control(window, *control), f"{keys} to show “{control[1]}”")

    def test_f1_shows_the_about_page(self):
        window = self.start_panel().main_window()
        self.hands.press("F1")

        eventually(lambda: self.has_control(window, "push button", "Web Site"), "the About page")

    def test_the_menu_opens_by_every_key_of_its_button_with_the_keyboard_on_its_first_entry(self):
        window = self.start_panel().main_window()
        self.hands.press("Tab")
        eventually(lambda: self.described(window.focused()) == MENU, "the menu button to have the keyboard")
        for key in ("Return", "space", "Down", "F10"):
            with self.subTest(key=key):
                self.hands.press(key)
                entry = eventually(lambda: window.find("menu item", "About Orvik Menu"), "the menu")
                eventually(lambda: entry.has("focused"), "its first entry to have the keyboard")
                self.hands.press("Escape")
                eventually(lambda: not window.all("menu item"), "the menu to go")

    def test_the_first_run_begins_at_its_first_step(self):
        self.become_a_newcomer()
        window = self.start_panel().main_window()
        self.assertEqual(self.described(settled(window.focused)), ("push button", "Open Extensions…"))

    def test_enter_presses_the_button_that_has_the_keyboard(self):
        panel = self.start_panel()
        window = panel.main_window()
        self.hands.press("ctrl+Next")
        eventually(lambda: self.has_control(window, "push button", "Add Folder…"), "the folders")
        while window.focused().name != "Add Folder…":
            last = window.focused()
            self.hands.press("Tab")
            eventually(lambda: window.focused() != last, "Tab to lead on")
        self.hands.press("Return")

        panel.active_window("Grant Access")
        self.hands.press("Escape")

    def test_the_arrow_keys_lead_through_the_showcase_and_back(self):
        panel = self.start_panel()
        panel.main_window()
        self.assertEqual(self.run_tool("orvik-notify", "ShowUtilityKit").returncode, 0)
        window = panel.active_window("More from Orvik Studio")
        buttons = eventually(lambda: window.all("push button"), "the cards")
        while window.focused() != buttons[0]:
            last = window.focused()
            self.hands.press("Tab")
            eventually(lambda: window.focused() != last, "Tab to lead on")
        for key, index in (("Right", 1), ("Down", 3), ("Down", 5), ("Left", 4), ("Up", 2), ("Up", 0)):
            self.hands.press(key)
            self.assertEventuallyEqual(lambda: window.focused() == buttons[index], True)

    def test_every_control_on_view_has_a_name(self):
        self.assertAllNamed(self.start_panel().main_window())

    def test_every_control_of_the_chooser_has_a_name(self):
        self.suite.write_request(self.home.make_file("Report.pdf"))
        self.assertAllNamed(self.start_panel().chooser())

    def assertAllNamed(self, window):
        roles = {"push button", "check box", "text", "list", "tree", "page tab", "menu item", "button menu"}
        unnamed = [control.role for control in window.descendants() if control.role in roles and not control.name]
        self.assertEqual(unnamed, [])


if __name__ == "__main__":
    unittest.main()
