#!/usr/bin/python3
"""Measures in each file manager how long its menu takes from the key to the screen, with our module and without it.

Usage: popup.py PROGRAMS [MENUS]: so many menus each time. The rounds with and without take turns.
"""

import ctypes
import os
import select
import statistics
import sys
import time
import unittest

_HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(_HERE, os.pardir, "tests", "desktop"))
PROGRAMS = os.path.abspath(sys.argv.pop(1))
MENUS = int(sys.argv.pop(1)) if len(sys.argv) > 1 else 15
os.environ.update(ORVIK_PROGRAMS=PROGRAMS, ORVIK_SCREENSHOTS="/nonexistent")

# pylint: disable=wrong-import-position
from support.file_manager_cases import OF_A_FILE, FileManagerTestCase
from support.real_file_managers import Caja, Dolphin, Nautilus, Nemo, Thunar

ROUNDS = 3
PATIENCE = 10.0
# In pixels.
SMALLEST_MENU = 50
# Until what a menu has left behind is done.
SETTLING = 0.15

_SUBSTRUCTURE_NOTIFY = 1 << 19
_UNMAP_NOTIFY, _MAP_NOTIFY = 18, 19


class _Event(ctypes.Structure):
    # XMapEvent and XUnmapEvent of <X11/Xlib.h>, in the space of an XEvent.
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("event", ctypes.c_ulong), ("window", ctypes.c_ulong),
                ("override_redirect", ctypes.c_int), ("padding", ctypes.c_long * 24)]


class Screen:
    """Keys, and the windows that come and go."""

    def __init__(self, name):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._test = ctypes.CDLL("libXtst.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._x11.XStringToKeysym.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(name.encode()))
        root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        self._x11.XSelectInput(self._display, root, ctypes.c_long(_SUBSTRUCTURE_NOTIFY))
        self._x11.XSync(self._display, 1)

    def press(self, keys):
        codes = [self._x11.XKeysymToKeycode(self._display, ctypes.c_ulong(self._x11.XStringToKeysym(key.encode())))
                 for key in keys.replace("shift", "Shift_L").split("+")]
        for code, down in [(code, 1) for code in codes] + [(code, 0) for code in reversed(codes)]:
            self._test.XTestFakeKeyEvent(self._display, code, down, ctypes.c_ulong(0))
        self._x11.XFlush(self._display)

    def wait_for(self, kind, window=None):
        """Waits for a window that no window manager looks after to come or for a window to go."""
        deadline = time.monotonic() + PATIENCE
        event = _Event()
        while True:
            while self._x11.XPending(self._display):
                self._x11.XNextEvent(self._display, ctypes.byref(event))
                if event.type == kind and window in (None, event.window):
                    if kind == _UNMAP_NOTIFY or event.override_redirect and self._is_menu(event.window):
                        return event.window
            if time.monotonic() > deadline:
                raise TimeoutError("no menu came or went")
            select.select([self._x11.XConnectionNumber(self._display)], [], [], 1)

    def _is_menu(self, window):
        # Some toolkits show something tiny first.
        values = [ctypes.c_ulong()] + [ctypes.c_uint() for _ in range(6)]
        self._x11.XGetGeometry(self._display, ctypes.c_ulong(window), *map(ctypes.byref, values))
        return values[3].value >= SMALLEST_MENU

    def milliseconds_to_menu(self, key):
        # What came and went before is of no interest.
        self._x11.XSync(self._display, 1)
        before = time.monotonic()
        self.press(key)
        window = self.wait_for(_MAP_NOTIFY)
        took = (time.monotonic() - before) * 1000
        time.sleep(SETTLING)
        self.press("Escape")
        self.wait_for(_UNMAP_NOTIFY, window)
        time.sleep(SETTLING)
        return took


class Popup(FileManagerTestCase):
    def round(self, file_manager, with_module):
        running = file_manager(self, self.home.files, with_module)
        running.select(self.letter())
        if with_module:
            self.running = running
            self.assertMenu(*OF_A_FILE)
        screen = Screen(self.display.name)
        # The first brings in what all others find.
        times = [screen.milliseconds_to_menu(running.menu_key) for _ in range(MENUS + 1)][1:]
        running.close()
        return times

    def measure(self, file_manager):
        self.settings()
        self.companion.start()
        times = {True: [], False: []}
        for _ in range(ROUNDS):
            for with_module, all_times in times.items():
                all_times += self.round(file_manager, with_module)
        ours, bare = statistics.median(times[True]), statistics.median(times[False])
        print(f"{file_manager.command[0]:10} menu with the module {ours:6.1f} ms, without {bare:6.1f} ms, "
              f"difference {ours - bare:+5.1f} ms", flush=True)

    def test_nautilus(self):
        self.measure(Nautilus)

    def test_nemo(self):
        self.measure(Nemo)

    def test_caja(self):
        self.measure(Caja)

    def test_thunar(self):
        self.measure(Thunar)

    def test_dolphin(self):
        self.measure(Dolphin)


if __name__ == "__main__":
    unittest.main()
