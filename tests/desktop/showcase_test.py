"""The window of the maker's other applications."""

import unittest

from support.case import DesktopTestCase
from support.deployment import SHOWCASE_STORE_PREFIX
from support.handler import install_handler
from support.panel import MAIN_WINDOW
from support.waiting import eventually, throughout

SHOWCASE = "More from Orvik Studio"
HEADING = "Other Apps we think you may Love:"
BUTTON = "Open in App Store: "
A_MOMENT = 0.5

# By their numbers, from 1.
APPLICATIONS = ["Tessel", "Mirelo", "Kelvo", "Dravet", "Pallix", "Ostrel", "Fennic", "Yarrow", "Corvane", "Brindle",
                "Salvik", "Quenby", "Tavrin", "Orlet", "Ferrix", "Lumet", "Pendra"]


def store_page(title):
    return f"{SHOWCASE_STORE_PREFIX}{1_000_000_001 + APPLICATIONS.index(title)}"


class ShowcaseTestCase(DesktopTestCase):
    def start(self, **variables):
        self.panel = self.start_panel(**variables)
        self.main = self.panel.main_window()

    def ask_for_showcase(self):
        """As the extension's menu does."""
        self.assertEqual(self.run_tool("orvik-notify", "ShowUtilityKit").returncode, 0)

    def open_showcase(self):
        self.ask_for_showcase()
        self.showcase = self.panel.active_window(SHOWCASE)

    def open_windows(self):
        return [self.windows.title(window) for window in self.windows.of_process(self.panel.process_id)]

    def buttons(self):
        return self.showcase.all("push button")

    def titles(self):
        return [button.name.removeprefix(BUTTON) for button in self.buttons()]


class Showcase(ShowcaseTestCase):
    def test_it_shows_every_application_that_is_not_installed_with_its_button(self):
        self.start()
        self.open_showcase()

        self.assertTrue(self.showcase.find("heading", HEADING))
        self.assertEqual(sorted(self.titles()), sorted(APPLICATIONS))
        for title in APPLICATIONS:
            card = self.showcase.find("list item", title)
            texts = card.texts()
            self.assertEqual(len(texts), 3)
            self.assertIn(title, texts)
            self.assertEqual([button.name for button in card.all("push button")], [BUTTON + title])
        self.save_picture("showcase")

    def test_asking_for_it_twice_brings_the_one_window_forward(self):
        self.start()
        self.open_showcase()
        first = self.windows.active()
        titles = self.titles()
        main, = (window for window in self.windows.of_process(self.panel.process_id) if window != first)
        self.hands.activate(main)
        eventually(lambda: self.windows.active() == main, "the start window to be active")

        self.ask_for_showcase()

        eventually(lambda: self.windows.active() == first, "the showcase to be active again")
        self.assertEqual(sorted(self.open_windows()), sorted([MAIN_WINDOW, SHOWCASE]))
        self.assertEqual(self.windows.stacking()[-1], first)
        # It has been on view all the time, so it was not filled anew.
        self.assertEqual(self.titles(), titles)

    def test_closing_the_start_window_with_it_open_ends_the_panel(self):
        self.start()
        self.open_showcase()
        main, = (window for window in self.windows.of_process(self.panel.process_id)
                 if self.windows.title(window) == MAIN_WINDOW)
        self.hands.activate(main)
        eventually(lambda: self.windows.active() == main, "the start window to be active")

        self.hands.press("alt+F4")

        self.assertEqual(self.panel.wait_for_end(within=5), 0)

    def test_closing_it_leaves_the_start_window_and_it_can_be_asked_for_again(self):
        self.start()
        for keys in ("ctrl+w", "alt+F4"):
            with self.subTest(keys=keys):
                self.open_showcase()
                self.hands.press(keys)

                self.assertEventuallyEqual(self.open_windows, [MAIN_WINDOW])
                throughout(self.panel.is_running, "the panel runs", A_MOMENT)
        self.open_showcase()
        self.assertEqual(len(self.buttons()), len(APPLICATIONS))

    def test_the_showings_have_different_orders(self):
        self.start()
        self.open_showcase()
        first = self.titles()

        # A showing has the first one's order once in nine times; all of these have it once in 10 ** 11.
        for _ in range(12):
            self.hands.press("ctrl+w")
            self.assertEventuallyEqual(self.open_windows, [MAIN_WINDOW])
            self.open_showcase()
            self.assertEqual(sorted(self.titles()), sorted(APPLICATIONS))
            if self.titles() != first:
                return
        self.fail("every showing had the same order")

    def test_every_card_is_reached_by_the_keyboard_in_order(self):
        self.start()
        self.open_showcase()
        names = [button.name for button in self.buttons()]
        self.assertEqual(self.showcase.focused().name, names[0])

        for name in names[1:]:
            self.hands.press("Tab")
            self.assertEventuallyEqual(lambda: self.showcase.focused().name, name)
        self.assertInSight(self.showcase.focused())
        self.hands.press("Home")
        self.assertEventuallyEqual(lambda: self.showcase.focused().name, names[0])
        self.hands.press("Down", "Right")
        self.assertEventuallyEqual(lambda: self.showcase.focused().name, names[3])

    def assertInSight(self, control):
        window, at = self.showcase.extents, control.extents
        self.assertGreaterEqual(at.y, window.y)
        self.assertLessEqual(at.y + at.height, window.y + window.height)


class StorePages(ShowcaseTestCase):
    def start_with_store(self):
        self.opened = install_handler(self.home, "x-scheme-handler/macappstore")
        self.start(PATH="/usr/bin:/bin")
        self.panel.complaints()
        self.open_showcase()

    def test_the_third_cards_button_opens_the_third_entrys_page(self):
        self.start_with_store()

        self.hands.click(self.buttons()[2].extents)

        self.assertEventuallyEqual(self.opened, [store_page(self.titles()[2])])

    def test_the_space_bar_opens_the_page_of_the_card_that_the_keyboard_is_on(self):
        self.start_with_store()

        self.hands.press("End")
        eventually(lambda: self.showcase.focused() == self.buttons()[-1], "the last card")
        self.hands.press("space")

        self.assertEventuallyEqual(self.opened, [store_page(self.titles()[-1])])

    def test_a_screen_reader_opens_the_page_of_any_card(self):
        self.start_with_store()

        self.showcase.find("push button", BUTTON + "Yarrow").act("Press")

        self.assertEventuallyEqual(self.opened, [store_page("Yarrow")])

    def test_without_a_store_a_button_does_nothing(self):
        install_handler(self.home)
        self.start(PATH="/usr/bin:/bin")
        self.panel.complaints()
        self.open_showcase()

        self.hands.click(self.buttons()[0].extents)

        throughout(lambda: self.panel.is_running() and self.panel.standard_output() == b"", "nothing happens", 2.0)


class SmallScreen(ShowcaseTestCase):
    screen_size = (1024, 768)

    def test_it_fits_with_two_cards_a_line(self):
        self.start()
        self.open_showcase()

        at = self.showcase.extents
        width, height = self.screen_size
        self.assertGreaterEqual(min(at.x, at.y), 0)
        self.assertLessEqual(at.x + at.width, width)
        self.assertLessEqual(at.y + at.height, height)
        first, second, third = (self.showcase.find("list item", title).extents for title in self.titles()[:3])
        self.assertEqual((first.width, first.height), (430, 220))
        self.assertEqual((second.y, third.x), (first.y, first.x))
        self.assertGreaterEqual(second.x, first.x + first.width)
        self.assertLessEqual(second.x + second.width, at.x + at.width)


class TwiceTheDensity(ShowcaseTestCase):
    screen_size = (2048, 1536)

    def test_its_cards_are_twice_as_large(self):
        self.start(QT_SCALE_FACTOR="2")
        self.open_showcase()

        window, = (window for window in self.windows.of_process(self.panel.process_id)
                   if self.windows.title(window) == SHOWCASE)
        self.assertEqual(self.windows.size(window)[0], 2 * 940)
        self.save_picture("showcase-2x")


class Widths(ShowcaseTestCase):
    """Two columns, or one in the middle, as the width of the window gives them."""

    CARD = 430

    def places(self):
        """The cards' left edges, from that of the window, in points."""
        left = self.showcase.extents.x
        return sorted({self.showcase.find("list item", title).extents.x - left for title in APPLICATIONS})

    def space(self):
        return (self.showcase.extents.width - 880) / 3

    def scroll_bar(self):
        # Nobody reads it, but it leaves the cards so much less room.
        return self.showcase.extents.width - self.showcase.find("list").extents.width


class OrdinaryWidths(Widths):
    def test_1000_gives_two_columns_with_the_free_width_in_three_parts(self):
        self.start()
        self.open_showcase()
        self.hands.resize(self.windows.active(), 1000, 690)
        eventually(lambda: self.showcase.extents.width == 1000, "the width")
        self.hands.press("ctrl+w")
        self.assertEventuallyEqual(self.open_windows, [MAIN_WINDOW])
        self.open_showcase()

        self.assertEqual(self.showcase.extents.width, 1000)
        self.assertEqual(self.space(), 40)
        self.assertEventuallyEqual(self.places, [40, 1000 - self.scroll_bar() - 40 - self.CARD])


class AScreenOf896(Widths):
    screen_size = (896, 768)

    def test_880_gives_two_columns_without_margins(self):
        self.start()
        self.open_showcase()

        self.assertEqual(self.showcase.extents.width, 880)
        self.assertEqual(self.space(), 0)
        self.assertEventuallyEqual(self.places, [0, 880 - self.scroll_bar() - self.CARD])


class AScreenOf716(Widths):
    screen_size = (716, 768)

    def test_700_gives_one_column_in_the_middle(self):
        self.start()
        self.open_showcase()

        self.assertEqual(self.showcase.extents.width, 700)
        self.assertEqual(self.space(), -60)
        self.assertEventuallyEqual(self.places, [(700 - self.scroll_bar() - self.CARD) // 2])


if __name__ == "__main__":
    unittest.main()
