"""Whether everything is reached by the keyboard and has a name for those who cannot see it."""

import unittest

from support.case import DesktopTestCase
from support.panel import CHOOSER
from support.suite import TITLES
from support.waiting import eventually

# More than any window has.
MANY_CONTROLS = 40


class Keyboard(DesktopTestCase):
    def walk(self, window, key):
        """The controls that get the keyboard one after the other until the first of them gets it again."""
        focused = window.focused()
        walked = []
        while focused not in walked:
            walked.append(focused)
            self.assertLess(len(walked), MANY_CONTROLS, "the walk does not come round")
            last = focused
            self.hands.press(key)
            eventually(lambda: window.focused() != last, f"{key} to lead on from “{last.name}”")
            focused = window.focused()
        self.assertEqual(focused, walked[0], "the walk goes round without its first control")
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

        self.assertCountEqual(walk, [("page tab list", "Menu Items"), ("check box", "Open Terminal")])

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

    def test_the_chooser_is_walked_both_ways(self):
        self.suite.write_request(self.home.make_file("Report.pdf"))
        window = self.start_panel().chooser()
        self.assertEqual(window.focused().name, "Files")

        walk = self.assertWalksBothWays(window)

        self.assertCountEqual(walk, [("push button", "Up"), ("push button", "Home"), ("text", "Location"),
                                     ("list", "Places"), ("tree", "Files"), ("push button", "Cancel"),
                                     ("push button", CHOOSER)])

    def test_every_control_on_view_has_a_name(self):
        self.assertAllNamed(self.start_panel().main_window())

    def test_every_control_of_the_chooser_has_a_name(self):
        self.suite.write_request(self.home.make_file("Report.pdf"))
        self.assertAllNamed(self.start_panel().chooser())

    def assertAllNamed(self, window):
        roles = {"push button", "check box", "text", "list", "tree", "page tab", "menu item"}
        unnamed = [control.role for control in window.descendants() if control.role in roles and not control.name]
        self.assertEqual(unnamed, [])


if __name__ == "__main__":
    unittest.main()
