"""A stand-in for the desktop's notifications, a program of its own. What it shows it tells the tests."""

import json
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

from . import processes
from .buses import call
from .waiting import eventually

NAME = "org.freedesktop.Notifications"
PATH = "/org/freedesktop/Notifications"
# What a test asks of the stand-in itself.
_TESTING = "com.orvikstudio.Testing"
# Why one is closed, by the protocol's numbers.
_HAD_ITS_TIME = 1
_DISMISSED = 2
_CALLED_BACK = 3


class Notifications:
    """The person's desktop shows notifications from here on, until the test is over."""

    def __init__(self, case):
        self._connection = case.bus.connection
        self._process = processes.start([sys.executable, "-B", "-m", __name__], env={
            **case.environment, "PYTHONPATH": ":".join(sys.path)})
        case.addCleanup(processes.end, self._process)
        eventually(lambda: case.bus.has_owner(NAME), "the notifications")

    def _ask(self, method, arguments=None):
        return call(self._connection, NAME, PATH, _TESTING, method, arguments)

    def shown(self):
        """Those on view, each with its "number", "title", "words", "time" and "buttons", titles by what they stand
        for."""
        return json.loads(self._ask("Shown")[0])

    def only(self):
        """The one that is on view, once there is one."""
        return eventually(lambda: len(self.shown()) == 1 and self.shown()[0], "a notification")

    def press(self, notification, button):
        self._ask("Press", GLib.Variant("(us)", (notification["number"], button)))

    def show_none(self):
        """The person is not to be disturbed: each is gone before the program hears its number."""
        self._ask("ShowNone")

    def expire(self, notification):
        """Its time has come: the person finds it among older ones, where its buttons do as before."""
        self._ask("Expire", GLib.Variant("(u)", (notification["number"],)))

    def dismiss(self, notification):
        self._ask("Dismiss", GLib.Variant("(u)", (notification["number"],)))


class _Server(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, PATH)
        self._shown = {}
        self._last = 0
        self._shows = True

    @dbus.service.method(NAME, in_signature="susssasa{sv}i", out_signature="u")
    def Notify(self, _application, replaced, _icon, title, words, actions, hints, time):
        number = int(replaced)
        if number == 0:
            self._last += 1
            number = self._last
        buttons = dict(zip(map(str, actions[::2]), map(str, actions[1::2])))
        self._shown[number] = {"number": number, "title": str(title), "words": str(words), "buttons": buttons,
                               "stays": bool(hints.get("resident")), "time": int(time)}
        if not self._shows:
            self._close(number, _DISMISSED)
        return dbus.UInt32(number)

    @dbus.service.method(NAME, in_signature="u")
    def CloseNotification(self, number):
        self._close(int(number), _CALLED_BACK)

    def _close(self, number, reason):
        if self._shown.pop(number, None):
            self.NotificationClosed(number, reason)

    @dbus.service.signal(NAME, signature="uu")
    def NotificationClosed(self, number, reason):
        pass

    @dbus.service.signal(NAME, signature="us")
    def ActionInvoked(self, number, action):
        pass

    @dbus.service.method(_TESTING, out_signature="s")
    def Shown(self):
        return json.dumps(list(self._shown.values()))

    @dbus.service.method(_TESTING, in_signature="us")
    def Press(self, number, button):
        self.ActionInvoked(number, button)
        if not self._shown[int(number)]["stays"]:
            self._close(int(number), _DISMISSED)

    @dbus.service.method(_TESTING)
    def ShowNone(self):
        self._shows = False

    @dbus.service.method(_TESTING, in_signature="u")
    def Expire(self, number):
        self.NotificationClosed(number, _HAD_ITS_TIME)

    @dbus.service.method(_TESTING, in_signature="u")
    def Dismiss(self, number):
        self._close(int(number), _DISMISSED)


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    server = _Server(bus)
    name = dbus.service.BusName(NAME, bus, do_not_queue=True)
    assert server and name
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
