"""A session bus of its own, where nothing of the machine's desktop can be started but the accessibility bus."""

import os
import shutil
import subprocess

from gi.repository import Gio, GLib

from . import processes
from .waiting import eventually

_ACCESSIBILITY_SERVICE = "/usr/share/dbus-1/services/org.a11y.Bus.service"

_CONFIGURATION = """\
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
  "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir={folder}</listen>
  <servicedir>{folder}/services</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

_CALL_TIMEOUT = 10_000


def connect(address):
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)


class Gone(LookupError):
    """The program that was asked has no such object, or no longer."""


def call(connection, name, path, interface, method, arguments=None):
    """The answer's values. An error answer, or none in time, is a LookupError; Gone where it says just that."""
    try:
        answer = connection.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                      _CALL_TIMEOUT, None)
    except GLib.Error as error:
        is_gone = error.matches(Gio.DBusError.quark(), Gio.DBusError.UNKNOWN_OBJECT)
        raise (Gone if is_gone else LookupError)(error.message) from error
    return answer.unpack()


def call_bus(connection, method, arguments=None):
    return call(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                arguments)


class SessionBus:
    """Runs from its making to close(). `folder` is for its own files; `environment` is what it starts programs with."""

    def __init__(self, folder, environment):
        # Where the bus finds what it can start.
        self.services = folder + "/services"
        os.makedirs(self.services)
        shutil.copy(_ACCESSIBILITY_SERVICE, self.services)
        configuration = folder + "/session.conf"
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(_CONFIGURATION.format(folder=folder))
        self._daemon = processes.start(["dbus-daemon", "--nofork", "--print-address", "--config-file", configuration],
                                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, env=environment)
        self.address = self._daemon.stdout.readline().strip()
        self.connection = connect(self.address)
        # The first call starts the accessibility bus.
        self.accessibility_address = eventually(
            lambda: call(self.connection, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0],
            "the accessibility bus")

    def has_owner(self, name):
        return (self._daemon.poll() is None
                and call_bus(self.connection, "NameHasOwner", GLib.Variant("(s)", (name,)))[0])

    def end(self):
        """Ends it while others use it."""
        processes.end(self._daemon)

    def close(self):
        self.connection.close_sync(None)
        self._daemon.stdout.close()
        self.end()
