"""The panel's settings files, read and written as other programs do."""

import contextlib
import datetime
import fcntl
import os
import plistlib

TITLES = [
    "Open Terminal",
    "Open System Preferences",
    "Set as Wallpaper",
    "Create New Text File",
    "Copy path to Clipboard",
    "Send via Mail",
    "Move to a folder",
    "Copy to a folder",
    "Open New Finder Window",
    "Hide / Unhide item",
    "Find Duplicate Files",
    "Find Duplicate Photos",
    "View or Edit Exif Data",
    "Resize Photos",
    "Configure Orvik Menu Settings",
    "Add Folders",
]


def record(*off):
    """The menu items' record with the rows `off` switched off and all others on."""
    return [{"title": title, "state": row not in off} for row, title in enumerate(TITLES)]


def as_text(value):
    """For comparing: unlike Python's own values, property lists know true from 1 from 1.0."""
    return plistlib.dumps(value).decode()


def seconds_ago(seconds):
    """A date as property lists hold it: UTC, whole seconds, so up to one second earlier."""
    now = datetime.datetime.now(datetime.timezone.utc).replace(tzinfo=None, microsecond=0)
    return now - datetime.timedelta(seconds=seconds)


class SettingsFile:
    """The file of a domain of settings below a configuration folder."""

    def __init__(self, configuration_folder, domain):
        self.folder = os.path.join(configuration_folder, "orvik-menu")
        self.path = os.path.join(self.folder, domain + ".plist")

    def exists(self):
        return os.path.exists(self.path)

    def read(self):
        with open(self.path, "rb") as file:
            return plistlib.load(file)

    def text(self):
        return as_text(self.read())

    def bytes(self):
        with open(self.path, "rb") as file:
            return file.read()

    def write(self, **values):
        """Replaces the whole file."""
        os.makedirs(self.folder, mode=0o700, exist_ok=True)
        temporary = self.path + ".new"
        with open(os.open(temporary, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600), "wb") as file:
            plistlib.dump(values, file)
        os.rename(temporary, self.path)

    @contextlib.contextmanager
    def locked(self):
        """Keeps every other writer waiting, for as long as it has the patience."""
        lock = os.open(self.path + ".lock", os.O_RDWR | os.O_CREAT, 0o600)
        try:
            fcntl.flock(lock, fcntl.LOCK_EX)
            yield
        finally:
            os.close(lock)

    def write_request(self, path, seconds_old=0, **values):
        """Leaves a mail request, as the extension does before it starts the panel."""
        self.write(mailAttachPath=path, AttachClickedDate=seconds_ago(seconds_old), **values)
