"""Moving and copying to a folder: the window, by accessibility and by keyboard, the notification, and the files."""

import os
import subprocess
import unittest

from gi.repository import Gio, GLib

from support import mounts, processes
from support.action_window import ActionWindow
from support.deployment import EXTENSION
from support.extension import INTERFACE, PROGRAM
from support.folders import go_to
from support.notifications import Notifications
from support.recorder import install_recorder
from support.transfers import COPY, MOVE, TransferTestCase
from support.waiting import eventually, throughout


class MoveAndCopy(TransferTestCase):
    def cards(self):
        """The new item's and that of the one that is there."""
        return [each for each in self.window.descendants()
                if each.role == "panel" and each.name in ("New", "Already there")]

    def test_a_move_is_told_of_and_undone_from_the_notification(self):
        self.start()
        self.make("from/one"), self.make("from/two", b"2")
        before = self.contents()
        self.run_action(MOVE, os.path.join(self.home.files, "from/one"), os.path.join(self.home.files, "from/two"))
        told = self.notifications.only()
        self.assertEqual((told["title"], told["words"]), ("Moved", "2 items were moved to “to”."))
        self.assertEqual(told["buttons"], {"undo": "Undo", "show": "Show"})
        self.assertEqual(self.contents(), {"to/one": b"new", "to/two": b"2"})
        self.notifications.press(told, "undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), before)
        self.assertEqual(self.notifications.shown(), [])

    def test_what_lies_in_another_item_goes_with_it(self):
        self.start()
        inner, folder = self.make("from/folder/inner"), os.path.join(self.home.files, "from/folder")
        self.run_action(MOVE, folder, inner, folder)
        told = self.notifications.only()
        self.assertEqual(told["words"], "“folder” was moved to “to”.")
        self.assertEqual(self.contents(), {"to/folder/inner": b"new"})

    def test_a_copy_that_is_undone_goes_to_the_trash(self):
        self.start()
        path = self.make("from/one")
        self.run_action(COPY, path)
        told = self.notifications.only()
        self.assertEqual((told["title"], told["words"]), ("Copied", "“one” was copied to “to”."))
        self.assertEqual(self.contents(), {"from/one": b"new", "to/one": b"new"})
        self.notifications.press(told, "undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"from/one": b"new"})
        self.assertEqual(self.trashed(), ["one"])

    def test_what_was_done_is_shown_and_can_be_undone_afterwards(self):
        opened = install_recorder(self.home, "xdg-open")
        self.start()
        self.run_action(MOVE, self.make("from/one"))
        told = self.notifications.only()
        self.notifications.press(told, "show")
        call, = eventually(opened, "the folder to open")
        self.assertEqual(call.arguments, [b"file://" + os.fsencode(self.target)])
        self.notifications.press(told, "undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"from/one": b"new"})

    def test_a_notification_that_is_closed_ends_it(self):
        self.start()
        self.run_action(COPY, self.make("from/one"))
        told = self.notifications.only()
        throughout(self.action.is_running, "it waits for the person", 0.3)
        self.notifications.dismiss(told)
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"from/one": b"new", "to/one": b"new"})

    def test_a_notification_that_has_had_its_time_can_still_be_undone(self):
        self.start()
        self.run_action(COPY, self.make("from/one"))
        told = self.notifications.only()
        self.assertEqual(told["time"], -1)
        self.notifications.expire(told)
        throughout(self.action.is_running, "it waits for the person", 1)
        self.notifications.press(told, "undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"from/one": b"new"})

    def test_a_notification_stays_as_long_as_what_was_replaced(self):
        self.start()
        self.conflict(COPY)
        self.press("Replace")
        told = self.notifications.only()
        self.assertEqual(told["time"], 0)
        self.notifications.press(told, "undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(self.target), {"name.txt": b"old content"})

    def test_where_nobody_is_to_be_disturbed_it_ends(self):
        self.start()
        self.notifications.show_none()
        self.run_action(COPY, self.make("from/one"))
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"from/one": b"new", "to/one": b"new"})

    def test_without_notifications_the_window_says_what_was_done(self):
        self.start(notifications=False)
        self.open_window(MOVE, self.make("from/one"), title="“one” was moved to “to”.")
        self.save_picture("move-done")
        self.assertReadsWell(self.window)
        self.assertEqual(self.buttons(), ["Undo", "Show", "Close"])
        self.press("Undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"from/one": b"new"})
        self.open_window(MOVE, self.make("from/one"), title="“one” was moved to “to”.")
        self.hands.press("Escape")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"to/one": b"new"})

    def test_a_question_shows_both_items_and_keeping_both_is_what_return_means(self):
        self.start()
        path = self.conflict(COPY)
        self.save_picture("copy-conflict")
        self.assertReadsWell(self.window)
        new, old = self.cards()
        self.assertEqual((new.name, old.name), ("New", "Already there"))
        self.assertRegex(new.description, r"^3 bytes\n.*\d")
        self.assertRegex(old.description, r"^11 bytes\n.*\d")
        self.assertEqual(eventually(self.window.focused, "a button").name, "Keep Both")
        self.hands.press("Return")
        told = self.notifications.only()
        self.assertEqual(self.contents(self.target), {"name.txt": b"old content", "name 2.txt": b"new"})
        self.notifications.press(told, "undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(self.target), {"name.txt": b"old content"})
        self.assertTrue(os.path.exists(path))

    def test_a_question_about_a_long_name_is_as_wide_as_any_and_says_all_of_it(self):
        self.start()
        self.conflict(COPY)
        width = self.window.extents.width
        self.hands.press("Escape")
        self.action.wait_for_end()
        name = "n" * 251 + ".txt"
        self.conflict(COPY, name)
        self.save_picture("copy-conflict-long-name")
        self.assertEqual(self.window.extents.width, width)
        self.assertReadsWell(self.window)
        self.assertIn(f"There is a file “{name}” in “to” already.", self.labels())
        self.press("Keep Both")
        self.notifications.only()
        self.assertEqual(len(self.contents(self.target)), 3)

    def test_a_question_about_pictures_shows_what_is_in_them(self):
        self.start()
        for folder, colour in (("from", "#ff0000"), ("to", "#0000ff")):
            path = os.path.join(self.folder(folder), "100% ö.png")
            subprocess.run(["convert", "-size", "200x200", "xc:" + colour, path], check=True, timeout=60)
        self.open_window(COPY, os.path.join(self.home.files, "from", "100% ö.png"),
                         title="There is a file “100% ö.png” in “to” already.")
        cards = [card.extents for card in self.cards()]
        self.save_picture("copy-pictures")
        for card, colour in zip(cards, ((255, 0, 0), (0, 0, 255))):
            eventually(lambda card=card, colour=colour: self.has_line_of(colour, card), "the picture to be shown")

    def has_line_of(self, colour, place):
        """Whether many pixels of a colour lie side by side there."""
        picture = self.display.picture_of(place)
        bytes_each = len(picture) // (3 * place.width * place.height)
        return 20 * bytes(value for value in colour for _ in range(bytes_each)) in picture

    def test_a_replaced_file_is_given_back_by_undo(self):
        self.start()
        for action in (MOVE, COPY):
            with self.subTest(action=action):
                self.conflict(action)
                before = self.contents()
                self.press("Replace")
                told = self.notifications.only()
                with open(os.path.join(self.target, "name.txt"), "rb") as file:
                    self.assertEqual(file.read(), b"new")
                self.notifications.press(told, "undo")
                self.action.wait_for_end()
                self.assertEqual(self.contents(), before)

    def test_a_replaced_file_has_gone_when_nobody_undoes_it(self):
        self.start()
        self.conflict(MOVE)
        self.press("Replace")
        self.notifications.dismiss(self.notifications.only())
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"to/name.txt": b"new"})
        self.assertNothingElseIn(self.target, "name.txt")

    def test_a_skipped_file_stays_and_both_are_as_they_were(self):
        self.start()
        self.conflict(MOVE)
        before = self.contents()
        self.press("Skip")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), before)
        self.assertEqual(self.notifications.shown(), [])

    def test_escape_and_cancel_leave_everything_as_it_was(self):
        self.start()
        for leave in (lambda: self.hands.press("Escape"), lambda: self.press("Cancel")):
            self.conflict(MOVE)
            before = self.contents()
            leave()
            self.action.wait_for_end()
            self.assertEqual(self.contents(), before)
            self.assertNothingElseIn(self.target, "name.txt")

    def test_one_answer_is_for_all_the_rest(self):
        self.start()
        paths = [self.make(f"from/{number}") for number in range(5)]
        for number in range(5):
            self.make(f"to/{number}", b"old")
        self.open_window(MOVE, *paths, title="There is a file “0” in “to” already.")
        self.press("Skip")
        self.window = self.action.active_window("There is a file “1” in “to” already.")
        self.action.go_to("Do the same for all the rest", self.window)
        self.hands.press("space")
        self.press("Replace")
        told = self.notifications.only()
        self.assertEqual(told["words"], "4 of 5 items were moved to “to”.")
        self.assertEqual(self.contents(), {"from/0": b"new", "to/0": b"old",
                                           **{f"to/{number}": b"new" for number in range(1, 5)}})
        self.notifications.press(told, "undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {**{f"from/{number}": b"new" for number in range(5)},
                                           **{f"to/{number}": b"old" for number in range(5)}})

    def test_folders_are_merged(self):
        self.start()
        self.make("from/album/new"), self.make("to/album/old", b"old")
        before = self.contents()
        self.open_window(MOVE, os.path.join(self.home.files, "from/album"),
                         title="There is a folder “album” in “to” already.")
        self.assertEqual(eventually(self.window.focused, "a button").name, "Merge")
        self.press("Merge")
        told = self.notifications.only()
        self.assertEqual(self.contents(), {"to/album/new": b"new", "to/album/old": b"old"})
        self.notifications.press(told, "undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), before)

    def answer(self, name, button):
        self.window = self.action.active_window(f"There is a file “{name}” in “album” already.")
        self.press(button)

    def asked_about(self, names):
        title = self.action.windows()[0].name
        return next((name for name in names if title == f"There is a file “{name}” in “album” already."), None)

    def test_of_a_merged_folder_it_is_said_how_much_of_it_is_there(self):
        self.start()
        names = ("a", "b")
        for replaced, words in ((names, "“album” was moved to “to”."), ("a", "A part of “album” was moved to “to”."),
                                ((), None)):
            with self.subTest(replaced=replaced):
                for name in names:
                    self.make("from/album/" + name), self.make("to/album/" + name, b"old")
                self.open_window(MOVE, os.path.join(self.home.files, "from/album"),
                                 title="There is a folder “album” in “to” already.")
                self.press("Merge")
                first = eventually(lambda: self.asked_about(names), "a question")
                second, = set(names) - {first}
                for name in (first, second):
                    self.answer(name, "Replace" if name in replaced else "Skip")
                if words:
                    told = self.notifications.only()
                    self.assertEqual(told["words"], words)
                    self.notifications.dismiss(told)
                self.action.wait_for_end()
                self.assertEqual(self.notifications.shown(), [])

    def test_an_undo_that_is_cancelled_says_what_is_not_back(self):
        self.start()
        # The trash tries the same name with one number after the other, which takes it seconds for so many.
        for number in range(4000):
            self.make(f"from/album/{number}/name")
            os.makedirs(os.path.join(self.target, f"album/{number}"))
        self.open_window(COPY, os.path.join(self.home.files, "from/album"),
                         title="There is a folder “album” in “to” already.")
        self.action.go_to("Do the same for all the rest", self.window)
        self.hands.press("space")
        self.press("Merge")
        told = self.notifications.only()
        self.notifications.press(told, "undo")
        self.window = self.action.active_window("Putting everything back")
        self.hands.press("Escape")
        self.window = self.action.active_window("Not everything could be put back.")
        self.assertTrue(self.contents(self.target))
        self.assertIn("“name” was not put back.", " ".join(self.labels()))
        self.hands.press("Escape")
        self.action.wait_for_end()

    def test_what_cannot_be_done_is_said_before_anything_is_written(self):
        self.start()
        self.make("to/inner"), self.make("from/one")
        paths = [self.target, os.path.join(self.home.files, "from/one")]
        for answer in ("Cancel", "Go On With the Others"):
            self.open_window(MOVE, *paths, title="Not everything can be done.")
            self.assertIn("“to” cannot be moved into itself.", self.labels())
            self.save_picture("move-problems")
            self.assertReadsWell(self.window)
            self.assertEqual(self.contents(), {"to/inner": b"new", "from/one": b"new"})
            self.assertEqual(eventually(self.window.focused, "a button").name, "Cancel")
            self.press(answer)
            if answer == "Cancel":
                self.action.wait_for_end()
                self.assertEqual(self.contents(), {"to/inner": b"new", "from/one": b"new"})
        self.notifications.only()
        self.assertEqual(self.contents(), {"to/inner": b"new", "to/one": b"new"})

    def test_what_cannot_be_done_at_all_is_refused(self):
        self.start()
        outer = self.make("outer/file")
        refused = [
            (MOVE, os.path.dirname(outer), os.path.dirname(outer), "“outer” cannot be moved into itself."),
            (MOVE, outer, os.path.dirname(outer), "“file” is in this folder already."),
            (COPY, outer, os.path.join(self.home.files, "gone"),
             "Nothing can be put into “gone”: No such file or directory."),
            (COPY, outer, outer, "Nothing can be put into “file”: Not a directory."),
        ]
        for action, path, target, words in refused:
            with self.assertRaises(GLib.Error) as raised:
                self.ask(action, path, target=target)
            self.assertEqual(Gio.DBusError.get_remote_error(raised.exception), INTERFACE + ".Error.Failed")
            self.assertIn(words, raised.exception.message)
        self.assertEqual(self.contents(), {"outer/file": b"new"})
        eventually(lambda: not self.running(MOVE) + self.running(COPY), "the actions to end")

    def test_without_a_target_the_person_chooses_one(self):
        self.start()
        path = self.make("from/one")
        for prompt, action in (("Move", MOVE), ("Copy", COPY)):
            self.ask(action, path)
            process, = self.running(action)
            self.action = ActionWindow(self, process)
            chooser = eventually(lambda: next(iter(self.action.windows())), "the chooser")
            eventually(lambda: chooser.has("active"), "the chooser to have the keyboard")
            self.save_picture("choose-target-" + prompt.lower())
            self.assertReadsWell(chooser)
            self.assertIn(f"Choose the folder to {prompt.lower()} “one” to.",
                          chooser.texts())
            if action == MOVE:
                # It opens on the folder that the item is in.
                self.hands.click(chooser.find("push button", prompt).extents)
                eventually(lambda: "“one” is in this folder already." in
                           chooser.texts(), "the words why not")
                self.hands.press("Escape")
                self.action.wait_for_end()
                self.assertEqual(self.contents(), {"from/one": b"new"})
                continue
            go_to(self.hands, chooser, self.target)
            self.hands.click(chooser.find("push button", prompt).extents)
            self.notifications.only()
            self.assertEqual(self.contents(), {"from/one": b"new", "to/one": b"new"})

    def test_the_keyboard_is_enough_from_the_choice_of_a_folder_to_the_end(self):
        self.start()
        path = self.make("from/name.txt")
        self.make("to/name.txt", b"old content")
        self.run_action(MOVE, path, target="")
        chooser = eventually(lambda: next(window for window in self.action.windows() if window.has("active")),
                             "the chooser")
        go_to(self.hands, chooser, self.target)
        self.action.go_to("Move", chooser)
        self.hands.press("Return")
        self.window = self.action.active_window("There is a file “name.txt” in “to” already.")
        self.action.go_to("Do the same for all the rest", self.window)
        self.hands.press("space")
        self.press("Replace")
        self.notifications.dismiss(self.notifications.only())
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"to/name.txt": b"new"})

    def test_without_notifications_the_window_keeps_the_keyboard_after_a_question(self):
        self.start(notifications=False)
        path = self.make("from/name.txt")
        self.make("to/name.txt", b"old content")
        self.open_window(MOVE, path, title="There is a file “name.txt” in “to” already.")
        self.press("Replace")
        self.window = self.action.active_window("“name.txt” was moved to “to”.")
        self.hands.press("Escape")
        self.action.wait_for_end()
        self.assertEqual(self.contents(), {"to/name.txt": b"new"})

    def test_a_long_work_shows_how_far_it_is_and_is_cancelled(self):
        self.start()
        for number in range(30_000):
            folder = os.path.join(self.home.files, "from", str(number % 30))
            if number < 30:
                os.makedirs(folder)
            with open(os.path.join(folder, str(number)), "wb"):
                pass
        self.open_window(COPY, os.path.join(self.home.files, "from"), title="Copying “from” to “to”")
        bar = eventually(lambda: self.window.find("progress bar"), "the bar")
        self.assertEqual(bar.name, "Copying “from” to “to”")
        self.save_picture("copy-progress")
        self.assertReadsWell(self.window)
        eventually(lambda: self.window.find("push button", "Cancel"), "the button")
        self.press("Cancel")
        self.action.wait_for_end()
        self.assertNothingElseIn(self.target)
        self.assertEqual(len(self.contents()), 30_000)
        self.assertEqual(self.notifications.shown(), [])

    def test_what_a_killed_one_has_left_goes_with_the_next(self):
        self.start()
        big = self.make("from/big", b"x" * 1_000_000)
        self.make("to/name.txt", b"old")
        # Its copy waits, whole, while the person is asked about the next.
        self.open_window(COPY, big, self.make("from/name.txt"), title="There is a file “name.txt” in “to” already.")
        hidden, = set(os.listdir(self.target)) - {"name.txt"}
        self.assertTrue(hidden.startswith(".orvik-menu-"))
        self.action.kill()
        self.assertNothingElseIn(self.target, "name.txt", hidden)
        self.run_action(COPY, self.make("from/other"))
        self.notifications.only()
        self.assertNothingElseIn(self.target, "name.txt", "other")

    def test_two_go_on_beside_each_other(self):
        self.start()
        self.conflict(COPY, "one.txt")
        first, window = self.action, self.window
        self.conflict(COPY, "two.txt")
        self.press("Replace")
        self.notifications.dismiss(self.notifications.only())
        self.action.wait_for_end()
        self.action, self.window = first, window
        eventually(lambda: self.window.has("active"), "the first to have the keyboard")
        self.press("Replace")
        self.notifications.only()
        self.assertEqual(self.contents(self.target), {"one.txt": b"new", "two.txt": b"new"})

    def test_a_disk_that_becomes_full_is_told_of_and_nothing_is_half_done(self):
        # What has the name of another is no certain need of room, so it is only met on the way.
        disk = self.folder("disk")
        companion = processes.start([*mounts.small_disk(disk, "1m"), os.path.join(self.programs, PROGRAM)],
                                    env=self.environment)
        self.addCleanup(processes.end, companion)
        eventually(lambda: self.bus.has_owner(EXTENSION), "the companion")
        self.notifications = Notifications(self)
        # As it is for the companion.
        seen = f"/proc/{companion.pid}/root{disk}"
        with open(os.path.join(seen, "large"), "wb") as file:
            file.write(b"old")
        small, large = self.make("from/a small one"), self.make("from/large", os.urandom(4_000_000))
        self.open_window(MOVE, small, large, target=disk, title="There is a file “large” in “disk” already.")
        self.press("Replace")
        self.window = self.action.active_window("1 of 2 items were moved to “disk”.")
        self.assertIn("There is not enough room on the disk of “disk”.", self.labels())
        self.save_picture("move-full")
        self.assertEqual(self.contents(seen), {"a small one": b"new", "large": b"old"})
        self.assertEqual(os.path.getsize(large), 4_000_000)
        self.press("Undo")
        self.action.wait_for_end()
        self.assertEqual(self.contents(seen), {"large": b"old"})
        self.assertEqual(sorted(os.listdir(os.path.join(self.home.files, "from"))), ["a small one", "large"])


if __name__ == "__main__":
    unittest.main()
