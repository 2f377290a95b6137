"""View or Edit Exif Data: what photos say, asked for on the bus and driven by keyboard alone."""

import os
import shutil
import signal
import unittest

from gi.repository import GLib

from support.action_window import ask_for_action, run_action, start_companion
from support.case import DesktopTestCase
from support.exif_window import ACTION, PHOTOS, TITLE, ExifWindow
from support.hostile_names import NAMES
from support.waiting import eventually


class Exif(ExifWindow, DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.install_exiftool()
        start_companion(self)

    def open(self, *paths):
        self.action = run_action(self, ACTION, *paths)
        self.window = self.action.active_window(TITLE)

    def test_it_shows_the_usual_first_and_everything_after_it(self):
        self.open(self.photo(Title="A hill", Artist="Ada", ISO=400))
        cells = eventually(lambda: "A hill" in self.cells() and self.cells(), "the data")
        self.assertEqual(cells[0], "Summary")
        self.assertIn("Ada", cells)
        self.assertIn("Bits Per Sample", cells)
        self.assertIn("photo.jpg", self.labels())
        self.save_picture("exif-information")
        self.assertReadsWell(self.window)

    def test_a_search_goes_through_names_and_values(self):
        self.open(self.photo(Title="A hill", Artist="Ada"))
        eventually(lambda: "A hill" in self.cells(), "the data")
        self.go_to("Search")
        self.hands.type("hill")
        eventually(lambda: "A hill" in self.cells() and "Ada" not in self.cells(), "what is found")
        self.hands.type("zzz")
        self.assertTells("Nothing is found.")
        self.assertReadsWell(self.window)

    def test_texts_a_date_and_a_place_are_written_by_keyboard_alone(self):
        path = self.photo(Title="old")
        self.open(path)
        self.to_edit_page()
        for name, text in (("Title", "new title"), ("Description", "two words"), ("Author", "Ada"),
                           ("Copyright", "free"), ("Date taken", "2024-02-29 12:34:56"), ("Place", "48.5, -2.25")):
            self.go_to(name)
            self.hands.press("ctrl+a")
            self.hands.type(text)
        self.save()

        self.assertTells("1 photo was saved.")
        tags = self.tags(path)
        self.assertEqual([tags[name] for name in ("Title", "Description", "Artist", "Copyright", "DateTimeOriginal")],
                         ["new title", "two words", "Ada", "free", "2024:02:29 12:34:56"])
        self.assertAlmostEqual(tags["GPSLatitude"], 48.5)
        self.assertAlmostEqual(tags["GPSLongitude"], -2.25)
        self.assertEqual(os.listdir(self.home.files), ["photo.jpg"])
        self.save_picture("exif-edit")
        self.assertReadsWell(self.window)

    def test_pages_change_and_fields_follow_as_they_are_read(self):
        self.open(self.photo(Title="A hill"))
        eventually(lambda: "A hill" in self.cells(), "the data")
        self.hands.press("ctrl+Next")
        eventually(lambda: self.window.find("text", "Title").has("enabled"), "the form")
        self.hands.press("ctrl+Prior")
        eventually(lambda: "A hill" in self.cells(), "the data again")
        self.to_edit_page()
        fields = ["Title", "Description", "Author"]
        ends = ["Remove Location and Personal Data…", "Save"]
        for name in fields:
            self.hands.press("Tab")
            eventually(lambda name=name: self.window.focused().name == name, f"“{name}” to have the keyboard")
        self.go_to("Keep the file's date of change")
        for name in ends:
            self.hands.press("Tab")
            eventually(lambda name=name: self.window.focused().name == name, f"“{name}” to have the keyboard")

    def test_the_keyboard_stays_where_it_was_when_it_has_been_saved(self):
        path = self.photo()
        self.open(path)
        self.to_edit_page()
        for name in "Title", "Description":
            self.go_to(name)
            self.hands.type("one")
            self.go_to("Save")
            self.hands.press("space")
            eventually(lambda name=name: self.tags(path).get(name) == "one", "the photo to be saved")
            eventually(lambda: self.window.focused() and self.window.focused().name == "Save",
                       "“Save” to have the keyboard again")
        self.go_to("Title")
        self.hands.type("two")
        self.hands.press("Return")
        eventually(lambda: "two" in self.tags(path)["Title"], "the photo to be saved")
        eventually(lambda: self.window.focused() and self.window.focused().name == "Title",
                   "“Title” to have the keyboard again")

    def test_the_keyboard_stays_where_it_is_taken_while_photos_are_saved(self):
        flag = self.stall_exiftool()
        path = self.photo()
        self.open(path)
        self.to_edit_page()
        self.go_to("Title")
        self.hands.type("one")
        self.home.make_file(flag)
        self.go_to("Save")
        self.hands.press("space")
        eventually(lambda: not self.window.find("push button", "Save").has("enabled"), "the photo to be saved")
        self.hands.press("ctrl+Prior")
        taken = eventually(self.window.focused, "something to have the keyboard")
        os.remove(flag)
        self.assertTells("1 photo was saved.")
        self.assertEqual(self.tags(path)["Title"], "one")
        eventually(lambda: "one" in self.cells(), "the photo to be read again")
        self.assertEqual(self.window.focused(), taken)

    def test_the_keyboard_is_not_taken_where_photos_are_read_later(self):
        flag = self.stall_exiftool()
        self.open(self.photo("a.jpg", Title="a"), self.photo("b.jpg", Title="b"))
        self.to_edit_page()
        self.go_to("Author")
        self.hands.type("Ada")
        self.home.make_file(flag)
        self.go_to("Save")
        self.hands.press("space")
        self.cancel()
        self.assertTells("It was ended; the photos that were not saved yet are as they were.")
        self.cancel()
        self.assertTells("Reading was cancelled. Choose photos to read them.")
        os.remove(flag)
        self.go_to("Photos")
        self.hands.press("End")
        eventually(lambda: self.window.find("text", "Title").has("enabled"), "the photo that is chosen")
        self.assertEqual(self.window.focused().name, "Photos")

    def test_what_became_of_it_is_told_to_those_who_listen(self):
        self.open(self.photo())
        self.to_edit_page()
        listener = self.listen(self.action)
        self.go_to("Save")
        self.hands.press("Return")
        eventually(lambda: listener.announced() == ["Nothing has been changed yet."], "the refusal to be told")
        self.go_to("Title")
        self.hands.type("x")
        self.go_to("Save")
        self.hands.press("Return")
        eventually(lambda: listener.announced()[1:] == ["1 photo was saved."], "the end to be told")

    def test_what_many_photos_do_not_share_is_told_and_left_alone(self):
        paths = [self.photo(f"{number}.jpg", Title=f"title {number}", Artist="Ada") for number in range(3)]
        self.open(*paths)
        eventually(lambda: "Different values" in self.cells(), "the data")
        self.assertIn("3 photos", self.labels())
        self.save_picture("exif-many")
        self.assertReadsWell(self.window)
        self.to_edit_page()
        self.go_to("Author")
        self.hands.press("ctrl+a")
        self.hands.type("Bo")
        self.save()

        self.assertTells("3 photos were saved.")
        for number, path in enumerate(paths):
            self.assertEqual((self.tags(path)["Title"], self.tags(path)["Artist"]), (f"title {number}", "Bo"))

    def test_a_field_that_is_emptied_again_leaves_what_differs_alone(self):
        places = ("48.5", "50.25")
        paths = [self.photo(f"{number}.jpg", Title=f"title {number}", Description=f"words {number}", GPSLatitude=place,
                            GPSLatitudeRef="N", GPSLongitude="2", GPSLongitudeRef="E")
                 for number, place in enumerate(places)]
        self.open(*paths)
        self.to_edit_page()
        for name, typed in ("Title", "x"), ("Description", "x"), ("Place", "4"):
            self.go_to(name)
            self.hands.type(typed)
            self.hands.press("BackSpace")
        self.save()
        self.assertTells("Nothing has been changed yet.")
        self.go_to("Author")
        self.hands.type("Ada")
        self.save()

        self.assertTells("2 photos were saved.")
        for number, place in enumerate(places):
            tags = self.tags(paths[number])
            self.assertEqual((tags["Title"], tags["Description"], tags["GPSLatitude"], tags["Artist"]),
                             (f"title {number}", f"words {number}", float(place), "Ada"))

        eventually(lambda: self.window.find("text", "Place").has("enabled"), "the form")
        self.press_button("Remove Place")
        self.save()
        eventually(lambda: not any("GPSLatitude" in self.tags(path) for path in paths), "the places to go")

    def test_a_date_is_moved_and_the_original_kept(self):
        path = self.photo(DateTimeOriginal="2023:12:31 23:30:00")
        with open(path, "rb") as file:
            before = file.read()
        self.open(path)
        self.to_edit_page()
        self.go_to("Move date by hours")
        self.hands.press("ctrl+a")
        self.hands.type("1")
        self.go_to("Keep the original file beside it, with “_original” after its name")
        self.hands.press("space")
        self.save()

        self.assertTells("1 photo was saved.")
        self.assertEqual(self.tags(path)["DateTimeOriginal"], "2024:01:01 00:30:00")
        with open(path + "_original", "rb") as file:
            self.assertEqual(file.read(), before)

    def test_what_is_personal_is_told_and_removed_when_it_is_agreed_to(self):
        path = self.photo(Title="A hill", Artist="Ada", GPSLatitude="48.5", GPSLatitudeRef="N", SerialNumber="123")
        self.open(path)
        self.to_edit_page()
        for key, remains in (("Escape", True), ("space", False)):
            self.go_to("Remove Location and Personal Data…")
            self.hands.press("space")
            dialog = self.action.active_window("Remove Location and Personal Data")
            shown = [item.name for item in dialog.all("tree item")]
            for words in ("Where it was taken", "Who took it and who is in it", "Which camera it was", "Ada", "123"):
                self.assertIn(words, shown)
            if not remains:
                self.save_picture("exif-personal")
                self.assertReadsWell(dialog)
                self.action.go_to("Remove", dialog)
            self.hands.press(key)
            self.action.active_window(TITLE)
            if remains:
                self.assertIn("GPSLatitude", self.tags(path))
        self.assertTells("1 photo was saved.")
        tags = self.tags(path)
        self.assertEqual(tags["Title"], "A hill")
        self.assertFalse({"Artist", "GPSLatitude", "SerialNumber"} & set(tags))

    def test_a_second_picture_in_the_file_is_told_of_when_what_is_personal_is_removed(self):
        path = self.photo(Artist="Ada")
        with open(path, "rb") as file:
            picture = file.read()
        with open(path, "ab") as file:
            file.write(picture)
        self.open(path)
        self.to_edit_page()
        self.go_to("Remove Location and Personal Data…")
        self.hands.press("space")
        dialog = self.action.active_window("Remove Location and Personal Data")
        self.assertTrue(any("A file holds more than the picture" in text for text in dialog.texts()), dialog.texts())
        self.save_picture("exif-second-picture")
        self.assertReadsWell(dialog)
        self.action.go_to("Remove", dialog)
        self.hands.press("space")
        self.action.active_window(TITLE)
        self.assertTells("1 photo was saved.")
        self.assertEqual(self.failures(), ["photo.jpg"])
        self.assertNotIn("Artist", self.tags(path))

    def test_a_photo_that_cannot_be_changed_is_named_and_the_others_are_saved(self):
        paths = [self.photo("good.jpg"), self.photo("bad.webp", kind="webp")]
        self.open(*paths)
        self.to_edit_page()
        self.go_to("Title")
        self.hands.type("x")
        self.save()

        self.assertTells("1 photo was saved. These were left as they were:")
        failures, = [item.name for item in self.window.find("list", "Photos that failed").all("list item")]
        self.assertTrue(failures.startswith("bad.webp: "), failures)
        self.assertEqual(self.tags(paths[0])["Title"], "x")
        self.save_picture("exif-failure")
        self.assertReadsWell(self.window)

    def test_what_was_typed_stays_where_nothing_was_saved(self):
        self.open(self.photo("bad.webp", kind="webp"))
        self.to_edit_page()
        self.go_to("Title")
        self.hands.type("a long title")
        self.save()
        self.assertTells("0 photos were saved. These were left as they were:")
        title = eventually(lambda: self.window.find("text", "Title").has("enabled") and
                           self.window.find("text", "Title"), "the form")
        self.assertEqual(title.text, "a long title")

    def test_what_was_typed_goes_only_when_it_is_agreed_to(self):
        self.open(*[self.photo(f"{number}.jpg", Title=f"title {number}") for number in range(2)])
        self.to_edit_page()
        self.go_to("Author")
        self.hands.type("Ada")
        for agrees in False, True:
            self.go_to("Photos")
            self.hands.press("End")
            self.answer(agrees)
            self.action.active_window(TITLE)
            self.assertEqual("2 photos" in self.labels(), not agrees)
            title = "title 1" if agrees else ""
            eventually(lambda title=title: self.window.find("text", "Title").text == title, f"the title “{title}”")
            self.assertEqual(self.window.find("text", "Author").text, "" if agrees else "Ada")

        self.go_to("Author")
        self.hands.type("Bo")
        for agrees in False, True:
            self.hands.press("Escape")
            self.answer(agrees)
            if not agrees:
                self.action.active_window(TITLE)
        self.action.wait_for_end()

    def test_a_session_that_ends_asks_nothing(self):
        self.open(self.photo("a.jpg"))
        self.to_edit_page()
        self.go_to("Author")
        self.hands.type("Ada")
        os.kill(self.action.process_id, signal.SIGTERM)
        self.action.wait_for_end()

    def answer(self, agrees):
        """Says whether what was typed is to go."""
        question = self.action.active_window("Discard Changes")
        self.assertEqual(question.focused().name, "Cancel")
        if agrees:
            self.action.go_to("Discard", question)
        else:
            self.assertReadsWell(question)
            self.save_picture("exif-discard")
        self.hands.press("space")

    def failures(self):
        return sorted(item.name.partition(":")[0] for found in self.window.all("list")
                      if found.name == "Photos that failed" for item in found.all("list item"))

    def test_what_failed_stays_told_until_others_are_chosen(self):
        paths = [self.photo("good.jpg"), self.photo("kept.webp", kind="webp"), self.photo("vanishes.jpg")]
        self.open(*paths)
        self.to_edit_page()
        os.remove(paths[2])
        self.go_to("Title")
        self.hands.type("x")
        self.save()
        self.assertTells("1 photo was saved. These were left as they were:")
        eventually(lambda: self.window.find("text", "Title").has("enabled"), "the photos to be read again")
        self.assertEqual(self.failures(), ["kept.webp", "vanishes.jpg"])

        self.go_to("Photos")
        self.hands.press("End")
        self.hands.press("Home")
        eventually(lambda: "good.jpg" in self.labels(), "the one that was chosen")
        eventually(lambda: not self.failures() and not any("saved" in label for label in self.labels()),
                   "what was said of the others to go")

    def test_what_is_written_in_the_form_is_saved_with_the_removal(self):
        path = self.photo(Artist="Ada")
        self.open(path)
        self.to_edit_page()
        self.go_to("Title")
        self.hands.type("A hill")
        self.go_to("Remove Location and Personal Data…")
        self.hands.press("space")
        dialog = self.action.active_window("Remove Location and Personal Data")
        self.action.go_to("Remove", dialog)
        self.hands.press("space")
        self.action.active_window(TITLE)
        self.assertTells("1 photo was saved.")
        tags = self.tags(path)
        self.assertEqual(tags.get("Title"), "A hill")
        self.assertNotIn("Artist", tags)

    def test_what_is_not_to_be_understood_is_told_and_nothing_is_written(self):
        path = self.photo()
        with open(path, "rb") as file:
            before = file.read()
        self.open(path)
        self.to_edit_page()
        for typed in "yesterday", "2024-02-29 11:30:00 pm":
            self.go_to("Date taken")
            self.hands.press("ctrl+a")
            self.hands.type(typed)
            self.save()
            self.assertTells("The date is to be written as 2026-12-31 23:59:59.")
        self.assertReadsWell(self.window)
        with open(path, "rb") as file:
            self.assertEqual(file.read(), before)

    def test_escape_closes_it_and_another_may_run_meanwhile(self):
        path = self.photo()
        self.open(path)
        first = self.action
        self.open(path)
        self.hands.press("Escape")
        self.action.wait_for_end()
        self.assertTrue(first.is_running())
        first.active_window(TITLE)
        self.hands.press("Escape")
        first.wait_for_end()

    def stall_exiftool(self):
        """Has it stand still while a file is there, whose name is the answer."""
        flag = os.path.join(self.home.folder, "stands still")
        program = os.path.join(self.home.programs, "exiftool")
        real = os.path.realpath(program)
        os.unlink(program)
        with open(program, "w", encoding="utf-8") as file:
            file.write(f'#!/bin/bash\nwhile [ -e "{flag}" ]; do /bin/sleep 0.1; done\nexec {real} "$@"\n')
        os.chmod(program, 0o755)
        return flag

    def cancel(self):
        eventually(lambda: self.window.find("push button", "Cancel"), "the button")
        self.press_button("Cancel")

    def test_many_photos_whose_reading_is_cancelled_can_be_read_again(self):
        flag = self.stall_exiftool()
        self.open(*[self.photo(f"{number}.jpg", Title=f"title {number}", Artist="Ada") for number in range(2)])
        eventually(lambda: "Ada" in self.cells(), "the data")
        self.to_edit_page()
        self.home.make_file(flag)
        self.go_to("Photos")
        self.hands.press("End")
        self.cancel()
        self.assertTells("Reading was cancelled. Choose photos to read them.")
        eventually(lambda: not self.window.find("text", "Title").has("enabled") and
                   not self.window.find("text", "Author").text, "the form to be empty")
        self.assertNotIn("1.jpg", self.labels())
        self.assertReadsWell(self.window)

        os.remove(flag)
        self.go_to("Photos")
        self.hands.press("Home")
        eventually(lambda: self.window.find("text", "Title").text == "title 0", "the photo that is chosen then")

    def test_the_window_of_one_photo_goes_when_its_reading_is_cancelled(self):
        self.home.make_file(self.stall_exiftool())
        self.open(self.photo())
        self.cancel()
        self.action.wait_for_end()

    def test_a_name_that_is_no_text_is_no_hindrance(self):
        name = os.fsencode(self.home.files) + b"/not \xff text\n.jpg"
        shutil.copy(os.path.join(PHOTOS, "photo.jpg"), name)
        self.open(name)
        eventually(lambda: "JPEG" in self.cells(), "the data")
        self.assertIn("not \ufffd text\u21b5.jpg", self.labels())

    def test_names_are_nothing_but_names(self):
        folder = os.fsencode(self.home.files)
        paths = [shutil.copy(os.path.join(PHOTOS, "photo.jpg"), os.path.join(folder, name)) for name in NAMES]
        self.open(*paths)
        self.to_edit_page()
        self.go_to("Title")
        self.hands.type("x")
        self.save()
        self.assertTells(f"{len(NAMES)} photos were saved.")
        self.assertEqual(sorted(os.listdir(folder)), sorted(NAMES))
        for path in paths:
            with open(path, "rb") as file:
                self.assertEqual(self.tags_of(file)["Title"], "x")
        self.assertFalse(os.path.exists(os.path.join(self.home.folder, "pwned")))

    def test_without_exiftool_it_is_not_offered(self):
        os.unlink(os.path.join(self.home.programs, "exiftool"))
        with self.assertRaises(GLib.Error):
            ask_for_action(self, ACTION, self.photo())


if __name__ == "__main__":
    unittest.main()
