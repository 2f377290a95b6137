"""The file manager's companion, and the window in which a person switches it on."""

import os

from .deployment import APPLICATION, EXTENSION
from .waiting import eventually

EXTENSIONS = "Extensions"
EXTENSIONS_NAME = APPLICATION + ".extensions"
PROGRAM = "orvik-menu-extension"
OBJECT = "/" + EXTENSION.replace(".", "/").replace("-", "_")
INTERFACE = "com.orvikstudio.FinderSyncExtension"
# What the modules of file managers read.
MENU_INTERFACE = "com.orvikstudio.FinderSyncMenu"
AUTOSTART = f"autostart/{EXTENSION}.desktop"


def processes_of(program, environment_mark):
    """The processes of a program that were started for one person, by an entry of their environment. What such a
    process has made to start another program is that program soon, and not counted."""
    found = {}
    for entry in os.listdir("/proc"):
        if not entry.isdigit():
            continue
        try:
            with open(f"/proc/{entry}/environ", "rb") as file:
                variables = file.read().split(b"\0")
            if (os.path.basename(os.readlink(f"/proc/{entry}/exe")) == program
                    and os.fsencode(environment_mark) in variables):
                with open(f"/proc/{entry}/stat", encoding="ascii", errors="replace") as file:
                    found[int(entry)] = int(file.read().rpartition(")")[2].split()[1])
        except OSError:
            continue
    return [process for process, parent in found.items() if parent not in found]


class Companion:
    """The companion of one test's person, from the folder of the programs that are tested or another one."""

    def __init__(self, case, programs=None):
        self._case = case
        self._program = os.path.join(programs or case.programs, PROGRAM)
        self._mark = "HOME=" + case.home.folder

    def processes(self):
        return processes_of(PROGRAM, self._mark)

    def start(self):
        """As at log-in."""
        self._case.start_program(self._program)
        eventually(lambda: self._case.bus.has_owner(EXTENSION), "the companion")

    def kill(self, signal_number):
        for process in self.processes():
            os.kill(process, signal_number)
        eventually(lambda: not self._case.bus.has_owner(EXTENSION), "the companion to go")
