"""The Extensions window: switching the companion on and off, and how far the menu has come in the file managers."""

import os
import shutil
import signal
import subprocess
import unittest

from gi.repository import GLib

from support import processes
from support.buses import call, call_bus
from support.case import DesktopTestCase
from support.deployment import APPLICATION, EXTENSION
from support.file_managers import FileManager
from support.waiting import eventually, give_time, settled, throughout

WINDOW = "Extensions"
TITLE = "Orvik Menu Extension"
# Of the window itself.
WINDOW_NAME = APPLICATION + ".extensions"

ON = "It is running, and it starts at log-in."
OFF = "It is switched off."
ONLY_AT_LOG_IN = "It is set to start at log-in, but it is not running."
ONLY_NOW = "It is running, but it is not set to start at log-in."

NOT_RUNNING = "It is not running. It loads the menu when it starts."
LOADED = "It has loaded the menu."
NOT_LOADED = "It is running without the menu. Restarting it closes its windows and stops any copying."
OLDER_LOADED = "It has loaded an older version of the menu. Restarting it closes its windows and stops any copying."

# Takes from root what lets it write everywhere, so that it meets what anybody else meets.
WITHOUT_PRIVILEGES = ([shutil.which("setpriv"), "--bounding-set=-dac_override,-dac_read_search"]
                      if os.geteuid() == 0 else [])


class ExtensionsWindow(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.home.configuration, "autostart")
        self.entry = os.path.join(self.folder, EXTENSION + ".desktop")
        self.addCleanup(self.kill_companion)

    def start(self, **options):
        self.program = self.start_panel(program=os.path.join(self.programs, "orvik-menu-extensions"), **options)
        self.window = self.program.active_window(WINDOW)

    @property
    def switch(self):
        return self.window.find("check box", TITLE)

    def texts(self):
        return self.window.texts()

    def companion(self):
        """The process that owns the companion's name; 0 for none."""
        try:
            return call_bus(self.bus.connection, "GetConnectionUnixProcessID", GLib.Variant("(s)", (EXTENSION,)))[0]
        except LookupError:
            return 0

    def kill_companion(self):
        process = self.companion()
        if process:
            os.kill(process, signal.SIGKILL)
            eventually(lambda: not self.companion(), "the companion to have gone")

    def assertShows(self, words, on):
        eventually(lambda: words in self.texts(), f"“{words}” among {self.texts()}")
        self.assertEqual(self.switch.has("checked"), on)

    def switch_on(self):
        self.switch.act("Toggle")
        self.assertShows(ON, on=True)

    def test_switching_on_starts_the_companion_now_and_at_log_in(self):
        self.start()
        self.assertShows(OFF, on=False)
        self.save_picture("extensions-off")
        self.hands.click(self.switch.extents)

        self.assertShows(ON, on=True)
        self.save_picture("extensions-on")
        self.assertTrue(self.companion())
        program = os.path.join(self.programs, "orvik-menu-extension")
        with open(self.entry, encoding="utf-8") as file:
            lines = file.read().splitlines()
        self.assertEqual(lines[0], "[Desktop Entry]")
        self.assertIn(f"Exec={os.path.realpath(program)}", lines)
        self.assertEqual(os.stat(self.entry).st_mode & 0o777, 0o644)

    def test_switching_off_ends_it_now_and_for_the_log_ins_to_come(self):
        self.start()
        self.switch_on()
        self.switch.act("Toggle")

        self.assertShows(OFF, on=False)
        self.assertFalse(self.companion())
        self.assertEqual(os.listdir(self.folder), [])

    def test_the_keyboard_is_enough(self):
        self.start()
        eventually(lambda: self.window.focused() == self.switch, "the switch to have the keyboard")
        self.hands.press("space")
        self.assertShows(ON, on=True)
        self.hands.press("space")
        self.assertShows(OFF, on=False)

    def test_the_keys_that_close_a_window_end_the_program_and_not_the_companion(self):
        for keys in ("Escape", "ctrl+w", "ctrl+q"):
            with self.subTest(keys=keys):
                self.start()
                if not self.companion():
                    self.switch_on()
                self.hands.press(keys)
                self.assertEqual(self.program.wait_for_end(), 0)
                throughout(self.companion, "the companion runs", 0.2)

    def test_a_companion_that_was_killed_is_told_of_and_started_again(self):
        self.start()
        self.switch_on()
        self.kill_companion()

        self.assertShows(ONLY_AT_LOG_IN, on=False)
        self.save_picture("extensions-killed")
        self.switch_on()
        self.assertTrue(self.companion())

    def test_an_entry_that_somebody_else_removes_is_told_of(self):
        self.start()
        self.switch_on()
        os.remove(self.entry)

        self.assertShows(ONLY_NOW, on=False)

    def test_a_folder_that_cannot_be_written_is_told_of_and_nothing_is_claimed(self):
        os.mkdir(self.folder)
        os.chmod(self.folder, 0o500)
        self.addCleanup(os.chmod, self.folder, 0o700)
        self.start(wrapper=WITHOUT_PRIVILEGES)
        self.switch.act("Toggle")

        self.assertShows(f"Could not write {self.entry}: Permission denied.", on=False)
        self.save_picture("extensions-unwritable")
        throughout(lambda: not self.companion(), "no companion runs", 0.3)
        self.assertEqual(os.listdir(self.folder), [])

    def test_a_folder_that_cannot_be_written_leaves_the_companion_on(self):
        self.start()
        self.switch_on()
        self.program.close()
        os.chmod(self.folder, 0o500)
        self.addCleanup(os.chmod, self.folder, 0o700)
        self.start(wrapper=WITHOUT_PRIVILEGES)
        self.switch.act("Toggle")

        self.assertShows(f"Could not remove {self.entry}: Permission denied.", on=True)
        throughout(self.companion, "the companion runs", 0.3)

    def test_a_second_start_brings_the_first_to_the_front(self):
        self.start()
        first = self.program
        window, = self.windows.of_process(first.process_id)
        self.hands.iconify(window)
        eventually(lambda: self.windows.is_iconified(window), "the window to be iconified")
        second = self.start_panel(program=os.path.join(self.programs, "orvik-menu-extensions"))

        self.assertEqual(second.wait_for_end(), 0)
        first.active_window(WINDOW)
        self.assertFalse(self.windows.is_iconified(window))

    def test_what_it_was_started_with_to_come_to_the_front_does_not_reach_the_companion(self):
        self.start(XDG_ACTIVATION_TOKEN="a token", DESKTOP_STARTUP_ID="a start")
        self.switch_on()

        self.assertNoTokenIn(self.companion())

    def test_a_token_that_no_program_could_be_started_with_is_not_taken(self):
        self.start()
        call(self.bus.connection, WINDOW_NAME, "/" + WINDOW_NAME.replace(".", "/"), "org.freedesktop.Application",
             "Activate", GLib.Variant("(a{sv})", ({"activation-token": GLib.Variant("s", "x" * 200_000)},)))
        self.switch_on()

        self.assertNoTokenIn(self.companion())

    def assertNoTokenIn(self, process):
        with open(f"/proc/{process}/environ", "rb") as file:
            environment = file.read()
        self.assertIn(b"DISPLAY=", environment)
        self.assertNotIn(b"XDG_ACTIVATION_TOKEN", environment)
        self.assertNotIn(b"DESKTOP_STARTUP_ID", environment)

    def test_without_a_session_bus_the_switch_cannot_be_operated(self):
        # Without a bus there is no accessibility either, so the window is looked at from outside.
        program = self.start_panel(program=os.path.join(self.programs, "orvik-menu-extensions"),
                                   without=["DBUS_SESSION_BUS_ADDRESS"])
        self.wait_for_window(program, WINDOW)
        self.save_picture("extensions-no-bus")
        self.hands.press("Tab", "space")
        throughout(lambda: not os.path.exists(self.folder), "nothing is written", 0.3)
        self.assertEqual(program.complaints(), ["orvik-menu-extensions: there is no session bus"])

    def install(self, name):
        return FileManager(self.programs, self.home, name, self.addCleanup)

    def row(self, name):
        """The row of a file manager; LookupError where there is none."""
        return Row(self.window, name)

    def assertTells(self, name, words):
        eventually(lambda: words in self.row(name).texts(), f"“{words}” beside {name}")

    def test_a_file_manager_that_runs_without_the_menu_is_restarted_by_its_button(self):
        nemo = self.install("nemo")
        nemo.install_bridge()
        process = nemo.start()
        self.start()
        self.assertTells("Nemo", NOT_LOADED)
        self.save_picture("extensions-file-manager-not-loaded")
        self.hands.click(self.row("Nemo").restart.extents)

        self.assertTells("Nemo", NOT_RUNNING)
        self.assertIsNotNone(process.wait(10))
        self.assertEqual(nemo.asked(), ["-q"])
        nemo.start(nemo.module)
        self.assertTells("Nemo", LOADED)
        self.assertRaises(LookupError, lambda: self.row("Nemo").restart)

    def test_a_key_that_was_meant_for_a_button_that_has_gone_switches_nothing(self):
        nemo = self.install("nemo")
        nemo.install_bridge()
        nemo.start()
        self.start()
        self.assertTells("Nemo", NOT_LOADED)
        restart = self.row("Nemo").restart
        for _ in range(10):
            self.hands.press("Tab")
            if eventually(self.window.focused, "something to have the keyboard") == restart:
                break
        self.hands.press("space")
        self.assertTells("Nemo", NOT_RUNNING)
        self.hands.press("space")
        throughout(lambda: not os.path.exists(self.entry), "the companion is off", 0.5)

    def test_a_real_file_manager_is_restarted_by_its_button(self):
        nemo = self.install("nemo")
        shutil.copy("/usr/bin/nemo", nemo.program)
        nemo.install_bridge()
        real = processes.start([nemo.program, self.home.files], env=self.environment, stderr=subprocess.DEVNULL)
        self.addCleanup(processes.end, real)
        self.start()
        self.assertTells("Nemo", NOT_LOADED)
        eventually(lambda: self.windows.of_process(real.pid), "the file manager's window")
        self.row("Nemo").restart.act("Press")

        self.assertTells("Nemo", NOT_RUNNING)
        self.assertEqual(real.wait(10), 0)

    def test_an_update_of_the_menu_is_told_of_while_the_older_one_is_loaded(self):
        caja, dolphin = self.install("caja"), self.install("dolphin")
        for manager in caja, dolphin:
            manager.install_bridge()
            manager.start(manager.module)
        self.start()
        self.assertTells("Caja", LOADED)
        self.assertTells("Dolphin", LOADED)
        for manager in caja, dolphin:
            manager.install_bridge()

        self.assertTells("Caja", OLDER_LOADED)
        self.assertEqual(self.row("Caja").restart.name, "Restart Caja")
        self.assertTells("Dolphin", "It has loaded an older version of the menu. Close it and open it again.")
        self.assertRaises(LookupError, lambda: self.row("Dolphin").restart)

    def test_a_file_manager_without_the_menu_says_which_package_brings_it(self):
        thunar = self.install("thunar")
        self.start()
        self.assertTells("Thunar", "The menu is missing. Install the package orvik-menu-thunar.")
        thunar.install_bridge()

        self.assertTells("Thunar", NOT_RUNNING)

    def test_the_keyboard_comes_by_every_file_manager_and_by_what_is_the_matter(self):
        self.install("thunar")
        nemo = self.install("nemo")
        nemo.install_bridge()
        nemo.start()
        self.start()
        self.assertTells("Thunar", "The menu is missing. Install the package orvik-menu-thunar.")
        self.assertTells("Nemo", NOT_LOADED)
        heard = []
        while (focused := settled(self.window.focused)) not in heard:
            heard.append(focused)
            self.hands.press("Tab")
            eventually(lambda last=focused: self.window.focused() != last, "Tab to lead on")

        self.assertIn(("Thunar", "The menu is missing. Install the package orvik-menu-thunar."),
                      [(found.name, found.description) for found in heard])
        self.assertIn(("Restart Nemo", NOT_LOADED), [(found.name, found.description) for found in heard])

    def test_a_file_manager_that_is_installed_meanwhile_comes_to_the_list(self):
        self.start()
        nautilus = self.install("nautilus")
        nautilus.install_bridge()
        nautilus.start(nautilus.module)

        self.assertTells("Files", LOADED)

    def test_a_minimised_window_does_not_look_until_it_is_on_view_again(self):
        nemo = self.install("nemo")
        nemo.install_bridge()
        self.start()
        self.assertTells("Nemo", NOT_RUNNING)
        window, = self.windows.of_process(self.program.process_id)
        self.hands.iconify(window)
        eventually(lambda: self.windows.is_iconified(window), "the window to be iconified")
        # A look may be under way.
        give_time(0.5)
        told = self.row("Nemo").label(NOT_RUNNING)
        nemo.start(nemo.module)
        throughout(lambda: told.name == NOT_RUNNING, "the window tells what it told before", 3)
        self.hands.activate(window)

        self.assertTells("Nemo", LOADED)


class Row:
    """A file manager in the list."""

    def __init__(self, window, name):
        self._group = window.find("panel", name)

    def texts(self):
        return self._group.texts()

    def label(self, text):
        return self._group.find("label", text)

    @property
    def restart(self):
        return self._group.find("push button")


if __name__ == "__main__":
    unittest.main()
