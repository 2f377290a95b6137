"""The About page: the version, and the pages that its buttons open."""

import os
import unittest

from support.case import DesktopTestCase
from support.deployment import FACEBOOK_ADDRESS, STORE_ADDRESS, TWITTER_ADDRESS, WEB_ADDRESS
from support.handler import install_failing_command, install_handler
from support.pointer import Pointer
from support.waiting import eventually, give_time, throughout

OPENED = b"default browser was successfully opened\n"
A_MOMENT = 0.5

PAGES = {
    "Web Site": WEB_ADDRESS,
    "Twitter": TWITTER_ADDRESS,
    "Facebook": FACEBOOK_ADDRESS,
}


class About(DesktopTestCase):
    def start(self):
        self.panel = self.start_panel(PATH=f"{self.home.programs}:/usr/bin:/bin")
        self.panel.output_expected = True
        self.panel.complaints()
        self.window = self.panel.main_window()
        self.hands.click(self.window.find("page tab", "About").extents)
        eventually(lambda: self.window.find("push button", "Web Site"), "the About page")

    def press_button(self, name):
        self.hands.click(self.window.find("push button", name).extents)

    def test_the_version_is_told(self):
        self.start()

        self.assertTrue(self.window.find("label", "Version 2.0"))
        self.save_picture("about")

    def test_each_button_opens_its_page_and_says_so_in_one_line(self):
        opened = install_handler(self.home, "x-scheme-handler/http", "x-scheme-handler/https")
        self.start()
        for number, (name, address) in enumerate(PAGES.items(), 1):
            self.press_button(name)
            self.assertEventuallyEqual(opened, list(PAGES.values())[:number])
            self.assertEventuallyEqual(self.panel.standard_output, OPENED * number)
            self.assertEqual(address, opened()[-1])

    def test_where_there_is_a_portal_it_opens_the_page(self):
        opened = install_handler(self.home, "x-scheme-handler/http")
        self.start_portal()
        self.start()
        self.press_button("Web Site")

        self.assertEventuallyEqual(self.panel.standard_output, OPENED)
        self.assertEqual(self.opened_by_portal(), [PAGES["Web Site"]])
        self.assertEqual(opened(), [])

    def press_where_the_portal_answers(self, answer):
        self.start_portal()
        self.answer_openings(answer)
        self.start()
        self.press_button("Web Site")
        eventually(self.opened_by_portal, "the portal to be asked")

    def test_an_address_that_the_person_refused_at_the_portal_is_not_opened(self):
        opened = install_handler(self.home, "x-scheme-handler/http")
        self.press_where_the_portal_answers(1)

        throughout(lambda: self.panel.standard_output() == b"", "nothing is said", A_MOMENT)
        self.assertEqual(opened(), [])

    def test_an_address_that_the_portal_could_not_open_is_opened_without_it(self):
        opened = install_handler(self.home, "x-scheme-handler/http")
        self.press_where_the_portal_answers(2)

        self.assertEventuallyEqual(opened, [PAGES["Web Site"]])
        self.assertEventuallyEqual(self.panel.standard_output, OPENED)

    def test_an_address_that_neither_portal_nor_browser_opens_is_not_told_as_opened(self):
        tried = install_failing_command(self.home)
        self.press_where_the_portal_answers(2)

        eventually(tried, "the address to be tried without the portal")
        throughout(lambda: self.panel.standard_output() == b"" and self.panel.is_running(), "nothing is said", 2.0)

    def test_without_a_browser_nothing_is_said(self):
        tried = install_failing_command(self.home)
        self.start()
        self.press_button("Web Site")

        eventually(tried, "the address to be tried")
        throughout(lambda: self.panel.standard_output() == b"" and self.panel.is_running(), "nothing happens", 2.0)

    def test_the_rate_button_opens_the_store_and_says_nothing(self):
        opened = install_handler(self.home, "x-scheme-handler/macappstore")
        self.start()
        self.press_button("Rate Orvik Menu")

        self.assertEventuallyEqual(opened, [STORE_ADDRESS])
        throughout(lambda: self.panel.standard_output() == b"", "nothing is said", A_MOMENT)

    def test_a_store_address_that_nothing_opens_does_nothing(self):
        install_handler(self.home)
        self.start()
        self.press_button("Rate Orvik Menu")

        throughout(lambda: self.panel.standard_output() == b"" and self.panel.is_running(), "nothing happens", 2.0)

    def goes_to_menu_items(self):
        """A click while a menu closes may still be taken for one beside the menu."""
        self.hands.click(self.window.find("page tab", "Menu Items").extents)
        return self.window.find("check box", "Open Terminal")

    def test_the_menu_entry_shows_the_page(self):
        self.start()
        for key in ("alt+o", "F10"):
            with self.subTest(key=key):
                eventually(self.goes_to_menu_items, "the menu items")
                self.hands.press(key)
                eventually(lambda: self.window.find("menu item", "About Orvik Menu"), "the menu")
                self.hands.press("a")

                eventually(lambda: self.window.find("push button", "Web Site"), "the About page")

    def test_the_menu_opens_by_its_button_for_a_hand_and_for_a_screen_reader(self):
        self.start()
        for press in (lambda button: self.hands.click(button.extents), lambda button: button.act("Press")):
            press(self.window.find("button menu", "Orvik Menu"))
            entry = eventually(lambda: self.window.find("menu item", "Close Window"), "the menu")
            self.assertEqual([item.name for item in self.window.all("menu item")],
                             ["About Orvik Menu", "Close Window", "Quit Orvik Menu"])
            self.hands.press("Escape")
            eventually(lambda: not self.window.all("menu item"), "the menu to go")
        self.window.find("button menu", "Orvik Menu").act("Press")
        entry = eventually(lambda: self.window.find("menu item", "Quit Orvik Menu"), "the menu")
        self.hands.click(entry.extents)

        self.assertEqual(self.panel.wait_for_end(), 0)

    def test_the_pointer_is_a_hand_over_the_buttons_of_a_window_behind_another_too(self):
        self.start()
        pointer = Pointer(self.display.name)
        self.addCleanup(pointer.close)
        elsewhere = self.window.find("label", "Version 2.0").extents
        button = self.window.find("push button", "Twitter").extents
        self.hands.move_to(elsewhere)
        give_time(A_MOMENT)
        arrow = pointer.shape()
        self.hands.move_to(button)
        eventually(lambda: pointer.shape() != arrow, "the pointing hand")
        hand = pointer.shape()
        self.hands.move_to(elsewhere)
        self.assertEventuallyEqual(pointer.shape, arrow)

        self.start_program("orvik-menu-extensions")
        eventually(lambda: self.windows.title(self.windows.active()) == "Extensions", "another window to be active")
        self.hands.place(self.windows.active(), 0, 0)
        self.hands.move_to(button)
        self.assertEventuallyEqual(pointer.shape, hand)
        self.hands.move_to(elsewhere)
        self.assertEventuallyEqual(pointer.shape, arrow)


if __name__ == "__main__":
    unittest.main()
