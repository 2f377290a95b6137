"""A stand-in for the desktop's portal, a program of its own: mail, and the wishes for the look.

Usage: portal.py FOLDER [COLOR-SCHEME]

Each message becomes a folder 1, 2, ... in FOLDER: "message.json" (the parent window, the names of the options, and
the name behind each attached descriptor) and the attachments' bytes in 0, 1, ... Nothing is to be seen of a message
before it is complete.
"""

import json
import os
import sys

import dbus
import dbus.lowlevel
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
_MAIL = "org.freedesktop.portal.Email"
_SETTINGS = "org.freedesktop.portal.Settings"
_OPEN = "org.freedesktop.portal.OpenURI"
_REQUEST = "org.freedesktop.portal.Request"
# What a test asks of the stand-in itself.
TESTING = "com.orvikstudio.Testing"
# The answer of a portal that hangs.
SILENCE = 99

COLOR_SCHEME = ("org.freedesktop.appearance", "color-scheme")
CONTRAST = ("org.freedesktop.appearance", "contrast")
REDUCED_MOTION = ("org.freedesktop.appearance", "reduced-motion")
ENABLE_ANIMATIONS = ("org.gnome.desktop.interface", "enable-animations")


class Portal(dbus.service.Object):
    def __init__(self, bus, folder, color_scheme):
        super().__init__(bus, PATH)
        self._folder = folder
        self._settings = {COLOR_SCHEME: dbus.UInt32(color_scheme)}
        self._messages = 0
        self._answer = 0
        self._mail_answer = 0
        self._opened = []

    def _respond(self, sender, options, answer):
        """The handle of a request that is answered soon."""
        request = f"{PATH}/request/{sender[1:].replace('.', '_')}/{options.get('handle_token', 'unnamed')}"
        response = dbus.lowlevel.SignalMessage(request, _REQUEST, "Response")
        response.append(dbus.UInt32(answer), dbus.Dictionary({}, signature="sv"), signature="ua{sv}")
        response.set_destination(sender)
        GLib.idle_add(lambda: self.connection.send_message(response) and False)
        return request

    @dbus.service.method(_MAIL, in_signature="sa{sv}", out_signature="o", sender_keyword="sender",
                         async_callbacks=("taken", "refused"))
    def ComposeEmail(self, parent, options, sender, taken, refused):
        if self._mail_answer == SILENCE:
            self._asked_in_vain = refused
            return
        if self._mail_answer == 0:
            self._keep(parent, options)
        taken(self._respond(sender, options, self._mail_answer))

    def _keep(self, parent, options):
        self._messages += 1
        unfinished = os.path.join(self._folder, "unfinished")
        os.mkdir(unfinished)
        names = []
        for number, attachment in enumerate(options.get("attachment_fds", [])):
            descriptor = attachment.take()
            names.append(os.readlink(f"/proc/self/fd/{descriptor}"))
            with open(descriptor, "rb") as source, open(f"{unfinished}/{number}", "wb") as target:
                target.write(source.read())
        with open(f"{unfinished}/message.json", "w", encoding="ascii") as file:
            json.dump({"parent": str(parent), "options": sorted(options), "names": names}, file)
        os.rename(unfinished, os.path.join(self._folder, str(self._messages)))

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        if (interface, name) != (_MAIL, "version"):
            raise dbus.exceptions.DBusException("no such property",
                                                name="org.freedesktop.DBus.Error.InvalidArgs")
        return dbus.UInt32(3)

    @dbus.service.method(_SETTINGS, in_signature="ss", out_signature="v")
    def Read(self, group, key):
        if (group, key) not in self._settings:
            raise dbus.exceptions.DBusException("no such setting",
                                                name="org.freedesktop.portal.Error.NotFound")
        # The portal's answer is a variant in a variant.
        value = self._settings[group, key]
        return type(value)(value, variant_level=2)

    @dbus.service.signal(_SETTINGS, signature="ssv")
    def SettingChanged(self, group, key, value):
        pass

    @dbus.service.method(_OPEN, in_signature="ssa{sv}", out_signature="o", sender_keyword="sender")
    def OpenURI(self, parent, address, options, sender):
        self._opened.append(str(address))
        return self._respond(sender, options, self._answer)

    @dbus.service.method(TESTING, in_signature="u")
    def AnswerOpening(self, answer):
        """0: opened, 1: the person said no, 2: it failed."""
        self._answer = answer

    @dbus.service.method(TESTING, in_signature="u")
    def AnswerMail(self, answer):
        """The same numbers for mail, or SILENCE."""
        self._mail_answer = answer

    @dbus.service.method(TESTING, out_signature="as")
    def Opened(self):
        return self._opened

    @dbus.service.method(TESTING, in_signature="ssv")
    def Prefer(self, group, key, value):
        """What a person sets in the desktop's settings."""
        self._settings[group, key] = value
        self.SettingChanged(group, key, value)


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    folder = sys.argv[1]
    color_scheme = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    # The object comes before the name, so that whoever sees the name can call it.
    portal = Portal(bus, folder, color_scheme)
    name = dbus.service.BusName(NAME, bus, do_not_queue=True)
    assert portal and name
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
