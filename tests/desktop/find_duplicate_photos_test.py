"""Finding duplicate photos: the window, by accessibility and by keyboard, and what becomes of the files."""

import os
import struct
import unittest
import zlib

from support.duplicates_window import DuplicatesWindowTestCase
from support.photos import paint
from support.waiting import eventually


class FindDuplicatePhotos(DuplicatesWindowTestCase):
    action_name = "find-duplicate-photos"
    title = "Duplicate Photos"

    def path(self, name):
        path = os.path.join(os.fsencode(self.home.files), os.fsencode(name))
        os.makedirs(os.path.dirname(path), exist_ok=True)
        return path

    def paint(self, name, *arguments, **options):
        path = self.path(name)
        paint(path, *arguments, **options)
        return path

    def texts(self):
        """What the list of items says."""
        return [cell.name for cell in self.cells()]

    def test_the_same_picture_is_found_and_the_best_is_kept(self):
        self.paint("large.jpg", 1)
        self.paint("small.jpg", 1, 240, 180)
        self.paint("turned.png", 1, 240, 180, change=["-rotate", "90"])
        self.paint("other.jpg", 2)
        self.open()
        eventually(lambda: len(self.groups()) == 1, "the group")
        eventually(lambda: any(name.startswith("480 × 360") for name in self.texts()), "the size in pixels")
        self.assertIn("Most pixels", " ".join(self.texts() + self.labels()))
        self.save_picture("duplicate-photos")
        self.assertReadsWell(self.window)
        self.choose_by_rule("Down")
        eventually(lambda: any(label.startswith("Chosen: 2 photos") for label in self.labels()), "the choice")
        self.press_button("Move 2 Items to Trash")
        self.assertEventuallyEqual(self.left, [b"large.jpg", b"other.jpg"])
        self.assertEqual(self.trashed(), [b"small.jpg", b"turned.png"])

    def test_what_is_said_of_the_best_is_true_where_a_smaller_picture_has_the_largest_file(self):
        self.paint("best.jpg", 9)
        self.paint("worse.jpg", 9, change=["-blur", "0x3"])
        self.paint("smaller.png", 9, 440, 330)
        self.assertGreater(os.path.getsize(self.path("smaller.png")), os.path.getsize(self.path("best.jpg")))
        self.open()
        eventually(lambda: self.groups() and "3 photos" in self.groups()[0], "the group")
        self.assertIn("Most pixels, larger file", self.texts())
        heading = next(label for label in self.labels() if label.startswith("1 group, "))
        self.choose_by_rule("Down")
        saving = heading.removeprefix("1 group, ").removesuffix(" could be saved")
        self.assertTells(f"Chosen: 2 photos, {saving}")

    def test_the_slider_regroups(self):
        self.paint("whole.jpg", 3)
        self.paint("cut.jpg", 3, change=["-gravity", "center", "-crop", "94x94%+0+0", "+repage"])
        self.open()
        eventually(lambda: len(self.groups()) == 1, "the group")
        self.go_to("Similarity")
        self.hands.press("End")
        self.assertTells("No two photos show the same.")
        self.save_picture("duplicate-photos-none")
        self.assertReadsWell(self.window)
        self.hands.press("Home")
        eventually(lambda: len(self.groups()) == 1, "the group again")
        self.choose_by_rule("Down")
        chosen = eventually(lambda: [label for label in self.labels() if label.startswith("Chosen: 1 photo")], "the choice")
        self.go_to("Similarity")
        self.hands.press("End")
        self.assertTells("No two photos show the same.")
        self.hands.press("Home")
        self.assertTells(*chosen)

    def test_what_cannot_be_read_is_told_of_and_the_others_are_found(self):
        self.paint("a.jpg", 4)
        self.paint("b.png", 4)
        with open(self.path("text.jpg"), "wb") as file:
            file.write(b"no picture")
        with open(self.paint("damaged.jpg", 5), "r+b") as file:
            file.truncate(2000)
        # The header of a PNG of 60,000 by 60,000.
        header = b"IHDR" + struct.pack(">IIBBBBB", 60_000, 60_000, 8, 2, 0, 0, 0)
        with open(self.path("large.png"), "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n" + struct.pack(">I", 13) + header + struct.pack(">I", zlib.crc32(header)))
            file.write(struct.pack(">I", 0) + b"IDAT" + struct.pack(">I", zlib.crc32(b"IDAT")))
        os.mkfifo(self.path("pipe.jpg"))
        self.open()
        eventually(lambda: len(self.groups()) == 1, "the group")
        eventually(lambda: self.window.find("push button", "3 Items Were Left Out…"), "the others to be told of")
        self.press_button("3 Items Were Left Out…")
        text = self.action.active_window("Left Out").find("text", "Left Out").text
        self.assertIn("text.jpg is no picture, though it is named like one.", text)
        self.assertIn("damaged.jpg cannot be read: it is damaged or ends too early.", text)
        self.assertIn("large.png is too large: it has 60000 × 60000 pixels.", text)

    def test_the_last_one_stays_though_the_others_have_changed(self):
        self.paint("a.jpg", 6)
        self.paint("b.jpg", 6, 240, 180)
        self.open()
        eventually(lambda: len(self.groups()) == 1, "the group")
        self.choose_by_rule("Down")
        eventually(lambda: any(label.startswith("Chosen: 1 photo") for label in self.labels()), "the choice")
        os.remove(self.path("a.jpg"))
        self.press_button("Move 1 Item to Trash")
        eventually(lambda: self.window.find("push button", "1 Item Was Left Out…"), "it to be left out")
        self.assertEqual(self.left(), [b"b.jpg"])

    def test_names_are_bytes_until_they_are_in_the_trash(self):
        names = [b"new\nline.jpg", b"-rf --.jpg", b"$(touch pwned).jpg", b"100%s%n%20#?.jpg", b"not \xff utf-8.jpg"]
        source = self.paint("stays.jpg", 7)
        with open(source, "rb") as file:
            contents = file.read()
        for name in names:
            path = self.path(name)
            with open(path, "wb") as file:
                file.write(contents)
            os.utime(path, (2_000_000_000, 2_000_000_000))
        os.utime(source, (1_000_000_000, 1_000_000_000))
        self.open()
        eventually(lambda: len(self.groups()) == 1, "the group")
        eventually(lambda: not self.window.all("progress bar"), "the end of the search")
        self.choose_by_rule("Down")
        self.press_button("Move 5 Items to Trash")
        self.assertEventuallyEqual(self.left, [b"stays.jpg"])
        self.assertEqual(len(self.trashed()), 5)

    def test_closing_ends_a_search_that_goes_on(self):
        self.paint("a.jpg", 8, 3000, 2250)
        for number in range(60):
            os.link(self.path("a.jpg"), self.path(f"link {number}"))
        with open(self.path("a.jpg"), "rb") as file:
            contents = file.read()
        for number in range(60):
            with open(self.path(f"copy {number}.jpg"), "wb") as file:
                file.write(contents)
        self.open()
        self.hands.press("Escape")
        self.action.wait_for_end()
        self.assertEqual(len(self.left()), 121)


if __name__ == "__main__":
    unittest.main()
