"""The window of View or Edit Exif Data, and photos for it."""

import json
import os
import shutil
import subprocess

from .action_window import ActionDriver
from .waiting import eventually

ACTION = "view-or-edit-exif-data"
TITLE = "Exif Data"
PHOTOS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../platform/exif/photos")
_EXIFTOOL = shutil.which("exiftool")
# What each person has of the machine.
_PROGRAM_PATH = "/usr/bin:/bin"


class ExifWindow(ActionDriver):
    """What is to be seen and done in it, and what the photos say then."""

    def install_exiftool(self):
        """Gives the person an exiftool. Without it the action is not offered."""
        for program in _EXIFTOOL, "/usr/bin/env", "/usr/bin/perl":
            os.symlink(program, os.path.join(self.home.programs, os.path.basename(program)))

    def photo(self, name="photo.jpg", kind="jpg", **tags):
        path = os.path.join(self.home.files, name)
        shutil.copy(os.path.join(PHOTOS, "photo." + kind), path)
        if tags:
            subprocess.run([_EXIFTOOL, "-q", "-overwrite_original", *[f"-{tag}={value}" for tag, value in tags.items()],
                            path], check=True, env={"PATH": _PROGRAM_PATH, "LANG": "C.UTF-8"})
        return path

    def tags(self, path):
        with open(path, "rb") as file:
            return self.tags_of(file)

    @staticmethod
    def tags_of(file):
        output = subprocess.run([_EXIFTOOL, "-json", "-n", "-"], check=True, capture_output=True, stdin=file,
                                env={"PATH": _PROGRAM_PATH, "LANG": "C.UTF-8"}).stdout
        return json.loads(output)[0]

    def cells(self):
        return [item.name for item in self.window.all("tree item")]

    def to_edit_page(self):
        """From wherever the keyboard is to the form."""
        tabs = eventually(lambda: self.window.find("page tab list"), "the pages")
        for _ in range(30):
            if eventually(self.window.focused, "something to have the keyboard") == tabs:
                break
            self.hands.press("shift+Tab")
        self.hands.press("Right")
        eventually(lambda: self.window.find("text", "Title").has("enabled"), "the form")

    def save(self):
        self.go_to("Save")
        self.hands.press("space")
