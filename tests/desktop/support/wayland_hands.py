"""The hands of a person at a Wayland compositor: a pointer and a keyboard of their own."""

import os
import time

from .wayland import Connection, Fixed, decoded_text

# Requests, by the protocols' numbers.
_CREATE_POINTER = 0
_CREATE_KEYBOARD = 0
_MOVE_TO = 1
_BUTTON = 2
_FRAME = 4
_AXIS_SOURCE = 5
_AXIS_STEPS = 7
_KEYMAP = 0
_KEY = 1
_MODIFIERS = 2
_GET_TOKEN = 1
_COMMIT = 3

# Events.
_DONE = 0

_XKB_FORMAT = 1
_LEFT, _RIGHT = 0x110, 0x111
_VERTICAL = 0
_WHEEL = 0
_STEP = 15
_MODIFIER_BITS = {"shift": 1, "ctrl": 4, "alt": 8, "super": 64}
# The first of a keymap's codes that keys may have, and by how much programs are told less.
_FIRST_CODE = 9
_CODE_OFFSET = 8

# As fast as a person's, and as slow as two clicks.
_BETWEEN_CLICKS = 0.06


def _now():
    return time.monotonic_ns() // 1_000_000 & 0xffffffff


class WaylandHands:
    """Pointer and keyboard of one compositor. `compositor` moves its windows for them."""

    def __init__(self, socket_path, compositor):
        self._compositor = compositor
        self._connection = Connection(socket_path)
        seat = self._connection.bind("wl_seat")
        self._pointer = self._connection.make(
            self._connection.bind("zwlr_virtual_pointer_manager_v1"), _CREATE_POINTER, seat)
        self._keyboard = self._connection.make(
            self._connection.bind("zwp_virtual_keyboard_manager_v1"), _CREATE_KEYBOARD, seat)
        self._activation = self._connection.bind("xdg_activation_v1")
        self._symbols = []
        # All that a keyboard usually has, so that others alone need a new one.
        self._learn([f"U{code:04X}" for code in range(0x20, 0x7f)])

    def activation_token(self):
        """A proof that a person wants to see a window, as the program has it that starts another one."""
        token = self._connection.make(self._activation, _GET_TOKEN)
        self._connection.request(token, _COMMIT)
        events = self._connection.round_trip()
        return next(decoded_text(contents) for sender, event, contents in events if (sender, event) == (token, _DONE))

    # Keys

    def _learn(self, symbols):
        """Gives the keyboard keys for symbols that it has none for, each at one press."""
        missing = [symbol for symbol in symbols if symbol not in self._symbols]
        if not missing:
            return
        self._symbols += missing
        keys = list(enumerate(self._symbols, _FIRST_CODE))
        codes = " ".join(f"<K{code}> = {code};" for code, _ in keys)
        lines = " ".join(f"key <K{code}> {{[{symbol}]}};" for code, symbol in keys)
        keymap = (f"xkb_keymap {{ xkb_keycodes {{ minimum = 8; maximum = 255; {codes} }};"
                  ' xkb_types { include "complete" }; xkb_compat { include "complete" };'
                  f" xkb_symbols {{ {lines} }}; }};\n").encode() + b"\0"
        with os.fdopen(os.memfd_create("keymap"), "wb") as file:
            file.write(keymap)
            file.flush()
            self._connection.request(self._keyboard, _KEYMAP, _XKB_FORMAT, len(keymap), descriptor=file.fileno())
        self._connection.round_trip()

    def _press(self, symbol, modifiers=0):
        code = self._symbols.index(symbol) + _FIRST_CODE - _CODE_OFFSET
        self._connection.request(self._keyboard, _MODIFIERS, modifiers, 0, 0, 0)
        for is_down in (1, 0):
            self._connection.request(self._keyboard, _KEY, _now(), code, is_down)
        self._connection.request(self._keyboard, _MODIFIERS, 0, 0, 0, 0)

    def press(self, *keys):
        """One key or combination after the other, for example "Tab" or "ctrl+q"."""
        for key in keys:
            *modifiers, name = key.split("+")
            symbol = f"U{ord(name):04X}" if len(name) == 1 else name
            self._learn([symbol])
            self._press(symbol, sum(_MODIFIER_BITS[modifier] for modifier in modifiers))
        self._connection.round_trip()

    def type(self, text):
        symbols = [f"U{ord(character):04X}" for character in text]
        self._learn(symbols)
        for symbol in symbols:
            self._press(symbol)
        self._connection.round_trip()

    # Pointer

    def move_to(self, extents):
        """Moves the pointer to the middle of `extents`."""
        self._connection.request(
            self._pointer, _MOVE_TO, _now(), extents.x + extents.width // 2, extents.y + extents.height // 2,
            *self._compositor.size)
        self._finish_motion()

    def _finish_motion(self):
        self._connection.request(self._pointer, _FRAME)
        self._connection.round_trip()

    def _turn(self, button, is_down):
        self._connection.request(self._pointer, _BUTTON, _now(), button, is_down)
        self._finish_motion()

    def _click(self, button):
        self._turn(button, 1)
        self._turn(button, 0)

    def click(self, extents):
        """A click of the first button in the middle of `extents`."""
        self.move_to(extents)
        self._click(_LEFT)

    def click_right(self, extents):
        """A click of the button that opens menus."""
        self.move_to(extents)
        self._click(_RIGHT)

    def double_click(self, extents):
        self.click(extents)
        time.sleep(_BETWEEN_CLICKS)
        self._click(_LEFT)

    def press_button(self, extents):
        """The first button goes down in the middle of `extents` and stays so."""
        self.move_to(extents)
        self._turn(_LEFT, 1)

    def let_button_go(self):
        self._turn(_LEFT, 0)

    def scroll_down(self, extents, times):
        """Turns the wheel over the middle of `extents`."""
        self.move_to(extents)
        for _ in range(times):
            self._connection.request(self._pointer, _AXIS_SOURCE, _WHEEL)
            self._connection.request(self._pointer, _AXIS_STEPS, _now(), _VERTICAL, Fixed(_STEP), 1)
            self._finish_motion()

    # Windows

    def place(self, window, x, y):
        self._compositor.command(f"[con_id={window}] move absolute position {x} {y}")

    def resize(self, window, width, height):
        self._compositor.command(f"[con_id={window}] resize set {width} {height}")

    def iconify(self, window):
        """Takes the window out of sight. This compositor has no icons: the person goes to an empty workspace."""
        self._compositor.command("workspace elsewhere")

    def activate(self, window):
        self._compositor.command(f"[con_id={window}] focus")

    def close(self):
        self._connection.close()
