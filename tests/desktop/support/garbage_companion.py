"""Owns the companion's name and says on the bus what no companion would, over and over.

Usage: garbage_companion.py NAME OBJECT INTERFACE
"""

import sys

import dbus
import dbus.lowlevel
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

_INTERVAL_MS = 5
_LONG = "x" * 100_000
# The properties, each time with another nonsense.
_NONSENSE = [
    {"Actions": 1, "Scope": "no", "CustomFolders": True, "ShowMenuIcon": "yes", "ShowInSubmenu": dbus.Int64(2)},
    {"Actions": dbus.Array([], signature="s"), "Scope": dbus.Array([], signature="a{sv}")},
    {},
    {"Actions": dbus.Array([("", "", "", dbus.UInt32(0xFFFFFFFF)), (_LONG, _LONG, _LONG, dbus.UInt32(1)),
                            ("a/b\n", "%s%n&_\n", "../../x", dbus.UInt32(127))], signature="(sssu)"),
     "Scope": dbus.ByteArray(b"+\0-" + b"/" * 5000 + b"\0+relative\0+/\0*" + _LONG.encode()),
     "CustomFolders": dbus.Array(["", "/a\n/../b", "/" + _LONG, "/%s%n&_\n"] * 30, signature="s"),
     "ShowMenuIcon": True, "ShowInSubmenu": True},
    # The right form, and more folders than anybody has.
    {"Actions": dbus.Array([("open-terminal", "Open Terminal", "icon", dbus.UInt32(255))], signature="(sssu)"),
     "Scope": dbus.ByteArray(b"+/\0" * 200_000), "CustomFolders": dbus.Array(["/"], signature="s"),
     "ShowMenuIcon": True, "ShowInSubmenu": False},
]


class Garbage:
    def __init__(self, bus, path, interface):
        self._bus = bus
        self._path = path
        self._interface = interface
        self._turn = 0
        bus.add_message_filter(self._answer)

    @property
    def _properties(self):
        return dbus.Dictionary(_NONSENSE[self._turn % len(_NONSENSE)], signature="sv")

    def _answer(self, connection, message):
        # A call of a method.
        if message.get_type() != 1 or message.get_path() != self._path:
            return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
        reply = dbus.lowlevel.MethodReturnMessage(message)
        if message.get_member() == "GetAll" and self._turn % 2 == 0:
            reply.append(self._properties, signature="a{sv}")
        else:
            reply.append("not what was asked for", dbus.UInt32(7), signature="su")
        connection.send_message(reply)
        return dbus.lowlevel.HANDLER_RESULT_HANDLED

    def say(self):
        self._turn += 1
        for signature, values in (("sa{sv}as", (self._interface, self._properties, [])),
                                  ("sa{sv}as", (self._interface, {}, ["Actions", "Scope"])),
                                  ("u", (dbus.UInt32(3),)),
                                  ("", ())):
            signal = dbus.lowlevel.SignalMessage(self._path, dbus.PROPERTIES_IFACE, "PropertiesChanged")
            signal.append(*values, signature=signature)
            self._bus.send_message(signal)
        return True


def main():
    name, path, interface = sys.argv[1:]
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    garbage = Garbage(bus, path, interface)
    taken = dbus.service.BusName(name, bus, do_not_queue=True)
    assert taken
    GLib.timeout_add(_INTERVAL_MS, garbage.say)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
