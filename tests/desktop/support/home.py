"""A person's folders, all of them empty at first, and the programs that the person has."""

import os
import shutil

_HERE = os.path.dirname(os.path.abspath(__file__))


class Home:
    """Below one folder, which is whoever's that made it."""

    def __init__(self, folder):
        self.folder = folder
        self.configuration = self._make("config")
        self.data = self._make("data")
        self.runtime = self._make("run")
        self.programs = self._make("programs")
        self.files = self._make("files")

    def _make(self, name):
        path = os.path.join(self.folder, name)
        os.mkdir(path, 0o700)
        return path

    @property
    def environment(self):
        return {
            "HOME": self.folder,
            "XDG_CONFIG_HOME": self.configuration,
            "XDG_DATA_HOME": self.data,
            "XDG_RUNTIME_DIR": self.runtime,
            "PATH": self.programs,
            "LANG": "C.UTF-8",
        }

    def install_mail_command(self):
        """Gives the person an xdg-email. Answers the folder that its messages come to."""
        messages = os.path.join(self.programs, "messages")
        os.mkdir(messages)
        command = shutil.copy(os.path.join(_HERE, "mail_command.py"), os.path.join(self.programs, "xdg-email"))
        os.chmod(command, 0o755)
        return messages

    def make_file(self, name, contents=b""):
        """A file among the person's files. A name that is no text is given as bytes, and so is the answer."""
        path = os.path.join(os.fsencode(self.files) if isinstance(name, bytes) else self.files, name)
        with open(path, "wb") as file:
            file.write(contents)
        return path
