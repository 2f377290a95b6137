"""What is tested and pictured of moving and copying to a folder stands on this."""

import os
import signal

from gi.repository import Gio, GLib

from .action_window import ActionWindow
from .case import DesktopTestCase
from .deployment import EXTENSION
from .extension import INTERFACE, OBJECT, Companion, processes_of
from .notifications import Notifications
from .reading import Reader
from .suite import record

MOVE = "move-to-a-folder"
COPY = "copy-to-a-folder"


class TransferTestCase(Reader, DesktopTestCase):
    """A person whose files count, with a folder “to” among them that everything goes to."""

    def setUp(self):
        super().setUp()
        self.suite.write(menuArrayDic=record(), foldersArray=[self.home.files], foldersArraystate=[1])
        self.target = self.folder("to")
        os.symlink("/usr/bin/gdk-pixbuf-thumbnailer", os.path.join(self.home.programs, "gdk-pixbuf-thumbnailer"))
        self.addCleanup(self.end_actions)

    def start(self, notifications=True):
        Companion(self).start()
        self.notifications = Notifications(self) if notifications else None

    def end_actions(self):
        for action in (MOVE, COPY):
            for process in self.running(action):
                os.kill(process, signal.SIGKILL)

    def running(self, action):
        return processes_of(action, "HOME=" + self.home.folder)

    def folder(self, name):
        path = os.path.join(self.home.files, name)
        os.makedirs(path, exist_ok=True)
        return path

    def make(self, name, contents=b"new"):
        path = os.path.join(self.home.files, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(contents)
        return path

    def contents(self, folder=None):
        """Of every file below a folder, by their ways from it. What is kept for an undo is left out."""
        folder = folder or self.home.files
        found = {}
        for place, folders, names in os.walk(folder):
            folders[:] = [name for name in folders if not name.startswith(".orvik-menu-")]
            for name in names:
                path = os.path.join(place, name)
                with open(path, "rb") as file:
                    found[os.path.relpath(path, folder)] = file.read()
        return found

    def trashed(self):
        folder = os.path.join(self.home.data, "Trash", "files")
        return sorted(os.listdir(folder)) if os.path.isdir(folder) else []

    def ask(self, action, *paths, target=None):
        """Asks for it on the bus. A refusal is a GLib.Error."""
        options = {"target": GLib.Variant("ay", os.fsencode(target))} if target else {}
        arguments = GLib.Variant("(saaya{sv})", (action, [os.fsencode(path) for path in paths], options))
        self.bus.connection.call_sync(EXTENSION, OBJECT, INTERFACE, "Run", arguments, None, Gio.DBusCallFlags.NONE,
                                      60_000, None)

    def run_action(self, action, *paths, target=None):
        """The action's process, which is the last that was started."""
        before = self.running(action)
        self.ask(action, *paths, target=self.target if target is None else target)
        started, = set(self.running(action)) - set(before)
        self.action = ActionWindow(self, started)

    def open_window(self, action, *paths, title, **options):
        self.run_action(action, *paths, **options)
        self.window = self.action.active_window(title)

    def labels(self):
        return self.window.texts()

    def press(self, button):
        self.action.go_to(button, self.window)
        self.hands.press("Return")

    def buttons(self):
        return [button.name for button in self.window.all("push button")]

    def assertNothingElseIn(self, folder, *names):
        self.assertEqual(sorted(os.listdir(folder)), sorted(names))

    def conflict(self, action, name="name.txt"):
        """A file that is to go where another of its name is, and the question about it."""
        path = self.make("from/" + name)
        self.make("to/" + name, b"old content")
        self.open_window(action, path, title=f"There is a file “{name}” in “to” already.")
        return path
