"""A client of a Wayland compositor that has no window: as much of the protocol as a person's hands need."""

import array
import itertools
import socket
import struct

# The protocol's first object, and its requests.
_DISPLAY = 1
_SYNC = 0
_GET_REGISTRY = 1
_BIND = 0

# Events.
_ERROR = 0
_GLOBAL = 0

_TIMEOUT = 20


class Fixed(float):
    """A number with a fraction."""


class NewObject:
    """An object that a request makes."""

    def __init__(self, connection):
        self.number = next(connection.numbers)


def _encoded(argument):
    if isinstance(argument, Fixed):
        return struct.pack("=i", round(argument * 256))
    if isinstance(argument, NewObject):
        return struct.pack("=I", argument.number)
    if isinstance(argument, str):
        text = argument.encode() + b"\0"
        return struct.pack("=I", len(text)) + text + bytes(-len(text) % 4)
    return struct.pack("=I", argument)


def decoded_text(contents):
    """The text that an event's arguments begin with."""
    length, = struct.unpack_from("=I", contents)
    return contents[4:4 + length - 1].decode()


class Connection:
    """From its making to close()."""

    def __init__(self, path):
        self.numbers = itertools.count(_DISPLAY + 1)
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.settimeout(_TIMEOUT)
        self._socket.connect(path)
        self._unread = b""
        self._registry = NewObject(self)
        self.request(_DISPLAY, _GET_REGISTRY, self._registry)
        self._globals = {}
        for sender, event, contents in self.round_trip():
            if (sender, event) == (self._registry.number, _GLOBAL):
                self._globals[decoded_text(contents[4:])] = struct.unpack_from("=I", contents)[0]

    def bind(self, interface):
        """The compositor's one object of an interface, in its first version."""
        found = NewObject(self)
        self.request(self._registry.number, _BIND, self._globals[interface], interface, 1, found)
        return found.number

    def make(self, maker, request, *arguments):
        """What an object makes on a request that has the new object as its last argument."""
        made = NewObject(self)
        self.request(maker, request, *arguments, made)
        return made.number

    def request(self, receiver, request, *arguments, descriptor=None):
        contents = b"".join(map(_encoded, arguments))
        message = struct.pack("=II", receiver, (8 + len(contents)) << 16 | request) + contents
        ancillary = [] if descriptor is None else [
            (socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", [descriptor]))]
        self._socket.sendmsg([message], ancillary)

    def round_trip(self):
        """Waits until the compositor has done all that was requested. Answers the events (sender, event, contents)."""
        done = self.make(_DISPLAY, _SYNC)
        events = []
        while not events or events[-1][0] != done:
            events.append(self._next_event())
        return events

    def _next_event(self):
        sender, rest = struct.unpack("=II", self._read(8))
        contents = self._read((rest >> 16) - 8)
        if (sender, rest & 0xffff) == (_DISPLAY, _ERROR):
            raise AssertionError(f"the compositor complains: {decoded_text(contents[8:])}")
        return sender, rest & 0xffff, contents

    def _read(self, size):
        while len(self._unread) < size:
            more = self._socket.recv(4096)
            if not more:
                raise AssertionError("the compositor has gone")
            self._unread += more
        answer, self._unread = self._unread[:size], self._unread[size:]
        return answer

    def close(self):
        self._socket.close()
