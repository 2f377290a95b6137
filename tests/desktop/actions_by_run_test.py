"""What each action does to items with hostile names, asked for on the bus as a script does."""

import os
import signal
import unittest
from urllib.parse import unquote_to_bytes

from gi.repository import Gio, GLib

from support.case import DesktopTestCase
from support.deployment import EXTENSION
from support.extension import INTERFACE, OBJECT, Companion, processes_of
from support.hostile_names import NAMES
from support.notifications import Notifications
from support.recorder import install_recorder
from support.suite import record
from support.waiting import eventually

PNG = b"\x89PNG\r\n\x1a\n"


def is_text(name):
    try:
        return bool(name.decode())
    except UnicodeDecodeError:
        return False


class ActionsByRun(DesktopTestCase):
    """Each item lies in a folder of its own, so that nothing stands beside it."""

    def setUp(self):
        super().setUp()
        self.folder = os.fsencode(self.home.files)
        self.suite.write(menuArrayDic=record(), foldersArray=[self.home.files], foldersArraystate=[1])
        self.addCleanup(self.end_panels)
        Companion(self).start()

    @property
    def environment(self):
        return {**super().environment, "XDG_CURRENT_DESKTOP": "MATE"}

    def panels(self):
        return processes_of("orvik-menu", "HOME=" + self.home.folder)

    def end_panels(self):
        for process in self.panels():
            os.kill(process, signal.SIGKILL)
        eventually(lambda: not self.panels(), "the panel to go")

    def run_action(self, action, *paths, **options):
        """The name of the error after the interface's; nothing where there is none."""
        arguments = GLib.Variant("(saaya{sv})", (action, paths, options))
        try:
            self.bus.connection.call_sync(EXTENSION, OBJECT, INTERFACE, "Run", arguments, None,
                                          Gio.DBusCallFlags.NONE, 30_000, None)
        except GLib.Error as error:
            return Gio.DBusError.get_remote_error(error).removeprefix(INTERFACE + ".Error.")
        return None

    def background(self, action, path):
        return self.run_action(action, path, background=GLib.Variant("b", True))

    def each(self, make):
        """Every hostile name, and the path of what `make` makes there."""
        for number, name in enumerate(NAMES):
            path = os.path.join(self.folder, str(number).encode(), name)
            os.mkdir(os.path.dirname(path))
            make(path)
            yield name, path
            # No shell has read a name.
            self.assertFalse(os.path.exists(os.path.join(self.home.folder, "pwned")))

    @staticmethod
    def make_file(path, contents=b"contents"):
        with open(path, "wb") as file:
            file.write(contents)

    def last(self, calls, number):
        """The last of so many calls."""
        return eventually(lambda: len(calls()) == number and calls()[-1], "the call")

    def test_a_terminal_opens_in_the_folder(self):
        calls = install_recorder(self.home, "xdg-terminal-exec")
        for number, (_, path) in enumerate(self.each(os.mkdir)):
            self.assertIsNone(self.run_action("open-terminal", path))
            call = self.last(calls, 2 * number + 1)
            self.assertEqual((call.folder, call.arguments), (path, []))
            self.assertIsNone(self.background("open-terminal", path))
            self.assertEqual(self.last(calls, 2 * number + 2).folder, path)

    def test_the_preferences_open(self):
        calls = install_recorder(self.home, "mate-control-center")
        for number, (_, path) in enumerate(self.each(self.make_file)):
            self.assertIsNone(self.run_action("open-system-preferences", path))
            self.assertEqual(self.last(calls, number + 1).arguments, [])

    def test_a_picture_becomes_the_wallpaper(self):
        calls = install_recorder(self.home, "gsettings")
        for number, (_, path) in enumerate(self.each(lambda path: self.make_file(path, PNG))):
            self.assertIsNone(self.run_action("set-as-wallpaper", path))
            value = path.replace(b"\\", b"\\\\").replace(b"'", b"\\'")
            self.assertEqual(self.last(calls, number + 1).arguments,
                             [b"set", b"org.mate.background", b"picture-filename", b"'" + value + b"'"])

    def test_a_new_text_file_is_made(self):
        for _, path in self.each(os.mkdir):
            self.assertIsNone(self.run_action("create-new-text-file", path))
            self.assertIsNone(self.background("create-new-text-file", path))
            self.assertEqual(sorted(os.listdir(path)), [b"New Text File 2.txt", b"New Text File.txt"])

    def test_a_path_is_copied_by_the_file_manager_alone(self):
        for _, path in self.each(self.make_file):
            self.assertEqual(self.run_action("copy-path-to-clipboard", path), "DoesNotApply")

    def test_an_item_waits_for_the_panel_to_send_it(self):
        for name, path in self.each(self.make_file):
            if is_text(name):
                self.assertIsNone(self.run_action("send-via-mail", path))
                # The panel takes the request away once it has shown it.
                eventually(self.panels, "the panel")
                eventually(lambda: "Attach to Mail" in map(self.windows.title, self.windows.stacking()), "the chooser")
            else:
                self.assertEqual(self.run_action("send-via-mail", path), "Failed")
                self.assertNotIn("mailAttachPath", self.suite.read())
                self.assertEqual(self.panels(), [])
            self.end_panels()

    def test_a_window_opens_on_the_folder(self):
        calls = install_recorder(self.home, "xdg-open")
        for number, (_, path) in enumerate(self.each(os.mkdir)):
            self.assertIsNone(self.run_action("open-new-finder-window", path))
            address, = self.last(calls, number + 1).arguments
            self.assertRegex(address, rb"^file:///[!-~]*$")
            self.assertEqual(unquote_to_bytes(address), b"file://" + path)

    def test_an_item_is_hidden_and_shown_again(self):
        for name, path in self.each(self.make_file):
            hidden = os.path.join(os.path.dirname(path), b".hidden")
            self.make_file(hidden, b"other \xff\n")
            if b"\n" in name:
                self.assertEqual(self.run_action("hide-unhide-item", path), "Failed")
            else:
                self.assertIsNone(self.run_action("hide-unhide-item", path))
                self.assertEqual(self.contents(hidden), b"other \xff\n" + name + b"\n")
                self.assertIsNone(self.run_action("hide-unhide-item", path))
            self.assertEqual(self.contents(hidden), b"other \xff\n")

    @staticmethod
    def contents(path):
        with open(path, "rb") as file:
            return file.read()

    def test_the_panel_opens(self):
        for _, path in self.each(self.make_file):
            self.assertIsNone(self.run_action("configure-orvik-menu-settings", path))
            self.assertEqual(len(eventually(self.panels, "the panel")), 1)

    def test_folders_are_added(self):
        added = []
        for name, path in self.each(os.mkdir):
            if is_text(name):
                added.append(path.decode())
                self.assertIsNone(self.run_action("add-folders", path))
                self.assertIsNone(self.background("add-folders", path))
            else:
                self.assertEqual(self.run_action("add-folders", path), "Failed")
            self.assertEqual(self.suite.read().get("arrCustomFoldersUrls", []), added)

    def goes(self, action):
        """Has each item go to a folder of a hostile name. Gives where it was and where it is to be."""
        notifications = Notifications(self)
        for number, (name, path) in enumerate(self.each(self.make_file)):
            target = os.path.join(self.folder, b"to", str(number).encode(), name)
            os.makedirs(target)
            self.assertIsNone(self.run_action(action, path, target=GLib.Variant("ay", target)))
            notifications.dismiss(notifications.only())
            # It stays until then, and nothing else is left.
            self.assertEqual(os.listdir(target), [name])
            self.assertEqual(self.contents(os.path.join(target, name)), b"contents")
            yield path
        eventually(lambda: not processes_of(action, "HOME=" + self.home.folder), "the actions to end")

    def test_an_item_is_moved_to_a_folder(self):
        for path in self.goes("move-to-a-folder"):
            self.assertFalse(os.path.lexists(path))

    def test_an_item_is_copied_to_a_folder(self):
        for path in self.goes("copy-to-a-folder"):
            self.assertEqual(self.contents(path), b"contents")

    def test_several_items_are_hidden_at_once(self):
        paths = [path for name, path in self.each(self.make_file) if b"\n" not in name]
        self.assertIsNone(self.run_action("hide-unhide-item", *paths))
        for path in paths:
            self.assertEqual(self.contents(os.path.join(os.path.dirname(path), b".hidden")),
                             os.path.basename(path) + b"\n")


if __name__ == "__main__":
    unittest.main()
