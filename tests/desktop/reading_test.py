"""How every screen reads to those who do not see it: by its accessibility tree, and by what is told of changes."""

import os
import signal
import unittest

from support.case import DesktopTestCase
from support.extension import EXTENSIONS, Companion
from support.file_managers import FileManager
from support.folders import CHOOSER as FOLDER_CHOOSER
from support.folders import choose
from support.panel import CHOOSER
from support.reading import Reader
from support.suite import TITLES
from support.waiting import eventually, throughout

# How long is listened for what must not be said.
A_MOMENT = 0.7
TABS = ["Menu Items", "Folders", "General", "About", "Custom Folders"]
# What shows that a tab's screen is there.
SIGNS = {"Menu Items": ["Open Terminal"], "Folders": ["Add Folder…"], "General": ["Open Extensions…"],
         "About": ["Web Site"], "Custom Folders": ["Custom folders", "No Custom Folders"]}
RUNNING = "It is running, and it starts at log-in."
SWITCHED_OFF = "It is switched off."
ENABLED = "Orvik Menu Extension is enabled"


class ReadingTestCase(Reader, DesktopTestCase):
    def start(self):
        self.panel = self.start_panel()
        self.window = self.panel.main_window()

    def open_tab(self, tab):
        self.hands.click(self.window.find("page tab", tab).extents)
        eventually(lambda: any(found.name in SIGNS[tab] for found in self.window.descendants()), f"the tab “{tab}”")

    def store_folders(self):
        folders = [self.home.files, self.home.programs]
        self.suite.write(foldersArray=folders, foldersArraystate=[1, 0],
                         arrCustomFoldersUrls=["/srv/Projects", "/srv/Photos", "/"])
        return folders

    def start_companion(self):
        companion = Companion(self)
        companion.start()
        self.addCleanup(companion.kill, signal.SIGKILL)
        return companion

    def start_extensions_window(self):
        self.panel = self.start_panel(program=os.path.join(self.programs, "orvik-menu-extensions"))
        self.window = self.panel.active_window(EXTENSIONS)


class Screens(ReadingTestCase):
    def test_every_tab_reads_well(self):
        for stored in (False, True):
            if stored:
                self.become_someone_new()
                self.store_folders()
            self.start()
            for tab in TABS:
                with self.subTest(tab=tab, stored=stored):
                    self.open_tab(tab)
                    self.assertReadsWell(self.window)
            self.panel.close()

    def test_the_first_run_reads_well(self):
        self.become_a_newcomer()
        self.start()
        self.assertReadsWell(self.window)
        self.start_companion()
        eventually(lambda: not self.window.find("push button", "Open Extensions…").has("enabled"), "the step's end")
        self.assertReadsWell(self.window)

    def test_the_showcase_reads_well(self):
        self.start()
        self.assertEqual(self.run_tool("orvik-notify", "ShowUtilityKit").returncode, 0)
        window = self.panel.active_window("More from Orvik Studio")
        eventually(lambda: window.all("push button"), "the cards")
        self.assertReadsWell(window)

    def test_a_question_reads_well(self):
        self.store_folders()
        self.start()
        self.open_tab("Folders")
        self.hands.click(eventually(lambda: self.window.find("list item"), "the rows").extents)
        self.hands.press("Delete")
        self.assertReadsWell(self.panel.active_window("Remove selected folder?"))

    def test_an_empty_list_says_in_words_what_fills_it(self):
        self.start()
        self.open_tab("Folders")
        self.assertEqual(self.window.find("panel", "No Folders Yet").description,
                         "Orvik Menu shows its actions on items inside the folders that you add.")

    def test_the_chooser_reads_well(self):
        self.suite.write_request(self.home.make_file("Report.pdf"))
        self.panel = self.start_panel()
        self.assertReadsWell(self.panel.active_window(CHOOSER))

    def test_the_extensions_window_reads_well(self):
        for name in ("nemo", "caja"):
            manager = FileManager(self.programs, self.home, name, self.addCleanup)
            manager.install_bridge()
            manager.start(*([] if name == "nemo" else [manager.module]))
        self.start_extensions_window()
        eventually(lambda: self.window.find("push button", "Restart Nemo"), "the file managers")
        self.assertReadsWell(self.window)

    def test_the_window_that_tells_of_a_problem_reads_well(self):
        self.suite.write(foldersArray=["/srv", "/opt"], foldersArraystate=[0])
        self.panel = self.start_panel(program=os.path.join(self.programs, "orvik-menu-problem"))
        self.assertReadsWell(self.panel.active_window("The settings of Orvik Menu"))


class Words(ReadingTestCase):
    def test_a_button_of_a_row_tells_what_it_deletes_and_where_that_is(self):
        self.store_folders()
        self.start()
        self.open_tab("Custom Folders")
        button = eventually(lambda: self.window.find("push button", "Delete Projects"), "the row's button")

        self.assertEqual(button.description, "/srv/Projects, Not found")

    def test_tabs_tell_which_is_selected_and_their_positions(self):
        self.start()
        bar = self.window.find("page tab list")
        self.assertEqual([(tab.role, tab.name, tab.index) for tab in bar.children],
                         [("page tab", title, index) for index, title in enumerate(TABS)])
        for title in TABS:
            self.open_tab(title)
            selected = [tab.name for tab in bar.children if tab.has("selected")]
            self.assertEqual(selected, [title])
            self.assertTrue(all(tab.has("selectable") for tab in bar.children))

    def test_a_tab_that_the_keyboard_comes_to_is_told(self):
        self.start()
        listener = self.listen(self.panel)
        self.hands.press("Tab")
        bar = self.window.find("page tab list")
        for _ in TABS:
            if bar.has("focused"):
                break
            self.hands.press("Tab")
        eventually(lambda: ("Menu Items", True) in listener.heard("StateChanged", "focused"), "the tab to be told")
        self.hands.press("Right")
        eventually(lambda: ("Folders", True) in listener.heard("StateChanged", "focused"), "the next one to be told")
        eventually(lambda: ("Folders", True) in listener.heard("StateChanged", "selected"), "its selection to be told")

    def test_groups_steps_and_headings_have_names_and_roles(self):
        self.become_a_newcomer()
        self.start()
        for title in ("Switch on the extension", "Choose your folders"):
            self.assertEqual(self.window.find("panel", title).related("labelled by"),
                             [self.window.find("heading", title)])
        self.assertEqual(self.window.find("heading").name, "Welcome to Orvik Menu")
        step = self.window.find("push button", "Open Extensions…")
        self.assertEqual(step.description, "Step 1, to do. Open Extensions and switch on “Orvik Menu Extension”. "
                                           "This step is done as soon as the extension runs.")

    def test_an_alert_is_one_and_has_its_words_once(self):
        self.store_folders()
        self.start()
        self.open_tab("Folders")
        self.hands.click(eventually(lambda: self.window.find("list item"), "the rows").extents)
        self.hands.press("Delete")
        alert = self.panel.active_window("Remove selected folder?")

        self.assertEqual(alert.role, "alert message")
        self.assertEqual(alert.description, "Are you sure you want to remove the selected folder.")
        self.assertEqual([(found.role, found.name) for found in alert.descendants() if found.name],
                         [("heading", "Remove selected folder?"),
                          ("label", "Are you sure you want to remove the selected folder."),
                          ("push button", "OK"), ("push button", "Cancel")])

    def test_the_showcase_is_a_list_of_cards_with_positions(self):
        self.start()
        self.assertEqual(self.run_tool("orvik-notify", "ShowUtilityKit").returncode, 0)
        window = self.panel.active_window("More from Orvik Studio")
        cards = eventually(lambda: window.find("list", "Other apps").children, "the cards")

        self.assertEqual(len(cards), 17)
        for position, card in enumerate(cards):
            self.assertEqual((card.role, card.index), ("list item", position))
            button = card.find("push button")
            self.assertEqual(button.name, f"Open in App Store: {card.name}")
            texts = [found.name for found in card.descendants() if found.role in ("label", "paragraph")]
            self.assertEqual(len(texts), 2)
            self.assertTrue(all(text in button.description for text in texts), button.description)

    def test_the_extensions_window_is_a_frame_and_its_title_comes_before_its_switch(self):
        self.start_extensions_window()
        self.assertEqual(self.window.role, "frame")
        names = [(found.role, found.name) for found in self.window.descendants() if found.name]
        title, switch = (names.index((role, "Orvik Menu Extension")) for role in ("heading", "check box"))
        self.assertLess(title, switch)

    def test_the_state_beside_a_switch_is_tied_to_it(self):
        self.start_extensions_window()
        switch = self.window.find("check box")
        self.assertEqual(self.window.find("label", SWITCHED_OFF).related(), [switch])
        self.assertTrue(switch.description.endswith(SWITCHED_OFF), switch.description)


class Changes(ReadingTestCase):
    def test_toggling_an_item_tells_of_that_item_only(self):
        self.start()
        listener = self.listen(self.panel)
        box = self.window.find("check box", TITLES[2])
        listener.note_names()
        box.act("Toggle")

        eventually(lambda: listener.heard("StateChanged", "checked"), "the change to be told")
        eventually(lambda: not box.has("checked"), "the change")
        self.assertEqual(listener.heard("StateChanged", "checked"), [(TITLES[2], False)])
        self.assertEqual(listener.heard("PropertyChange", "accessible-name"), [])
        self.assertEqual(listener.heard("PropertyChange", "accessible-description"), [])
        self.assertEqual(listener.heard("StateChanged", "showing"), [])

    def test_switching_a_folder_tells_of_that_folder_only(self):
        folders = self.store_folders()
        self.start()
        self.open_tab("Folders")
        listener = self.listen(self.panel)
        box = eventually(lambda: self.window.all("list item"), "the rows")[1].find("check box")
        listener.note_names()
        box.act("Toggle")

        eventually(lambda: listener.heard("StateChanged", "checked"), "the change to be told")
        self.assertEqual(len(listener.heard("StateChanged", "checked")), 1, folders)
        self.assertEqual(listener.heard("PropertyChange", "accessible-name"), [])

    def test_no_name_is_said_to_have_changed_that_has_not(self):
        self.store_folders()
        self.start()
        listener = self.listen(self.panel)
        for tab in [*TABS, *TABS]:
            with self.subTest(tab=tab):
                listener.note_names()
                self.open_tab(tab)
                self.assertEqual(listener.empty_name_changes(), [])
        self.open_tab("Custom Folders")
        listener.note_names()
        self.window.find("push button", "Delete Photos").act("Press")
        eventually(lambda: len(self.window.all("list item")) == 2, "the row to go")
        self.assertEqual(listener.empty_name_changes(), [])

    def test_what_a_tab_is_opened_with_is_not_announced_as_added(self):
        self.store_folders()
        self.start()
        listener = self.listen(self.panel)
        listener.note_names()
        for tab in TABS:
            self.open_tab(tab)
        self.assertEqual(len(self.window.all("list item")), 3)
        throughout(lambda: not any(words.startswith("Added") for words in listener.announced()),
                   "nothing is announced", A_MOMENT)

    def test_a_folder_that_is_added_is_announced(self):
        self.store_folders()
        added = os.path.join(self.home.files, "Letters")
        os.mkdir(added)
        self.start()
        self.open_tab("Folders")
        listener = self.listen(self.panel)
        listener.note_names()
        self.hands.press("alt+a")
        choose(self.hands, self.panel, added)
        self.panel.output_expected = True

        eventually(lambda: "Added: Letters" in listener.announced(), "the folder to be announced")

    def test_the_general_tab_announces_that_the_extension_starts_and_ends(self):
        self.start()
        self.open_tab("General")
        listener = self.listen(self.panel)
        listener.note_names()
        companion = self.start_companion()
        eventually(lambda: ENABLED in listener.announced(), "the start to be announced")
        companion.kill(signal.SIGKILL)
        eventually(lambda: any(words.startswith("Enable ") for words in listener.announced()),
                   "the end to be announced")

    def test_the_first_run_announces_that_a_step_is_done(self):
        self.become_a_newcomer()
        self.start()
        listener = self.listen(self.panel)
        listener.note_names()
        companion = self.start_companion()
        eventually(lambda: "Step 1, done" in listener.announced(), "the step to be announced")
        companion.kill(signal.SIGKILL)
        eventually(lambda: "Step 1, to do" in listener.announced(), "its return to be announced")

    def test_the_extensions_window_announces_the_state_whoever_changes_it(self):
        self.start_extensions_window()
        companion = Companion(self)
        self.addCleanup(companion.kill, signal.SIGKILL)
        listener = self.listen(self.panel)
        listener.note_names()
        self.window.find("check box").act("Toggle")
        eventually(lambda: f"Orvik Menu Extension: {RUNNING}" in listener.announced(), "the start to be announced")
        self.assertEqual(listener.empty_name_changes(), [])
        self.assertEqual(listener.announced(), ["Orvik Menu Extension: Starting…", f"Orvik Menu Extension: {RUNNING}"])
        companion.kill(signal.SIGKILL)
        words = "Orvik Menu Extension: It is set to start at log-in, but it is not running."
        eventually(lambda: words in listener.announced(), "the end to be announced")

    def test_operating_the_switch_is_no_answer_before_there_is_one(self):
        self.start_extensions_window()
        companion = Companion(self)
        self.addCleanup(companion.kill, signal.SIGKILL)
        listener = self.listen(self.panel)
        listener.note_names()
        self.hands.press("space")
        eventually(lambda: f"Orvik Menu Extension: {RUNNING}" in listener.announced(), "the start to be announced")

        self.assertEqual(listener.heard("StateChanged", "checked"), [("Orvik Menu Extension", True)])

    def test_the_extensions_window_announces_how_far_a_file_manager_has_come(self):
        manager = FileManager(self.programs, self.home, "nemo", self.addCleanup)
        manager.install_bridge()
        self.start_extensions_window()
        eventually(lambda: self.window.find("heading", "Nemo"), "the file manager")
        listener = self.listen(self.panel)
        listener.note_names()
        manager.start(manager.module)
        eventually(lambda: listener.announced() == ["Nemo: It has loaded the menu."], "the news to be announced")


class Places(ReadingTestCase):
    """What is heard of where the keyboard is and of what it has come to."""

    def open_chooser(self):
        self.start()
        self.open_tab("Folders")
        self.listener = self.listen(self.panel)
        self.hands.press("alt+a")
        self.chooser = self.panel.active_window(FOLDER_CHOOSER)
        eventually(lambda: self.chooser.focused().name == "Files", "the list to have the keyboard")

    def has_heard(self, name):
        return (name, True) in self.listener.heard("StateChanged", "focused")

    def test_a_list_that_the_keyboard_comes_to_tells_its_current_row(self):
        self.open_chooser()
        first = self.chooser.find("tree item").name
        eventually(lambda: self.has_heard(first), f"“{first}” to be told")
        self.listener.note_names()
        self.hands.press("shift+Tab")
        eventually(lambda: self.has_heard("File System"), "the place to be told")

    def test_a_place_is_not_told_while_another_list_has_the_keyboard(self):
        self.open_chooser()
        self.listener.note_names()
        self.hands.press("alt+Home")
        first = eventually(lambda: self.chooser.find("tree item", "config"), "the folder").name
        eventually(lambda: self.has_heard(first), "the first row to be told")
        eventually(lambda: self.chooser.find("list item", "Home").has("selected"), "the place to be selected")

        self.assertFalse(self.has_heard("Home"))
        self.assertFalse(self.has_heard("File System"))

    def test_a_folder_that_the_list_goes_to_is_announced_and_describes_the_list(self):
        self.open_chooser()
        self.assertEqual(self.chooser.find("tree", "Files").description, "/")
        self.listener.note_names()
        self.hands.press("alt+Home")
        home = os.path.basename(self.home.folder)
        eventually(lambda: self.listener.announced() == [home], "the folder to be announced")
        self.assertEqual(self.chooser.find("tree", "Files").description, self.home.folder)

    def test_a_tool_says_its_name_once_and_its_keys(self):
        self.open_chooser()
        described = {found.name: found.description for found in self.chooser.descendants()}
        self.assertEqual((described["Up"], described["Location"]), ("Alt+Up", "Ctrl+L"))

    def test_another_page_is_told_when_the_keyboard_is_beside_the_tabs(self):
        self.start()
        self.hands.press("Tab")
        eventually(lambda: self.window.focused().name == "Orvik Menu", "the menu button to have the keyboard")
        self.listener = self.listen(self.panel)
        for keys, tab in (("ctrl+Next", "Folders"), ("F1", "About")):
            if keys == "F1":
                self.hands.press("Tab")
                eventually(lambda: self.window.focused().name == "Orvik Menu", "the menu button to have it again")
                self.listener.note_names()
            self.hands.press(keys)
            eventually(lambda tab=tab: self.has_heard(tab), f"“{tab}” to be told")


if __name__ == "__main__":
    unittest.main()
