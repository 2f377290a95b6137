"""Resize Photos: the window, asked for on the bus, by accessibility and by keyboard alone, and the files it makes."""

import os
import signal
import struct
import subprocess
import unittest
import zlib

from support.action_window import ActionDriver, run_action, start_companion
from support.case import DesktopTestCase
from support.folders import go_to
from support.hostile_names import NAMES
from support.waiting import eventually

ACTION = "resize-photos"
TITLE = "Resize Photos"
CHOOSER = "Choose"


class ResizePhotos(ActionDriver, DesktopTestCase):
    def setUp(self):
        super().setUp()
        start_companion(self)

    def path(self, name):
        return os.path.join(os.fsencode(self.home.files), os.fsencode(name))

    def photo(self, name="photo.jpg", width=1200, height=900):
        """A JPEG of noise, whatever its name says."""
        picture = subprocess.run(
            ["convert", "-size", f"{width}x{height}", "-seed", "7", "plasma:tomato-steelblue", "-attenuate", "0.3",
             "+noise", "gaussian", "-quality", "92", "jpg:-"], check=True, capture_output=True).stdout
        with open(self.path(name), "wb") as file:
            file.write(picture)
        return self.path(name)

    def size_of(self, path):
        with open(path, "rb") as file:
            return subprocess.run(["identify", "-format", "%m %wx%h", "-"], check=True, capture_output=True,
                                  stdin=file).stdout.decode()

    @staticmethod
    def contents(path):
        with open(path, "rb") as file:
            return file.read()

    def left(self):
        return sorted(os.listdir(os.fsencode(self.home.files)))

    def open(self, *paths):
        self.action = run_action(self, ACTION, *paths)
        self.window = self.action.active_window(TITLE)

    def assertTells(self, words):
        eventually(lambda: any(words in label for label in self.labels()), f"“{words}” among {self.labels()}")

    def test_both_are_side_by_side_with_their_sizes(self):
        path = self.photo(width=2400, height=1800)
        self.open(path)
        bytes_before = os.path.getsize(path)
        self.assertTells(f"2400 × 1800 pixels · {bytes_before / 1e6:.1f} MB")
        self.assertTells("1920 × 1440 pixels")
        self.assertEqual([(found.role, found.name) for found in self.window.descendants()
                          if found.name in ("Before", "After")],
                         [("label", "Before"), ("graphic", "Before"), ("label", "After"), ("graphic", "After")])
        self.save_picture("resize")
        self.assertReadsWell(self.window)
        self.choose("For a screen", "Down", "Down")
        self.assertTells("1200 × 900 pixels")
        self.assertEqual(self.left(), [b"photo.jpg"])

    def test_half_of_a_photo_lies_beside_it(self):
        before = self.contents(self.photo())
        self.open(self.path("photo.jpg"))
        self.choose("For a screen", "Down", "Down")
        self.press_button("Resize")
        self.assertTells("1 photo was resized: ")
        self.assertEqual(self.left(), [b"photo-600x450.jpg", b"photo.jpg"])
        self.assertEqual(self.size_of(self.path("photo-600x450.jpg")), "JPEG 600x450")
        self.assertEqual(self.contents(self.path("photo.jpg")), before)
        self.save_picture("resize-done")
        self.assertReadsWell(self.window)

    def test_return_presses_a_button_and_the_end_is_told(self):
        self.open(self.photo())
        self.choose("For a screen", "Down", "Down")
        self.assertTells("600 × 450 pixels")
        listener = self.listen(self.action)
        self.go_to("Resize")
        self.hands.press("Return")
        self.assertTells("1 photo was resized: ")
        eventually(lambda: [words.partition(":")[0] for words in listener.announced()] == ["1 photo was resized"],
                   "the end to be told")

    def test_in_its_place_the_original_goes_to_the_trash(self):
        before = self.contents(self.photo())
        self.open(self.path("photo.jpg"))
        self.choose("For a screen", "End")
        self.choose("Longest side")
        self.go_to("Value")
        self.hands.press("ctrl+a")
        self.hands.type("300")
        self.choose("Beside the originals", "End")
        self.press_button("Resize")
        self.assertTells("1 photo was resized: ")
        self.assertEqual(self.left(), [b"photo.jpg"])
        self.assertEqual(self.size_of(self.path("photo.jpg")), "JPEG 300x225")
        self.assertEqual(self.contents(os.path.join(self.home.data, "Trash", "files", "photo.jpg")), before)

    def test_a_mail_has_room_for_all_of_them(self):
        paths = [self.photo(f"{number}.jpg") for number in range(3)]
        self.open(*paths)
        self.assertEqual(self.labels()[0], "3 photos")
        self.choose("For a screen", "Down")
        self.go_to("Value")
        self.hands.press("ctrl+a")
        self.hands.type("300")
        self.press_button("Resize")
        self.assertTells("3 photos were resized: ")
        made = [name for name in self.left() if len(name) > len(b"0.jpg")]
        self.assertEqual(len(made), 3)
        self.assertLessEqual(sum(os.path.getsize(self.path(name)) for name in made), 300_000)
        self.save_picture("resize-mail")

    def test_only_a_mail_needs_no_more_than_a_screen_shows(self):
        path = self.photo(width=2400, height=1800)
        most = str(os.path.getsize(path) * 3 // 4 // 1000)
        self.open(path)
        self.choose("For a screen", "Down")
        self.go_to("Value")
        self.hands.press("ctrl+a")
        self.hands.type(most)
        self.assertTells("2048 × 1536 pixels")
        self.choose("For mail", "End")
        self.choose("Longest side", "Down", "Down")
        self.go_to("Value")
        self.hands.press("ctrl+a")
        self.hands.type(most)
        self.press_button("Resize")
        self.assertTells("1 photo was resized: ")
        self.assertEqual(self.left(), [b"photo-2400x1800.jpg", b"photo.jpg"])

    def test_they_go_to_a_folder_under_a_name_by_pattern(self):
        folder = os.path.join(self.home.folder, "small ones")
        os.mkdir(folder)
        self.open(self.photo())
        self.choose("For a screen", "Down", "Down")
        self.choose("Beside the originals", "Down")
        self.press_button("Resize")
        self.assertTells("Choose the folder first.")
        self.assertReadsWell(self.window)
        self.press_button("Choose Folder…")
        chooser = eventually(
            lambda: next(window for window in self.action.windows() if window != self.window and window.has("active")),
            "the chooser")
        go_to(self.hands, chooser, folder)
        self.action.go_to(CHOOSER, chooser)
        self.hands.press("space")
        self.action.active_window(TITLE)
        self.assertTells(folder)
        self.go_to("Name")
        self.hands.press("ctrl+a")
        self.hands.type("small")
        self.hands.press("Return")
        self.assertTells("The name needs {name} in it")
        self.hands.press("ctrl+a")
        self.hands.type("{name} small")
        self.assertTells("photo small.jpg")
        self.hands.press("Return")
        self.assertTells("1 photo was resized: ")
        self.assertEqual(os.listdir(folder), ["photo small.jpg"])

    def test_what_cannot_be_resized_is_named_and_the_others_are_done(self):
        good = self.photo("good.jpg")
        whole = self.contents(good)
        with open(self.path("truncated.jpg"), "wb") as file:
            file.write(whole[:len(whole) // 2])
        # The header of a PNG of 60,000 by 60,000.
        header = b"IHDR" + struct.pack(">IIBBBBB", 60_000, 60_000, 8, 2, 0, 0, 0)
        with open(self.path("large.png"), "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n" + struct.pack(">I", 13) + header + struct.pack(">I", zlib.crc32(header)))
            file.write(struct.pack(">I", 0) + b"IDAT" + struct.pack(">I", zlib.crc32(b"IDAT")))
        self.photo("misnamed.png")
        self.photo("vanishes.jpg")
        self.photo("small.jpg", 100, 75)
        names = ["good.jpg", "truncated.jpg", "large.png", "misnamed.png", "vanishes.jpg", "small.jpg"]
        self.open(*map(self.path, names))
        os.remove(self.path("vanishes.jpg"))
        os.mkfifo(self.path("vanishes.jpg"))
        self.choose("For a screen", "End")
        self.choose("Longest side")
        self.go_to("Value")
        self.hands.press("ctrl+a")
        self.hands.type("200")
        self.press_button("Resize")
        self.assertTells("2 photos were resized: ")
        self.assertTells("1 is small enough already. These were left as they are:")
        failures = [item.name for item in self.window.find("list", "Photos that failed").all("list item")]
        self.assertEqual(len(failures), 3, failures)
        self.assertIn("truncated.jpg cannot be resized: it is damaged or ends too early.", failures)
        self.assertIn("large.png is too large: it has 60000 × 60000 pixels.", failures)
        self.assertTrue(any(failure.startswith("vanishes.jpg cannot be opened") for failure in failures), failures)
        self.assertEqual(self.size_of(self.path("misnamed-200x150.png")), "JPEG 200x150")
        self.save_picture("resize-failures")
        self.assertReadsWell(self.window)

    def test_names_are_nothing_but_names(self):
        for name in NAMES:
            self.photo(name, 400, 300)
        self.open(*map(self.path, NAMES))
        self.choose("For a screen", "Down", "Down")
        self.press_button("Resize")
        self.assertTells(f"{len(NAMES)} photos were resized: ")
        made = [name for name in self.left() if name not in NAMES]
        self.assertEqual(len(made), len(NAMES))
        for name in made:
            self.assertIn(b"-200x150", name)
            self.assertEqual(self.size_of(self.path(name)), "JPEG 200x150")
        self.assertFalse(os.path.exists(os.path.join(self.home.folder, "pwned")))

    def workers(self):
        """The processes that the action has started."""
        found = set()
        for entry in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{entry}/stat", encoding="utf-8", errors="replace") as file:
                    if int(file.read().rpartition(")")[2].split()[1]) == self.action.process_id:
                        found.add(int(entry))
            except OSError:
                continue
        return found

    def start_work_without_end(self):
        """Resizes more photos than are done at once, by workers of which one at least stands still."""
        paths = [self.photo("0.jpg", 4000, 3000)]
        for number in range(1, 30):
            paths.append(self.path(f"{number}.jpg"))
            os.link(paths[0], paths[-1])
        self.open(*paths)
        self.assertTells("1920 × 1440 pixels")
        self.go_to("Resize")
        others = self.workers()
        self.hands.press("space")
        for worker in eventually(lambda: self.workers() - others, "the workers"):
            os.kill(worker, signal.SIGSTOP)
        return paths

    def assertMadeAreWhole(self, paths):
        made = [name for name in self.left() if self.path(name) not in paths]
        self.assertLess(len(made), len(paths))
        for name in made:
            self.assertEqual(self.size_of(self.path(name)), "JPEG 1920x1440")

    def test_closing_ends_the_work_and_leaves_whole_files_only(self):
        paths = self.start_work_without_end()
        self.hands.press("Escape")
        self.action.wait_for_end()
        self.assertMadeAreWhole(paths)

    def test_cancelling_leaves_the_rest_as_it_is(self):
        paths = self.start_work_without_end()
        eventually(lambda: self.window.find("push button", "Cancel"), "the progress")
        self.assertReadsWell(self.window)
        self.press_button("Cancel")
        self.assertTells("It was ended.")
        self.assertTrue(self.window.find("push button", "Resize").has("enabled"))
        self.assertMadeAreWhole(paths)

    def test_another_may_run_meanwhile(self):
        path = self.photo()
        self.open(path)
        first = self.action
        self.open(path)
        self.hands.press("Escape")
        self.action.wait_for_end()
        self.assertTrue(first.is_running())


if __name__ == "__main__":
    unittest.main()
