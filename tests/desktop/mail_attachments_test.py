"""What reaches the mail program, whatever the item is called and whichever mail program there is."""

import io
import os
import unittest
import zipfile

from support.case import DesktopTestCase
from support.mail import CommandMessages
from support.panel import CHOOSER
from support.waiting import eventually

CONTENTS = bytes(range(256)) * 1000

NAMES = [
    "two words  and more .txt",
    "it's \"quoted\" `id` $HOME; rm -rf ~ & | > <",
    "line\nend.txt",
    "-leading dash",
    "--attach=other",
    "back\\slash, comma, 100 %20 %s #?.txt",
    "Übergröße 名前 \U0001f600.txt",
    ".hidden",
    "x" * 251 + ".txt",
]

NOT_TEXT = b"latin-1 \xe4\xf6\xfc \xff.bin"


class Attachments(DesktopTestCase):
    def send_at_launch(self, path):
        """Starts a panel that proposes the item, and confirms it."""
        self.suite.write_request(path)
        panel = self.start_panel()
        self.confirm(panel)
        return panel

    def confirm(self, panel, *keys):
        panel.chooser()
        # The process would wait for the mail program to read what it made for it.
        self.addCleanup(panel.kill)
        self.hands.press(*keys, "Return")
        eventually(lambda: not panel.shows(CHOOSER), "the chooser to go")

    def test_the_portal_is_given_any_item_whole(self):
        portal = self.start_portal()
        for number, name in enumerate(NAMES, 1):
            with self.subTest(name=name):
                self.become_someone_new()
                path = self.home.make_file(name, CONTENTS)
                panel = self.send_at_launch(path)

                eventually(lambda: len(portal.all()) == number, "the message")
                message = portal.all()[-1]
                self.assertEqual(message.attachments, [CONTENTS])
                self.assertEqual(message.names, [os.fsencode(path)])
                panel.kill()

    def test_the_mail_command_is_given_any_item_whole(self):
        for name in NAMES:
            with self.subTest(name=name):
                self.become_someone_new()
                messages = CommandMessages(self.home.install_mail_command())
                panel = self.send_at_launch(self.home.make_file(name, CONTENTS))

                message = messages.only()
                self.assertEqual(message.attachments, [CONTENTS])
                self.assertGivenOneFile(message)
                panel.kill()

    def assertGivenOneFile(self, message):
        """One --attach, and no argument that could be taken for another option or for an address."""
        options = [argument for argument in message.arguments if argument.startswith(b"-")]
        self.assertEqual(sorted({*options, b"--utf8"}), [b"--attach", b"--utf8"])
        self.assertEqual(len(message.arguments), len(options) + 1)

    def choose_the_one_that_is_not_text(self):
        self.home.make_file(NOT_TEXT, CONTENTS)
        # Listed first, whatever the order, as it is the one that is asked for.
        self.suite.write_request(self.home.make_file("aaa", b"not this one"))
        panel = self.start_panel()
        self.confirm(panel, "Down")

    def test_the_portal_is_given_a_name_that_is_not_text(self):
        portal = self.start_portal()
        self.choose_the_one_that_is_not_text()

        self.assertEqual(portal.only().attachments, [CONTENTS])

    def test_the_mail_command_is_given_a_name_that_is_not_text(self):
        messages = CommandMessages(self.home.install_mail_command())
        self.choose_the_one_that_is_not_text()

        message = messages.only()
        self.assertEqual(message.attachments, [CONTENTS])
        self.assertGivenOneFile(message)
        # Mail programs take text.
        self.assertTrue(message.arguments[-1].decode("utf-8").endswith(".bin"))

    def make_tree(self, name):
        folder = os.path.join(self.home.files, name)
        os.makedirs(folder + "/inner/empty")
        for path, contents in (("top.txt", b"top"), ("inner/ü -x.txt", CONTENTS)):
            with open(os.path.join(folder, path), "wb") as file:
                file.write(contents)
        return folder

    def assertIsTheTree(self, name, archive):
        with zipfile.ZipFile(io.BytesIO(archive)) as opened:
            self.assertIsNone(opened.testzip())
            files = {info.filename: opened.read(info) for info in opened.infolist() if not info.is_dir()}
        self.assertEqual(files, {f"{name}/top.txt": b"top", f"{name}/inner/ü -x.txt": CONTENTS})

    def test_the_portal_is_given_a_folder_as_one_archive(self):
        portal = self.start_portal()
        self.send_at_launch(self.make_tree("Holiday photos"))

        message = portal.only()
        archive, = message.attachments
        self.assertIsTheTree("Holiday photos", archive)
        self.assertEqual(os.path.basename(message.names[0]), b"Holiday photos.zip")

    def test_the_mail_command_is_given_a_folder_as_one_archive(self):
        messages = CommandMessages(self.home.install_mail_command())
        self.send_at_launch(self.make_tree("Holiday photos"))

        message = messages.only()
        archive, = message.attachments
        self.assertIsTheTree("Holiday photos", archive)
        self.assertGivenOneFile(message)

    def test_the_portal_comes_before_the_mail_command(self):
        portal = self.start_portal()
        messages = CommandMessages(self.home.install_mail_command())
        self.send_at_launch(self.home.make_file("a", b"a"))

        portal.only()
        self.assertEqual(messages.all(), [])

    def test_without_any_way_to_send_mail_the_panel_stops(self):
        self.suite.write_request(self.home.make_file("a", b"a"))
        panel = self.start_panel()
        panel.chooser()
        self.hands.press("Return")

        self.assertAborted(panel, "mail")


if __name__ == "__main__":
    unittest.main()
