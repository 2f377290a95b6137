"""A screen of its own, with a window manager."""

import os
import subprocess

from . import processes
from .sway import Compositor
from .waiting import eventually
from .windows import Hands, Windows

# A property of the root window.
_STARTED = "_ORVIK_WINDOW_MANAGER_STARTED"


def make_display(size):
    """Of the kind that is tested: X11, or Wayland where the environment says so."""
    is_wayland = os.environ.get("ORVIK_TEST_DISPLAY") == "wayland"
    return Compositor(size) if is_wayland else VirtualDisplay(size)


class VirtualDisplay:
    """Runs from its making to close()."""

    def __init__(self, size=(1280, 1024)):
        readable, writable = os.pipe()
        # Else it starts anew, and drops those who are just connecting, whenever its last client leaves.
        keep = "-noreset"
        # On a machine with much to do a key may be down for long.
        no_repeats = "-r"
        self._server = processes.start(
            ["Xvfb", "-displayfd", str(writable), "-screen", "0", "%dx%dx24" % size, "-nolisten", "tcp", keep,
             no_repeats],
            pass_fds=[writable], stderr=subprocess.DEVNULL)
        os.close(writable)
        # The server picks a free number and tells it when it is ready.
        with os.fdopen(readable) as numbers:
            self.name = ":" + numbers.readline().strip()
        # Without a home, so that its bindings are those that it came with.
        environment = {"DISPLAY": self.name, "HOME": "/nonexistent", "PATH": "/usr/bin:/bin"}
        # A window that is there before the window manager has started is looked after, but not given the keyboard.
        tell_start = f"xprop -root -format {_STARTED} 8s -set {_STARTED} yes"
        self._window_manager = processes.start(["openbox", "--startup", tell_start],
                                               env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        eventually(self._is_managed, "the window manager")
        self.hands = Hands(self.name)
        self.windows = Windows(self.name)

    @property
    def environment(self):
        """How programs find it, as its log-in tells them."""
        return {"DISPLAY": self.name}

    def _is_managed(self):
        answer = subprocess.run(["xprop", "-display", self.name, "-root", _STARTED], capture_output=True, text=True,
                                check=False, timeout=20)
        return "yes" in answer.stdout

    def picture_of(self, extents):
        """What is to be seen there, as bytes to compare."""
        answer = subprocess.run(
            ["import", "-display", self.name, "-window", "root", "-crop",
             f"{extents.width}x{extents.height}+{extents.x}+{extents.y}", "rgb:-"],
            capture_output=True, check=True, timeout=20)
        return answer.stdout

    def save_picture(self, path):
        subprocess.run(["import", "-display", self.name, "-window", "root", path], check=True, timeout=20)

    def close(self):
        processes.end(self._window_manager)
        processes.end(self._server)
