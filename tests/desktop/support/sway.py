"""A Wayland compositor of its own, without hardware, and the windows as it knows them."""

import glob
import json
import os
import shutil
import socket
import struct
import subprocess
import tempfile

from . import accessibility, processes
from .accessibility import Extents
from .waiting import eventually
from .wayland_hands import WaylandHands

# Windows have the sizes that they ask for, as on other desktops, and the keyboard is where a person has put it. On a
# machine with much to do a key may be down for long.
_CONFIGURATION = """\
xwayland disable
output * resolution {width}x{height} position 0 0 scale {scale}
default_border none
default_floating_border none
for_window [title=".*"] floating enable
focus_on_window_activation focus
focus_follows_mouse no
mouse_warping none
input * repeat_rate 0
bindsym Mod1+F4 kill
"""

# It does not run as root, and needs to own nothing but its folder.
_NOBODY = 65534
_WITHOUT_ROOT = ["setpriv", f"--reuid={_NOBODY}", f"--regid={_NOBODY}", "--clear-groups",
                 "--pdeathsig=TERM", "--"]

_MAGIC = b"i3-ipc"
_COMMAND = 0
_GET_TREE = 4
_TIMEOUT = 20


class Compositor:
    """Runs from its making to close()."""

    def __init__(self, size=(1280, 1024), scale=1):
        self.size = size
        self._folder = tempfile.mkdtemp(prefix="orvik-sway-")
        configuration = os.path.join(self._folder, "config")
        with open(configuration, "w", encoding="ascii") as file:
            file.write(_CONFIGURATION.format(width=size[0] * scale, height=size[1] * scale, scale=scale))
        self._control = os.path.join(self._folder, "control")
        environment = {
            "HOME": "/nonexistent", "PATH": "/usr/bin:/bin", "XDG_RUNTIME_DIR": self._folder, "SWAYSOCK": self._control,
            "WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
        command = ["sway", "--config", configuration]
        if os.geteuid() == 0:
            os.chown(self._folder, _NOBODY, _NOBODY)
            command = _WITHOUT_ROOT + command
        self._process = processes.start(command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        eventually(self._outputs, "the compositor")
        self._socket_path, = (path for path in glob.glob(self._folder + "/wayland-*") if not path.endswith(".lock"))
        # It may be entered without root's privileges, as any log-in's.
        for path in (self._folder, self._socket_path):
            os.chown(path, os.geteuid(), os.getegid())
        self.hands = WaylandHands(self._socket_path, self)
        self.windows = SwayWindows(self)
        accessibility.place_of_window = self.windows.place_of_sized

    @property
    def environment(self):
        """How programs find it, as its log-in tells them."""
        return {"WAYLAND_DISPLAY": self._socket_path, "XDG_SESSION_TYPE": "wayland"}

    def _ask(self, kind, text=""):
        with socket.socket(socket.AF_UNIX, socket.SOCK_STREAM) as connection:
            connection.settimeout(_TIMEOUT)
            connection.connect(self._control)
            connection.sendall(_MAGIC + struct.pack("=II", len(text), kind) + text.encode())
            with connection.makefile("rb") as answer:
                length, _ = struct.unpack("=II", answer.read(len(_MAGIC) + 8)[len(_MAGIC):])
                return json.loads(answer.read(length))

    def _outputs(self):
        return [each for each in self.tree()["nodes"] if each["name"] != "__i3"]

    def command(self, text):
        failed = [answer for answer in self._ask(_COMMAND, text) if not answer["success"]]
        if failed:
            raise AssertionError(failed)

    def tree(self):
        return self._ask(_GET_TREE)

    def _grim(self, *arguments):
        return subprocess.run(["grim", *arguments], check=True, capture_output=True, timeout=_TIMEOUT,
                              env={**self.environment, "XDG_RUNTIME_DIR": self._folder}).stdout

    def picture_of(self, extents):
        """What is to be seen there, as bytes to compare."""
        where = f"{extents.x},{extents.y} {extents.width}x{extents.height}"
        return self._grim("-t", "ppm", "-g", where, "-")

    def save_picture(self, path):
        self._grim(path)

    def close(self):
        accessibility.place_of_window = None
        self.hands.close()
        processes.end(self._process)
        shutil.rmtree(self._folder)


class SwayWindows:
    """The windows of a compositor, by its numbers for them."""

    def __init__(self, compositor):
        self._compositor = compositor

    def _all(self):
        """In the order of stacking(). The compositor raises a window itself only where a person clicks on it."""
        def walk(node):
            if node.get("pid"):
                yield node
            inner = {child["id"]: child for child in node["nodes"] + node["floating_nodes"]}
            for number in reversed(node["focus"]):
                yield from walk(inner[number])

        return list(walk(self._compositor.tree()))

    def _of(self, window):
        return next(each for each in self._all() if each["id"] == window)

    def active(self):
        """The window that has the keyboard; 0 for none."""
        return next((each["id"] for each in self._all() if each["focused"]), 0)

    def stacking(self):
        """From the one that had the keyboard longest ago to the one that had it last, which is in front."""
        return [each["id"] for each in self._all()]

    def of_process(self, process_id):
        """Those of one process, in the order of stacking."""
        return [each["id"] for each in self._all() if each["pid"] == process_id]

    def title(self, window):
        return next((each["name"] for each in self._all() if each["id"] == window), "")

    def size(self, window):
        place = self.place(window)
        return place.width, place.height

    def place(self, window):
        """Where it lies on the screen."""
        node = self._of(window)
        outer, inner = node["rect"], node["window_rect"]
        return Extents(outer["x"] + inner["x"], outer["y"] + inner["y"], inner["width"], inner["height"])

    def place_of_sized(self, process_id, size):
        """Where the process's window of a size lies; None where it has none, as menus and tool tips are none."""
        places = [self.place(window) for window in self.of_process(process_id)]
        return next((place for place in places if (place.width, place.height) == size), None)

    def is_iconified(self, window):
        """Whether it is out of sight."""
        return not self._of(window)["visible"]
