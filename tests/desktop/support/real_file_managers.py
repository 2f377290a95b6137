"""The file managers that show the menu: real ones, driven from outside as a person drives them."""

import glob
import os
import re
import shutil
import subprocess

from gi.repository import GLib

from . import accessibility, processes
from .buses import call
from .menus import Gtk3Menus, Gtk4Menus, Qt5Menus, below
from .mounts import laid_over, small_disk
from .waiting import GaveUp, eventually, give_time

_NAME = "org.freedesktop.FileManager1"
_PATH = "/org/freedesktop/FileManager1"

# How long it has between two questions.
_REACTION = 0.25
# How long a window has to go before the keys are pressed again.
_CLOSING = 2.0


class FileManager:
    """One run of a file manager, with or without our module in it, from its making to close()."""

    command = ()
    # Our module's file, and the metadata that names the folder where the file manager looks for it.
    module = ""
    module_folder = ()
    menu_key = "shift+F10"
    toolkit = Gtk3Menus
    # The role of what tells the selection, and roles that it is not looked for in, some of which hold thousands.
    status_role = "statusbar"
    item_views = {"layered pane", "tree table", "menu bar"}
    # Whether asking for a folder opens another window, even where one shows it.
    opens_windows = True

    def __init__(self, case, folder, with_module=True):
        self._case = case
        self._hands = case.hands
        # Where the build leaves the modules.
        self._modules = os.path.join(case.programs, os.pardir, "lib", "orvik-menu")
        self._bus = case.bus
        self.accessibility_address = case.bus.accessibility_address
        if case.installed:
            wrapper, variables = ([] if with_module else self._without_installed_module()), {}
        else:
            wrapper, variables = self._with_module() if with_module else ([], {})
        environment = {
            **case.environment,
            "AT_SPI_BUS_ADDRESS": self.accessibility_address,
            "QT_ACCESSIBILITY": "1",
            "PATH": f"{case.home.programs}:/usr/bin:/bin",
            # No settings but those that it comes with, and no services of the desktop.
            "GSETTINGS_BACKEND": "memory",
            "GIO_USE_VFS": "local",
            # Where the processor draws, it has better things to do than to move what is drawn.
            "GSK_RENDERER": "cairo",
            # With the icons that the build leaves beside its programs.
            "XDG_DATA_DIRS": f"{os.path.join(case.programs, os.pardir, 'share')}:/usr/local/share:/usr/share",
            **variables,
        }
        for toolkit, setting in (("gtk-3.0", "gtk-menu-images=true"), ("gtk-4.0", "gtk-enable-animations=false")):
            settings = os.path.join(case.home.configuration, toolkit)
            os.makedirs(settings, exist_ok=True)
            with open(os.path.join(settings, "settings.ini"), "w", encoding="ascii") as file:
                file.write(f"[Settings]\n{setting}\n")
        # Before it starts, so that it knows from the first who listens.
        self._menus = self.toolkit(self, self._hands)
        case.addCleanup(self._menus.close)
        self._output_path = os.path.join(case.make_folder(), "output")
        with open(self._output_path, "wb") as output:
            self.process = processes.start([*wrapper, *self.command, folder], env=environment, stdout=output,
                                           stderr=subprocess.STDOUT)
        case.addCleanup(self.close)
        eventually(self.windows, f"a window of {self.command[0]}")
        eventually(lambda: case.bus.has_owner(_NAME), f"{self.command[0]} to show items")

    def _with_module(self):
        """What starts the command with our module where it looks for modules, and variables for it."""
        library, variable = self.module_folder
        folder = subprocess.run(["pkg-config", f"--variable={variable}", library], capture_output=True, text=True,
                                check=True, timeout=20).stdout.strip()
        # The folder itself may not be there.
        system = os.path.dirname(os.path.dirname(folder))
        own = self._case.make_folder()
        target = os.path.join(own, os.path.relpath(folder, system))
        os.makedirs(target)
        shutil.copy(os.path.join(self._modules, self.module), target)
        return laid_over(own, system), {}

    def _without_installed_module(self):
        """What starts the command with nothing in the folder that our module is installed in."""
        module, = glob.glob(f"{self._case.installed}/lib/**/{self.module}", recursive=True)
        return small_disk(os.path.dirname(module), "64k")

    def close(self):
        processes.end(self.process)
        # The next one is to have it.
        eventually(lambda: not self._bus.has_owner(_NAME), "the file manager to go")

    def is_running(self):
        return self.process.poll() is None

    def output(self):
        """What it has said on its standard output and error so far."""
        with open(self._output_path, encoding="utf-8", errors="replace") as file:
            return file.read()

    def windows(self):
        """Its windows, the topmost last. Fails where it has ended by itself."""
        if not self.is_running():
            raise AssertionError(f"{self.command[0]} has ended, {self.process.returncode}: {self.output()[-2000:]}")
        return self._case.windows.of_process(self.process.pid)

    def application(self):
        """The root of its accessibility tree."""
        return accessibility.application(self.accessibility_address, self.process.pid)

    def _show(self, method, path, folder, status=""):
        """Asks for a folder or an item in it, until the status is as it is to be and the window is the only one."""
        before = self.windows()
        call(self._bus.connection, _NAME, _PATH, _NAME, method,
             GLib.Variant("(ass)", ([GLib.filename_to_uri(path, None)], "")))
        old = set(before) if self.opens_windows else set()
        window = eventually(lambda: [each for each in self.windows() if each not in old and self._shows(each, folder)],
                            f"a window of {folder}")[-1]
        self._to_front(window)
        self.wait_for_status(status)
        # Not before: a window that loads does not like another one to go.
        for other in set(self.windows()) - {window}:
            self._close(other)
        self._to_front(window)

    def _close(self, window):
        """As a person does, who presses the keys again where a busy window has not taken them."""

        def is_gone():
            return window not in self.windows()

        def is_closed():
            try:
                self._to_front(window)
                self._hands.press("alt+F4")
                return eventually(is_gone, "the keys to be taken", _CLOSING)
            except GaveUp:
                return is_gone()

        eventually(is_closed, "the old window to go")

    def _shows(self, window, folder):
        return self._case.windows.title(window).startswith(os.path.basename(folder))

    def _to_front(self, window):
        self._hands.activate(window)
        eventually(lambda: self._case.windows.active() == window, "the window to have the keyboard")

    def come_to_front(self):
        """As a person brings the topmost of its windows there."""
        self._to_front(self.windows()[-1])

    def _status(self):
        active = [each for each in self.application().children if each.has("active")]
        if not active:
            raise LookupError(f"no window of {self.command[0]} has the keyboard")
        window = active[0]
        return [control.name for control, role in below(window, self.item_views) if role == self.status_role]

    def wait_for_status(self, pattern, *keys):
        """Waits for what the window in front tells of its items: how many there are, or which are selected.

        Keys are pressed, again where the window was not ready for them.
        """

        def is_so():
            # Whoever is asked all the time has no time for anything else.
            give_time(_REACTION)
            if any(re.search(pattern, text) for text in self._status()):
                return True
            if keys:
                self._hands.press(*keys)
            return False

        try:
            eventually(is_so, f"“{pattern}” to be selected")
        except GaveUp as gave_up:
            raise GaveUp(f"{gave_up}, not {self._status()}") from None

    def select(self, path):
        """Shows an item selected in its folder."""
        self._show("ShowItems", path, os.path.dirname(path), re.escape(os.path.basename(path)))

    def select_all(self, folder):
        """Shows a folder and selects everything in it: two files or more."""
        names = os.listdir(folder)
        self._show("ShowItems", os.path.join(folder, names[0]), folder)
        self._enter_view()
        number = f"{len(names):,}".replace(",", r"\D?")
        # What does not fit is shortened in the middle.
        self.wait_for_status(rf"(?i)(^sel.*\b{number}\b|\b{number}\b.*lected)", "ctrl+a")

    def menu(self):
        """Opens the menu of the selected items."""
        self._hands.press(self.menu_key)
        return self._menus.opened()

    def menu_at(self, x, y):
        """Opens the menu of what is there in the window in front."""
        place = self._case.windows.place(self._case.windows.active())
        self._hands.click_right(accessibility.Extents(place.x + x, place.y + y, 1, 1))
        return self._menus.opened()

    def background_menu(self, folder):
        """Shows a folder and opens the menu of its background. There is nothing where the pointer clicks."""
        self._show("ShowFolders", folder, folder)
        self._hands.click_right(self._free_place())
        return self._menus.opened()

    def _free_place(self):
        """A place in the view of the window in front that has nothing in it where the folder has few items."""
        place = self._case.windows.place(self._case.windows.active())
        return accessibility.Extents(place.x + place.width * 6 // 10, place.y + place.height * 7 // 10, 1, 1)

    def _enter_view(self):
        """Sees to it that the view has the keyboard."""


class Nautilus(FileManager):
    command = ("nautilus", "--new-window")
    module = "liborvik-menu-nautilus.so"
    module_folder = ("libnautilus-extension-4", "extensiondir")
    toolkit = Gtk4Menus
    status_role = "label"
    item_views = {"grid", "tool bar"}
    opens_windows = False

    def _enter_view(self):
        # It selects items in a view that has not the keyboard.
        self._hands.click(self._free_place())


class Nemo(FileManager):
    command = ("nemo",)
    module = "liborvik-menu-nemo.so"
    module_folder = ("libnemo-extension", "extensiondir")


class Caja(FileManager):
    command = ("caja", "--no-desktop")
    module = "liborvik-menu-caja.so"
    module_folder = ("libcaja-extension", "extensiondir")


class Thunar(FileManager):
    command = ("thunar",)
    module = "liborvik-menu-thunar.so"
    module_folder = ("thunarx-3", "extensionsdir")


class Dolphin(FileManager):
    command = ("dolphin",)
    module = "orvik-menu-dolphin.so"
    menu_key = "Menu"
    toolkit = Qt5Menus
    status_role = "label"
    item_views = {"table", "list", "menu bar"}
    opens_windows = False

    def __init__(self, case, folder, with_module=True):
        # Else every folder that it is asked for is another process's.
        with open(os.path.join(case.home.configuration, "dolphinrc"), "w", encoding="ascii") as file:
            file.write("[General]\nOpenExternallyCalledFolderInNewTab=true\n")
        super().__init__(case, folder, with_module)
        name = f"org.kde.dolphin-{self.process.pid}"
        eventually(lambda: case.bus.has_owner(name), name)

    def _with_module(self):
        return [], {"QT_PLUGIN_PATH": self._modules}
