"""Windows as the window manager knows them, and the hands of a person: pointer and keys."""

import re
import subprocess

from .accessibility import Extents

_TIMEOUT = 20


class Hands:
    """Pointer and keyboard of one display."""

    def __init__(self, display):
        self._display = display

    def _xdotool(self, *arguments):
        subprocess.run(["xdotool", *map(str, arguments)], env={"DISPLAY": self._display, "PATH": "/usr/bin:/bin", "LANG": "C.UTF-8"},
                       check=True, timeout=_TIMEOUT)

    def activation_token(self):
        """A proof that a person wants to see a window. Window managers ask for none."""
        return ""

    def click(self, extents):
        """A click of the first button in the middle of `extents`."""
        self._xdotool("mousemove", extents.x + extents.width // 2, extents.y + extents.height // 2, "click", 1)

    def click_right(self, extents):
        """A click of the button that opens menus."""
        self.move_to(extents)
        self._xdotool("click", 3)

    def double_click(self, extents):
        self._xdotool("mousemove", extents.x + extents.width // 2, extents.y + extents.height // 2, "click",
                      "--repeat", 2, "--delay", 60, 1)

    def press(self, *keys):
        """One key or combination after the other, for example "Tab" or "ctrl+q"."""
        self._xdotool("key", "--clearmodifiers", *keys)

    def type(self, text):
        self._xdotool("type", "--clearmodifiers", "--delay", 1, "--", text)

    def move_to(self, extents):
        """Moves the pointer to the middle of `extents`."""
        self._xdotool("mousemove", extents.x + extents.width // 2, extents.y + extents.height // 2)

    def press_button(self, extents):
        """The first button goes down in the middle of `extents` and stays so."""
        self.move_to(extents)
        self._xdotool("mousedown", 1)

    def let_button_go(self):
        self._xdotool("mouseup", 1)

    def scroll_down(self, extents, times):
        """Turns the wheel over the middle of `extents`."""
        self.move_to(extents)
        self._xdotool("click", "--repeat", times, "--delay", 20, 5)

    def place(self, window, x, y):
        self._xdotool("windowmove", window, x, y)

    def resize(self, window, width, height):
        self._xdotool("windowsize", window, width, height)

    def iconify(self, window):
        self._xdotool("windowminimize", window)

    def activate(self, window):
        self._xdotool("windowactivate", window)


class Windows:
    """The windows that the window manager of one display looks after, by their numbers."""

    def __init__(self, display):
        self._display = display

    def _property(self, name, *target):
        answer = subprocess.run(["xprop", "-display", self._display, *target, name], capture_output=True, text=True,
                                check=False, timeout=_TIMEOUT)
        return answer.stdout

    def active(self):
        """The window that has the keyboard; 0 for none."""
        found = re.search(r"0x[0-9a-f]+", self._property("_NET_ACTIVE_WINDOW", "-root"))
        return int(found[0], 16) if found else 0

    def stacking(self):
        """From the lowest to the topmost."""
        return [int(number, 16)
                for number in re.findall(r"0x[0-9a-f]+", self._property("_NET_CLIENT_LIST_STACKING", "-root"))]

    def of_process(self, process_id):
        """Those of one process, in the order of stacking."""
        return [window for window in self.stacking()
                if self._property("_NET_WM_PID", "-id", str(window)).split()[-1:] == [str(process_id)]]

    def title(self, window):
        found = re.search(r'= "(.*)"', self._property("_NET_WM_NAME", "-id", str(window)))
        return found[1] if found else ""

    def size(self, window):
        """Width and height in the screen's pixels, without the frame."""
        place = self.place(window)
        return place.width, place.height

    def place(self, window):
        """Where it lies on the screen, without the frame."""
        answer = subprocess.run(["xwininfo", "-display", self._display, "-id", str(window)], capture_output=True,
                                text=True, check=True, timeout=_TIMEOUT).stdout
        return Extents(*(int(re.search(rf"{name}: +(-?\d+)", answer)[1])
                         for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")))

    def is_iconified(self, window):
        return "_NET_WM_STATE_HIDDEN" in self._property("_NET_WM_STATE", "-id", str(window))
