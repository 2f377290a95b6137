"""Starting the panel by asking for its name on the session bus."""

import os
import signal
import unittest

from gi.repository import GLib

from support import accessibility
from support.buses import call, call_bus
from support.case import DesktopTestCase
from support.deployment import APPLICATION, EXTENSION
from support.panel import MAIN_WINDOW
from support.waiting import eventually, throughout


class BusStart(DesktopTestCase):
    def setUp(self):
        super().setUp()
        with open(f"{self.bus.services}/{APPLICATION}.service", "w", encoding="utf-8") as file:
            file.write(f"[D-BUS Service]\nName={APPLICATION}\nExec={self.programs}/orvik-menu\n")
        call_bus(self.bus.connection, "ReloadConfig")
        # As the log-in tells it the display.
        call_bus(self.bus.connection, "UpdateActivationEnvironment", GLib.Variant("(a{ss})", (self.environment,)))
        self.addCleanup(self.end_panel)

    def process_id(self):
        return call_bus(self.bus.connection, "GetConnectionUnixProcessID", GLib.Variant("(s)", (APPLICATION,)))[0]

    def end_panel(self):
        if self.bus.has_owner(APPLICATION):
            os.kill(self.process_id(), signal.SIGTERM)
            eventually(lambda: not self.bus.has_owner(APPLICATION), "the panel to have ended")

    def activate(self):
        token = GLib.Variant("s", self.hands.activation_token())
        call(self.bus.connection, APPLICATION, "/" + APPLICATION.replace(".", "/"), "org.freedesktop.Application",
             "Activate", GLib.Variant("(a{sv})", ({"activation-token": token},)))

    def titles(self):
        application = accessibility.application(self.bus.accessibility_address, self.process_id())
        return [window.name for window in application.shown_children()]

    def test_it_shows_one_window_of_one_process(self):
        self.activate()

        process = self.process_id()
        eventually(lambda: self.titles() == [MAIN_WINDOW], "the window")
        throughout(lambda: self.titles() == [MAIN_WINDOW] and self.process_id() == process, "one window", 2)
        self.assertEqual(len(self.windows.of_process(process)), 1)

    def test_a_second_time_its_window_comes_to_the_front(self):
        self.activate()
        process = self.process_id()
        window, = eventually(lambda: self.windows.of_process(process), "the window")
        eventually(lambda: self.windows.active() == window, "the window to be active")
        # Again where the panel's own coming to the front undoes it.
        eventually(lambda: self.hands.iconify(window) or self.windows.is_iconified(window),
                   "the window to be iconified")

        self.activate()

        eventually(lambda: self.windows.active() == window, "the window to be active")
        self.assertEqual(self.process_id(), process)

    def test_a_start_by_hand_finds_the_one_that_the_bus_started(self):
        self.activate()
        process = self.process_id()

        self.assertEqual(self.start_panel().wait_for_end(), 0)

        self.assertEqual(self.process_id(), process)

    def test_neither_the_companion_nor_the_tools_start_it_unasked(self):
        self.start_program("orvik-menu-extension")
        eventually(lambda: self.bus.has_owner(EXTENSION), "the companion")
        self.run_tool("orvik-notify", "AttachFileToMail")
        panel = self.start_panel()
        panel.main_window()
        panel.close()

        throughout(lambda: not self.bus.has_owner(APPLICATION), "no panel", 1)


if __name__ == "__main__":
    unittest.main()
