"""What is tested in each of the five file managers, and what those tests stand on."""

import os
import signal
import subprocess
import sys

from . import garbage_companion, processes
from .action_stand_in import ActionCall, calls_of, install_actions
from .buses import SessionBus, call
from .case import DesktopTestCase
from .deployment import EXTENSION
from .extension import MENU_INTERFACE, OBJECT, Companion, processes_of
from .suite import TITLES, record
from .waiting import eventually

SUBMENU = "Orvik Menu"

OF_A_FILE = ["Open Terminal", "Open System Preferences", "Copy path to Clipboard", "Send via Mail",
             "Move to a folder", "Copy to a folder", "Open New Finder Window", "Hide / Unhide item",
             "Configure Orvik Menu Settings"]
OF_SEVERAL = ["Open System Preferences", "Copy path to Clipboard", "Move to a folder", "Copy to a folder",
              "Hide / Unhide item", "Find Duplicate Files", "Find Duplicate Photos", "Configure Orvik Menu Settings"]
OF_A_BACKGROUND = ["Open Terminal", "Open System Preferences", "Create New Text File", "Copy path to Clipboard",
                   "Open New Finder Window", "Find Duplicate Files", "Find Duplicate Photos",
                   "Configure Orvik Menu Settings", "Add Folders"]

# Left of the text; and the colours that are there without an icon.
ICON_WIDTH = 24
EDGES = 3
# How long a file manager may take to end by itself.
A_WHILE = 3.0


class FileManagerTestCase(DesktopTestCase):
    """A person has a folder that counts and one that does not, the companion, and a file manager with our module."""

    file_manager = None
    # What XDG_CURRENT_DESKTOP says where it is at home.
    desktop = ""

    def setUp(self):
        super().setUp()
        self.work = self.make_files("work", "letter.txt")
        self.elsewhere = self.make_files("elsewhere", "letter.txt")
        self.companion = Companion(self)
        self.addCleanup(self.end_panels)

    def end_panels(self):
        """Those that actions have started."""
        for process in processes_of("orvik-menu", "HOME=" + self.home.folder):
            os.kill(process, signal.SIGTERM)

    @property
    def environment(self):
        return {**super().environment, "XDG_CURRENT_DESKTOP": self.desktop}

    def make_files(self, folder, *names):
        """A folder among the person's files, with these in it."""
        path = os.path.join(self.home.files, folder)
        os.mkdir(path)
        for name in names:
            with open(os.path.join(path, name), "wb"):
                pass
        return path

    def settings(self, **changes):
        """Writes the settings as another program does. Those that are not named are as they come."""
        self.suite.write(**{"menuArrayDic": record(), "foldersArray": [self.work], "foldersArraystate": [1], **changes})

    def start(self, **changes):
        self.settings(**changes)
        self.companion.start()
        self.start_file_manager()

    def start_file_manager(self):
        # pylint: disable-next=not-callable
        self.running = self.file_manager(self, self.home.files)

    def ours(self, menu):
        """Our entries, in their order."""
        return [title for title in menu.titles() if title in TITLES or title == SUBMENU]

    def read_menu(self):
        """Opens the menu of the selected items and closes it. Answers our titles."""
        menu = self.running.menu()
        # The file manager's own are there whatever ours are.
        self.assertGreater(len(menu.titles()), len(self.ours(menu)))
        titles = self.ours(menu)
        menu.close()
        return titles

    def assertMenu(self, *titles):
        """The menu of the selected items has ours, or comes to have them, without another selection."""
        self.assertEventuallyEqual(self.read_menu, list(titles))

    def read_submenu(self, title):
        """Opens the menu of the selected items and closes it. Answers the titles below one of ours."""
        menu = self.running.menu()
        titles = [entry.title for entry in menu.entry(title).entries]
        menu.close()
        return titles

    def letter(self):
        return os.path.join(self.work, "letter.txt")

    def clipboard(self):
        """What was copied last. It is asked of the file manager, which still has it."""
        answer = subprocess.run(["xclip", "-display", self.display.name, "-selection", "clipboard", "-o"],
                                capture_output=True, check=False, timeout=20, env={"PATH": "/usr/bin:/bin"})
        return answer.stdout


class FileManagerCases:
    """The cases that all five have."""

    def test_items_in_active_folders_alone_have_the_actions(self):
        inner = self.make_files("work/inner", "deep.txt")
        self.start(foldersArray=[self.work + "/", inner], foldersArraystate=[1, 0])

        self.running.select(self.letter())
        self.assertMenu(*OF_A_FILE)
        self.running.select(os.path.join(inner, "deep.txt"))
        self.assertMenu()
        self.running.select(os.path.join(self.elsewhere, "letter.txt"))
        self.assertMenu()
        # A folder that is listed is no item of itself.
        self.running.select(self.work)
        self.assertMenu()

    def test_the_next_menu_is_as_the_settings_have_become(self):
        self.start()
        self.running.select(self.letter())
        self.assertMenu(*OF_A_FILE)
        panel = self.start_panel()
        self.hands.click(panel.main_window().find("check box", "Send via Mail").extents)
        without_mail = [title for title in OF_A_FILE if title != "Send via Mail"]
        eventually(lambda: self.suite.read()["menuArrayDic"] == record(TITLES.index("Send via Mail")), "the switch")
        panel.close()
        self.running.come_to_front()
        self.assertMenu(*without_mail)

        self.run_tool("orvik-defaults", "write", "suite", "showinSubMenu", "-bool", "true")
        self.assertMenu(SUBMENU)
        menu = self.running.menu()
        self.assertEqual([entry.title for entry in menu.entry(SUBMENU).entries], without_mail)
        menu.close()
        self.run_tool("orvik-defaults", "write", "suite", "showinSubMenu", "-bool", "false")
        self.settings(menuArrayDic=list(reversed(record())))
        self.assertMenu(*reversed(OF_A_FILE))

        self.run_tool("orvik-defaults", "write", "suite", "foldersArraystate", "-xml",
                      "<array><integer>0</integer></array>")
        self.assertMenu()

    def test_there_is_no_menu_while_the_companion_does_not_run(self):
        self.start()
        self.running.select(self.letter())
        self.assertMenu(*OF_A_FILE)

        self.companion.kill(signal.SIGKILL)
        self.assertMenu()
        self.companion.start()
        self.assertMenu(*OF_A_FILE)

    def test_the_background_and_several_items_have_what_applies_to_them(self):
        three = self.make_files("work/three", *(f"{number}.txt" for number in range(3)))
        many = self.make_files("work/many", *(f"{number}.txt" for number in range(2000)))
        self.start()

        for folder in three, many:
            self.running.select_all(folder)
            self.assertMenu(*OF_SEVERAL)
        menu = self.running.background_menu(three)
        self.assertEqual(self.ours(menu), OF_A_BACKGROUND)
        menu.close()
        # A folder that is listed has its own background.
        menu = self.running.background_menu(self.work)
        self.assertEqual(self.ours(menu), OF_A_BACKGROUND)
        menu.close()
        menu = self.running.background_menu(self.elsewhere)
        self.assertEqual(self.ours(menu), [])
        menu.close()

    def test_the_paths_that_are_copied_come_to_the_clipboard(self):
        names = ["it's $(one).txt", "-two %s.txt", "three ä 日本.txt"]
        several = self.make_files("work/several", *names)
        self.start(showinSubMenu=True)

        self.running.select(self.letter())
        self.running.menu().choose(SUBMENU, "Copy path to Clipboard")
        self.assertEventuallyEqual(self.clipboard, os.fsencode(self.letter()))
        self.running.select_all(several)
        self.running.menu().choose(SUBMENU, "Copy path to Clipboard")
        self.assertEventuallyEqual(lambda: sorted(self.clipboard().split(b"\n")),
                                   sorted(os.fsencode(os.path.join(several, name)) for name in names))

    def test_items_go_to_a_custom_folder_or_to_one_that_is_asked_for(self):
        move, copy, choose = "Move to a folder", "Copy to a folder", "Choose Folder…"
        installed = self.make_folder()
        programs = install_actions(self.programs, installed, "move-to-a-folder", "copy-to-a-folder")
        self.companion = Companion(self, programs)
        # Two of a name, and none in an active folder.
        one, two = (self.make_files(folder) for folder in ("elsewhere/same_name", "same_name"))
        letter = os.fsencode(self.letter())
        self.start(arrCustomFoldersUrls=[one, self.elsewhere, two, "none"])
        self.running.select(self.letter())
        self.assertMenu("Copy path to Clipboard", move, copy)

        folders = ["same_name (elsewhere)", "elsewhere", f"same_name ({os.path.basename(self.home.files)})", choose]
        menu = self.running.menu()
        for action in move, copy:
            self.assertEqual([entry.title for entry in menu.entry(action).entries], folders)
        menu.choose(move, folders[0])
        expected = [ActionCall(os.fsencode(one), [letter])]
        self.assertEventuallyEqual(lambda: calls_of(installed, "move-to-a-folder"), expected)
        self.running.menu().choose(move, choose)
        expected.append(ActionCall(None, [letter]))
        self.assertEventuallyEqual(lambda: calls_of(installed, "move-to-a-folder"), expected)

        self.run_tool("orvik-defaults", "write", "suite", "showinSubMenu", "-bool", "true")
        self.assertMenu(SUBMENU)
        self.running.menu().choose(SUBMENU, copy, folders[2])
        expected = [ActionCall(os.fsencode(two), [letter])]
        self.assertEventuallyEqual(lambda: calls_of(installed, "copy-to-a-folder"), expected)
        self.run_tool("orvik-defaults", "write", "suite", "showinSubMenu", "-bool", "false")
        self.run_tool("orvik-defaults", "delete", "suite", "arrCustomFoldersUrls")
        self.assertEventuallyEqual(lambda: self.read_submenu(copy), [])
        self.running.menu().choose(copy)
        expected.append(ActionCall(None, [letter]))
        self.assertEventuallyEqual(lambda: calls_of(installed, "copy-to-a-folder"), expected)

    def test_the_file_manager_outlives_a_companion_that_hangs(self):
        self.start()
        self.running.select(self.letter())
        self.assertMenu(*OF_A_FILE)
        process, = self.companion.processes()
        os.kill(process, signal.SIGSTOP)

        self.running.menu().choose("Configure Orvik Menu Settings")
        # The copy that it has serves on.
        self.assertMenu(*OF_A_FILE)
        self.running.menu().choose("Copy path to Clipboard")
        self.assertEventuallyEqual(self.clipboard, os.fsencode(self.letter()))
        os.kill(process, signal.SIGKILL)
        self.assertMenu()

    def test_the_file_manager_outlives_a_companion_that_talks_nonsense(self):
        nonsense = processes.start([sys.executable, "-B", garbage_companion.__file__, EXTENSION, OBJECT,
                                    MENU_INTERFACE],
                                   env=self.environment)
        self.addCleanup(processes.end, nonsense)
        eventually(lambda: self.bus.has_owner(EXTENSION), "the nonsense")
        self.start_file_manager()

        self.running.select(self.letter())
        for _ in range(3):
            self.read_menu()
        processes.end(nonsense)
        self.settings()
        self.companion.start()
        self.assertMenu(*OF_A_FILE)

    def end_without_bus(self, with_module):
        """How a file manager ends whose session bus goes: its exit status, or nothing where it does not."""
        bus = SessionBus(os.path.join(self.make_folder(), "bus"), {
            "DISPLAY": self.display.name, "HOME": self.home.folder, "PATH": "/usr/bin:/bin",
            "XDG_RUNTIME_DIR": self.home.runtime})
        self.bus = bus
        self.settings()
        if with_module:
            self.companion.start()
        running = self.file_manager(self, self.home.files, with_module)
        running.select(self.letter())
        running.menu().close()
        bus.end()
        try:
            running.process.wait(A_WHILE)
        except subprocess.TimeoutExpired:
            pass
        return running.process.poll()

    def test_without_a_bus_it_goes_on_or_ends_as_without_our_module(self):
        end = self.end_without_bus(with_module=True)
        if end is not None:
            self.assertEqual(end, self.end_without_bus(with_module=False))


class IconCases:
    """Of those that show icons in a menu."""

    def colours_beside(self, title):
        """The number of colours that are to be seen where an entry's icon would be."""
        menu = self.running.menu()
        # Away from what would look different below the pointer.
        picture = self.display.picture_of(menu.entry(title).control.extents._replace(width=ICON_WIDTH))
        menu.close()
        return len({picture[at:at + 3] for at in range(0, len(picture), 3)})

    def test_an_icon_is_beside_each_entry_where_that_is_wanted(self):
        self.start(showmenuicon=True)
        self.running.select(self.letter())
        self.assertMenu(*OF_A_FILE)

        for title in OF_A_FILE[1:]:
            self.assertGreater(self.colours_beside(title), EDGES, title)
        self.run_tool("orvik-defaults", "write", "suite", "showmenuicon", "-bool", "false")
        eventually(lambda: self.colours_beside(OF_A_FILE[1]) <= EDGES, "the icons to go")
