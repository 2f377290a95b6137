"""The distribution's own portal, with its GTK backend, on a session bus of the tests."""

import subprocess

from . import processes
from .portal import NAME
from .waiting import eventually

_BACKEND = "/usr/libexec/xdg-desktop-portal-gtk"
_PORTAL = "/usr/libexec/xdg-desktop-portal"
_BACKEND_NAME = "org.freedesktop.impl.portal.desktop.gtk"


def start_real_portal(bus, environment):
    """Starts it as the person of `environment`, whose programs it uses. Answers the processes."""
    environment = {**environment, "PATH": "/usr/bin:/bin"}
    started = []
    for program, name in ((_BACKEND, _BACKEND_NAME), (_PORTAL, NAME)):
        started.append(processes.start([program], env=environment, stderr=subprocess.DEVNULL))
        eventually(lambda name=name: bus.has_owner(name), name)
    return started
