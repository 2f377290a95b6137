"""What every desktop test stands on: a desktop for each test file, a new person with empty folders for each test."""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest

from gi.repository import GLib

from . import portal, processes
from .buses import SessionBus, call
from .deployment import APPLICATION, SUITE
from .display import make_display
from .home import Home
from .mail import PortalMessages
from .panel import Panel
from .suite import SettingsFile, as_text
from .waiting import PATIENCE, GaveUp, eventually

_TOOL_TIMEOUT = 20


class DesktopTestCase(unittest.TestCase):
    """A class has its own display, window manager, session bus and accessibility bus."""

    screen_size = (1280, 1024)
    # Whether the person has been through the first run, so that the panel opens on its tabs.
    knows_the_panel = True
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        # Where what is tested is installed, below which prefix; else it is what the build has left.
        cls.installed = os.environ.get("ORVIK_INSTALLED", "")
        cls.programs = os.path.join(cls.installed, "bin") if cls.installed else os.environ["ORVIK_PROGRAMS"]
        cls.screenshots = os.environ["ORVIK_SCREENSHOTS"]
        cls._folder = tempfile.mkdtemp(prefix="orvik-desktop-")
        cls.addClassCleanup(shutil.rmtree, cls._folder)
        cls.addClassCleanup(processes.end_all_at_home_below, cls._folder)
        runtime = os.path.join(cls._folder, "run")
        os.mkdir(runtime, 0o700)
        cls.display = make_display(cls.screen_size)
        cls.addClassCleanup(cls.display.close)
        cls.bus = SessionBus(os.path.join(cls._folder, "bus"), {
            **cls.display.environment, "HOME": cls._folder, "XDG_RUNTIME_DIR": runtime, "PATH": "/usr/bin:/bin"})
        cls.addClassCleanup(cls.bus.close)
        cls.hands = cls.display.hands
        cls.windows = cls.display.windows

    def setUp(self):
        self.become_someone_new()

    def become_someone_new(self):
        """A person with empty folders from here on. Panels of the person before are best closed first."""
        self.home = Home(self.make_folder())
        self.suite = SettingsFile(self.home.configuration, SUITE)
        self.own_settings = SettingsFile(self.home.configuration, APPLICATION)
        if self.knows_the_panel:
            self.own_settings.write(firstRun=True)

    def become_a_newcomer(self):
        """A person with empty folders who has never had the panel."""
        self.become_someone_new()
        os.unlink(self.own_settings.path)
        os.rmdir(self.own_settings.folder)

    def make_folder(self):
        """An empty folder, which is there until the class's tests are over."""
        return tempfile.mkdtemp(dir=self._folder)

    @property
    def environment(self):
        """What a program that the person starts is started with."""
        # How the sanitizers are to behave is the builder's choice.
        sanitizers = {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        return {
            **sanitizers,
            **self.home.environment,
            **self.display.environment,
            "DBUS_SESSION_BUS_ADDRESS": self.bus.address,
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            # A fatal error is told on standard error alone.
            "ORVIK_MENU_NO_PROBLEM_WINDOW": "1",
            # The toolkit's complaints about questions to objects that have just gone: the tests' own questions.
            "QT_LOGGING_RULES": "qt.accessibility.atspi.warning=false",
        }

    def start_panel(self, program=None, wrapper=(), without=(), **variables):
        """Starts the panel: another build of it, a program to run it with, fewer or more environment variables."""
        environment = {name: value for name, value in self.environment.items() if name not in without}
        if token := self.hands.activation_token():
            environment["XDG_ACTIVATION_TOKEN"] = token
        command = [*wrapper, program or os.path.join(self.programs, "orvik-menu")]
        panel = Panel(command, {**environment, **variables}, self.make_folder(), self.bus.accessibility_address)
        self.addCleanup(self._close_panel, panel)
        return panel

    def _close_panel(self, panel):
        panel.close()
        if not panel.output_expected:
            self.assertEqual(panel.standard_output(), b"")
        if not panel.complaints_expected:
            self.assertEqual(panel.complaints(), [])

    def run_tool(self, name, *arguments):
        """Runs one of the programs that are installed beside the panel, to its end."""
        return subprocess.run([os.path.join(self.programs, name), *arguments], env=self.environment, check=False,
                              capture_output=True, timeout=_TOOL_TIMEOUT)

    def start_program(self, name, *arguments):
        """Starts one of the programs that are installed beside the panel; it is ended with the test."""
        process = processes.start([os.path.join(self.programs, name), *arguments], env=self.environment)
        self.addCleanup(processes.end, process)
        return process

    def start_portal(self, color_scheme=0):
        """Gives the desktop a portal for mail and settings. Answers its messages."""
        folder = self.make_folder()
        process = processes.start([sys.executable, "-B", portal.__file__, folder, str(color_scheme)],
                                  env=self.environment)
        self.addCleanup(processes.end, process)
        eventually(lambda: self.bus.has_owner(portal.NAME), "the portal")
        return PortalMessages(folder)

    def prefer_color_scheme(self, color_scheme):
        """Changes the person's wish for light or dark at the portal."""
        self.prefer(portal.COLOR_SCHEME, GLib.Variant("u", color_scheme))

    def prefer(self, setting, value):
        """Changes a wish of the person's at the portal: one of its settings, to a variant."""
        call(self.bus.connection, portal.NAME, portal.PATH, portal.TESTING, "Prefer",
             GLib.Variant("(ssv)", (*setting, value)))

    def answer_openings(self, answer):
        """What the portal answers to addresses: 0 for opened, 1 for a person's no, 2 for a failure."""
        call(self.bus.connection, portal.NAME, portal.PATH, portal.TESTING, "AnswerOpening",
             GLib.Variant("(u)", (answer,)))

    def answer_mail(self, answer):
        """The same for messages, or `portal.SILENCE`."""
        call(self.bus.connection, portal.NAME, portal.PATH, portal.TESTING, "AnswerMail",
             GLib.Variant("(u)", (answer,)))

    def opened_by_portal(self):
        return call(self.bus.connection, portal.NAME, portal.PATH, portal.TESTING, "Opened")[0]

    def wait_for_window(self, panel, title):
        """Waits for the panel's window of that title to have the keyboard. For panels that have no accessibility."""
        def is_active():
            window = self.windows.active()
            return (self.windows.title(window).startswith(title)
                    and window in self.windows.of_process(panel.process_id))

        eventually(is_active, f"the window “{title}”")

    def save_picture(self, name):
        os.makedirs(self.screenshots, exist_ok=True)
        self.display.save_picture(os.path.join(self.screenshots, name + ".png"))

    def assertStored(self, within=PATIENCE, **values):
        """The suite's file holds these values and no others, kind by kind."""
        self.assertEventuallyEqual(self.suite.text, as_text(values), within)

    def assertEventuallyEqual(self, read, expected, within=PATIENCE):
        """Waits for `read` to give `expected`; when it does not, fails with the last value."""
        try:
            eventually(lambda: read() == expected, "", within)
        except GaveUp:
            self.assertEqual(read(), expected)

    def assertAborted(self, panel, about):
        """The panel ends itself with a fatal error whose words match `about`."""
        self.assertEqual(panel.wait_for_end(), -signal.SIGABRT)
        complaint, = panel.complaints()
        self.assertRegex(complaint, f"^orvik-menu: fatal error: .*({about})")
