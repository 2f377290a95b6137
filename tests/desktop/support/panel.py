"""The panel's process and its windows."""

import os
import resource
import signal
import subprocess

from . import accessibility
from .waiting import eventually

MAIN_WINDOW = "Orvik Menu"
CHOOSER = "Attach to Mail"


def _without_core_file():
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Panel:
    """One run of the panel, from its making to its end."""

    def __init__(self, command, environment, output_folder, accessibility_address):
        self._accessibility_address = accessibility_address
        self._complaints_path = os.path.join(output_folder, "stderr")
        self._output_path = os.path.join(output_folder, "stdout")
        self.complaints_expected = False
        self.output_expected = False
        with open(self._output_path, "wb") as output, open(self._complaints_path, "wb") as complaints:
            self._process = subprocess.Popen(command, env=environment, cwd=environment["HOME"],
                                             stdin=subprocess.DEVNULL, stdout=output, stderr=complaints,
                                             preexec_fn=_without_core_file)

    @property
    def process_id(self):
        return self._process.pid

    def is_running(self):
        return self._process.poll() is None

    def standard_output(self):
        with open(self._output_path, "rb") as file:
            return file.read()

    def complaints(self):
        """The lines on standard error so far. Asking means that the test looks after them itself."""
        self.complaints_expected = True
        with open(self._complaints_path, encoding="utf-8", errors="replace") as file:
            return file.read().splitlines()

    def windows(self):
        """The windows on view, by the accessibility bus."""
        application = accessibility.application(self._accessibility_address, self.process_id)
        return application.shown_children()

    def window(self, title):
        """The window of that title; LookupError when it is not on view."""
        for window in self.windows():
            if window.name == title:
                return window
        raise LookupError(f"no window “{title}” is on view")

    def shows(self, title):
        try:
            return bool(self.window(title))
        except LookupError:
            return False

    def active_window(self, title):
        """Waits for the window of that title to be on view and to have the keyboard."""

        def find():
            if not self.is_running():
                raise AssertionError(f"the panel has ended: {self.complaints()}")
            window = self.window(title)
            return window if window.has("active") else None

        return eventually(find, f"the window “{title}”")

    def main_window(self):
        return self.active_window(MAIN_WINDOW)

    def chooser(self):
        return self.active_window(CHOOSER)

    def wait_for_end(self, within=15):
        """The exit status; a signal's number with a minus sign."""
        return self._process.wait(within)

    def send(self, signal_number):
        self._process.send_signal(signal_number)

    def kill(self):
        """Ends the panel at once. For tests that are over, where an orderly end takes its time."""
        self.send(signal.SIGKILL)
        self.wait_for_end()

    def close(self):
        """Ends the panel if it runs."""
        if self.is_running():
            self.send(signal.SIGTERM)
        try:
            self.wait_for_end()
        except subprocess.TimeoutExpired:
            self.kill()
