"""The sets of folders that the panel broadcasts, as the bus's own monitor sees them."""

import os
import re
import subprocess

from . import processes
from .waiting import eventually

_PATH = "/com/orvikstudio/FinderSync"
_MEMBER = "com.orvikstudio.FinderSync; member=DirectoryURLs"


class Broadcasts:
    """What is broadcast on one session bus, from its making to close()."""

    def __init__(self, bus_address):
        # Every signal of the object, so that a wrong one is seen too.
        self._monitor = processes.start(
            ["dbus-monitor", "--address", bus_address, f"type='signal',path='{_PATH}'"], stdout=subprocess.PIPE,
            env={"PATH": "/usr/bin:/bin", "LANG": "C.UTF-8"})
        os.set_blocking(self._monitor.stdout.fileno(), False)
        self._seen = b""
        # A monitor has no name, so that it loses the one that it connected with.
        eventually(lambda: "member=NameLost" in self._text(), "the monitor")

    def _text(self):
        self._seen += self._monitor.stdout.read() or b""
        return self._seen.decode()

    def signals(self):
        """The number of signals of any kind so far."""
        return self._text().count(f" path={_PATH};")

    def sets(self):
        """The addresses of each set so far, in the order in which they were sent."""
        arrays = re.findall(rf"interface={_MEMBER}\n +array \[\n((?: +string .*\n)*) +\]\n", self._text())
        return [re.findall(r'string "(.*)"', array) for array in arrays]

    def close(self):
        processes.end(self._monitor)
        self._monitor.stdout.close()
