"""What the stand-ins for the desktop's mail have been handed."""

import json
import os
from collections import namedtuple

from .waiting import eventually

# `names` are the files' paths in bytes, `attachments` their contents.
PortalMessage = namedtuple("PortalMessage", "parent options names attachments")
CommandMessage = namedtuple("CommandMessage", "arguments attachments")


def _read(*path):
    with open(os.path.join(*path), "rb") as file:
        return file.read()


def _attachments(folder):
    return [_read(folder, name) for name in sorted(os.listdir(folder)) if name.isdigit()]


def _folders(folder):
    return [os.path.join(folder, name) for name in sorted(os.listdir(folder)) if name.isdigit()]


class PortalMessages:
    def __init__(self, folder):
        self._folder = folder

    def all(self):
        return [self._message(folder) for folder in _folders(self._folder)]

    def only(self):
        """Waits for the first message, which must be the only one."""
        message, = eventually(self.all, "a message to the portal")
        return message

    @staticmethod
    def _message(folder):
        told = json.loads(_read(folder, "message.json"))
        names = [os.fsencode(name) for name in told["names"]]
        return PortalMessage(told["parent"], told["options"], names, _attachments(folder))


class CommandMessages:
    def __init__(self, folder):
        self._folder = folder

    def all(self):
        return [CommandMessage(_read(folder, "arguments").split(b"\0")[:-1], _attachments(folder))
                for folder in _folders(self._folder)]

    def only(self):
        """Waits for the first call, which must be the only one."""
        message, = eventually(self.all, "a call of the mail command")
        return message
