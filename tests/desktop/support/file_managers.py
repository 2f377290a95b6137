"""Stand-ins for a person's file managers: they are there, load a module, and run until they are asked to end."""

import os
import shutil

from . import processes
from .waiting import eventually

# Where each looks for modules, below its prefix, and what the menu's is called.
_MODULES = {
    "nautilus": "nautilus/extensions-4/liborvik-menu-nautilus.so",
    "nemo": "nemo/extensions-3.0/liborvik-menu-nemo.so",
    "caja": "caja/extensions-2.0/liborvik-menu-caja.so",
    "thunar": "thunarx-3/liborvik-menu-thunar.so",
    "dolphin": "qt5/plugins/kf5/kfileitemaction/orvik-menu-dolphin.so",
}


class FileManager:
    """One of the person's own, which comes before any that the machine has. `programs` has the tests' programs, and
    `cleanup` takes what ends the processes."""

    def __init__(self, programs, home, name, cleanup):
        self._programs = programs
        self._cleanup = cleanup
        self.program = os.path.join(home.programs, name)
        self._environment = home.environment
        self.module = os.path.join(home.folder, "lib", _MODULES[name])
        shutil.copy(os.path.join(programs, "orvik_file_manager_stand_in"), self.program)

    def install_bridge(self):
        """Also in the place of one that is there, as an update does."""
        os.makedirs(os.path.dirname(self.module), exist_ok=True)
        new = self.module + ".new"
        shutil.copy(os.path.join(self._programs, "liborvik_module_stand_in.so"), new)
        os.replace(new, self.module)

    def start(self, *modules):
        """Starts it with those modules. Answers the process."""
        process = processes.start([self.program, *modules], env=self._environment)
        self._cleanup(processes.end, process)
        eventually(lambda: str(process.pid) in self._notes("running"), "the file manager to have started")
        return process

    def asked(self):
        """The arguments of those who have asked it to end."""
        return self._notes("asked")

    def _notes(self, about):
        try:
            with open(f"{self.program}.{about}", encoding="ascii") as file:
                return file.read().split()
        except FileNotFoundError:
            return []
