"""Finding duplicate files: the window, by accessibility and by keyboard, and what becomes of the files."""

import os
import unittest

from support.duplicates_window import DuplicatesWindowTestCase
from support.waiting import eventually


class FindDuplicateFiles(DuplicatesWindowTestCase):
    action_name = "find-duplicate-files"
    title = "Duplicate Files"

    def make(self, name, contents, modified=None):
        path = os.path.join(os.fsencode(self.home.files), os.fsencode(name))
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(contents)
        if modified:
            os.utime(path, (modified, modified))
        return path

    def boxes(self):
        """The names of the items on view, and whether each is chosen."""
        columns = 4
        return {item.name: item.has("checked") for item in self.cells()[::columns]}

    def assertBoxes(self, **boxes):
        self.assertEventuallyEqual(self.boxes, boxes)

    def assertFocused(self, name):
        eventually(lambda: self.window.focused().name == name,
                   f"{name} to have the keyboard")

    def test_groups_come_with_the_largest_saving_first(self):
        for name in "ab":
            self.make(name, b"x" * 1000)
        for name in "cd":
            self.make("deep/" + name, b"y" * 5000)
        self.make("e", b"alone")
        self.open()
        self.assertTells("2 groups, 6.0 kB could be saved")
        self.save_picture("duplicate-files")
        self.assertReadsWell(self.window)
        self.assertEqual(self.groups(), ["c, 2 files of 5.0 kB each, 5.0 kB could be saved",
                                         "a, 2 files of 1.0 kB each, 1.0 kB could be saved"])
        self.assertBoxes(c=False, d=False)

    def test_the_keyboard_is_enough_to_move_one_to_the_trash(self):
        for name in "ab":
            self.make(name, b"x" * 1000)
        for name in "cd":
            self.make(name, b"y" * 5000)
        self.open()
        self.assertTells("2 groups, 6.0 kB could be saved")
        self.go_to("Groups")
        self.hands.press("Down")
        self.assertBoxes(a=False, b=False)
        self.hands.press("Tab", "Down", "space")
        self.assertBoxes(a=False, b=True)
        self.assertTells("Chosen: 1 file, 1.0 kB")
        self.assertReadsWell(self.window)
        self.press_button("Move 1 Item to Trash")

        self.assertTells("Moved to the trash: 1 file, 1.0 kB")
        self.assertEqual(self.left(), [b"a", b"c", b"d"])
        self.assertEqual(self.trashed(), [b"b"])
        self.assertReadsWell(self.window)
        self.assertEventuallyEqual(self.groups, ["c, 2 files of 5.0 kB each, 5.0 kB could be saved"])

    def test_those_who_listen_are_told_what_changes_and_no_more(self):
        for name in "abc":
            self.make(name, b"x" * 1000)
        self.open()
        self.assertTells("1 group, 2.0 kB could be saved")
        self.go_to("Items of the Group")
        listener = self.listen(self.action)
        listener.note_names()
        self.hands.press("Down", "space")
        eventually(lambda: listener.heard("StateChanged", "checked"), "the choice to be told")
        self.assertTells("Chosen: 1 file, 1.0 kB")
        self.assertEqual(listener.heard("StateChanged", "checked"), [("b", True)])
        self.assertEqual(listener.empty_name_changes(), [])
        self.hands.press("Down", "space", "Up", "Up", "space")
        words = "One always stays. Keep another one before you choose this."
        eventually(lambda: listener.announced() == [words], "the refusal to be told")
        self.assertEqual(self.list_of("Items of the Group").description, words)
        self.choose_by_rule("Up")
        eventually(lambda: listener.announced()[1:] == ["Nothing is chosen."], "the rule's choice to be told")
        self.choose_by_rule("Down", "Down", "Down")
        self.press_button("Move 2 Items to Trash")
        eventually(lambda: listener.announced()[2:] == ["Chosen: 2 files, 2.0 kB", "Moved to the trash: 2 files, 2.0 kB"],
                   "the end to be told")

    def test_the_end_of_a_search_is_told(self):
        # Until it is cancelled there is much to be read.
        for number in range(40):
            os.truncate(self.make(f"large {number}", b""), 20 << 30)
        self.open()
        eventually(lambda: self.window.find("push button", "Cancel"), "the search to say that it goes on")
        listener = self.listen(self.action)
        self.press_button("Cancel")
        eventually(lambda: listener.announced() == ["The search was stopped before anything was found."],
                   "the end to be told")

    def test_return_presses_a_button_and_the_keyboard_goes_on_with_the_next_group(self):
        for size, names in enumerate(("ab", "cd", "ef"), 1):
            for name in names:
                self.make(name, bytes([size]) * size * 1000)
        self.open()
        self.assertTells("3 groups, 6.0 kB could be saved")
        self.go_to("Groups")
        self.hands.press("Down", "Tab", "space")
        self.assertTells("Chosen: 1 file, 2.0 kB")
        self.go_to("Move 1 Item to Trash")
        self.hands.press("Return")
        self.assertTells("Moved to the trash: 1 file, 2.0 kB")
        self.assertEqual(self.trashed(), [b"c"])
        self.assertFocused("Groups")
        self.assertBoxes(a=False, b=False)
        self.hands.press("Up")
        self.assertBoxes(e=False, f=False)

    def test_the_last_of_a_group_cannot_be_chosen(self):
        for name in "ab":
            self.make(name, b"x")
        self.open()
        self.assertTells("1 group, 1 byte could be saved")
        self.go_to("Items of the Group")
        self.hands.press("space", "Down", "space")
        self.assertTells("One always stays. Keep another one before you choose this.")
        self.assertBoxes(a=True, b=False)

    def test_rules_choose_in_all_groups(self):
        self.make("old/a", b"x", modified=1_000_000_000)
        self.make("newer/b", b"x", modified=1_500_000_000)
        self.make("old/c", b"yy", modified=1_500_000_000)
        self.make("new/long name", b"yy", modified=1_000_000_000)
        self.open()
        self.assertTells("2 groups, 3 bytes could be saved")
        for keys, chosen in (("Down",), ["c", "b"]), (("Down", "Down"), ["long name", "a"]), \
                (("Down", "Down", "Down"), ["long name", "b"]):
            with self.subTest(keys=keys):
                self.choose_by_rule(*keys)
                self.assertTells("Chosen: 2 files, 3 bytes")
                self.go_to("Groups")
                self.hands.press("Home")
                eventually(lambda: self.boxes().get(chosen[0]), f"{chosen[0]} to be chosen")
                self.hands.press("Down")
                eventually(lambda: self.boxes().get(chosen[1]), f"{chosen[1]} to be chosen")
        self.choose_by_rule("Up")
        self.assertTells("Nothing is chosen.")

    def test_a_rule_keeps_those_in_the_folder_of_the_item(self):
        for folder in "one", "two", "three":
            self.make(folder + "/a", b"x" * 10)
        self.make("two/deeper/b", b"x" * 10)
        self.make("one/other", b"y" * 3)
        self.make("three/other", b"y" * 3)
        self.open()
        self.assertTells("2 groups, 33 bytes could be saved")
        self.go_to("Items of the Group")
        # By their paths: one, three, two/a, two/deeper/b.
        self.hands.press("Down", "Down")
        self.choose_by_rule("Down", "Down", "Down", "Down")
        self.assertTells("Chosen: 2 files, 20 bytes")
        self.press_button("Move 2 Items to Trash")
        self.assertTells("Moved to the trash: 2 files, 20 bytes")
        self.assertEqual(self.left(), [b"one/other", b"three/other", b"two/a", b"two/deeper/b"])

    def test_the_filter_shows_what_it_finds_and_rules_go_by_it(self):
        for name in "ab":
            self.make("Pictures/" + name, b"x")
            self.make("Music/" + name, b"yy")
        self.open()
        self.assertTells("2 groups, 3 bytes could be saved")
        self.hands.press("ctrl+f")
        self.assertFocused("Filter")
        self.hands.type("pictures")
        self.assertTells("1 group, 1 byte could be saved")
        self.choose_by_rule("Down")
        self.assertTells("Chosen: 1 file, 1 byte")
        self.hands.press("ctrl+f")
        self.hands.type("nowhere")
        self.assertTells("No group matches the filter")
        self.assertReadsWell(self.window)

    def test_hidden_and_empty_files_are_a_choice(self):
        for name in "ab":
            self.make("." + name, b"x")
            self.make(name, b"")
        self.open()
        self.assertTells("No two files hold the same.")
        self.save_picture("duplicate-files-none")
        self.assertReadsWell(self.window)
        self.press_button("Hidden Files")
        self.assertTells("1 group, 1 byte could be saved")
        self.press_button("Empty Files")
        self.assertTells("2 groups, 1 byte could be saved")
        self.press_button("Hidden Files")
        self.assertTells("1 group, 0 bytes could be saved")

    def test_names_are_bytes_until_they_are_in_the_trash(self):
        names = [b"new\nline", b"-rf --", b"$(touch pwned)", b"100%s%n%20#?", b"not \xff utf-8", b"&amp;<b>"]
        for name in names:
            self.make(name, b"the same")
        self.make("a copy that stays/1", b"the same", modified=1_000_000_000)
        # The trash adds to a name.
        self.make("x" * 255, b"the same")
        self.open()
        self.assertTells("1 group, 56 bytes could be saved")
        self.choose_by_rule("Down")
        self.press_button("Move 7 Items to Trash")
        self.assertTells("Moved to the trash: 6 files, 48 bytes")
        self.assertEqual(self.left(), [b"a copy that stays/1", b"x" * 255])
        self.assertEqual(len(self.trashed()), 6)
        self.press_button("1 Item Was Left Out…")
        text = self.action.active_window("Left Out").find("text", "Left Out").text
        self.assertIn("x could not be moved to the trash: ", text)
        self.assertFalse(os.path.exists(os.path.join(self.home.folder, "pwned")))

    def test_the_last_copy_stays_though_it_was_chosen_when_there_were_others(self):
        for name in "abc":
            self.make(name, b"the same")
        self.open()
        self.assertTells("1 group, 16 bytes could be saved")
        self.go_to("Items of the Group")
        self.hands.press("Down", "space")
        self.assertTells("Chosen: 1 file, 8 bytes")
        os.remove(os.path.join(self.home.files, "a"))
        self.make("c", b"no more!")
        self.press_button("Move 1 Item to Trash")
        self.assertTells("Moved to the trash: 0 files, 0 bytes")
        self.assertEqual(self.left(), [b"b", b"c"])
        self.press_button("1 Item Was Left Out…")
        dialog = self.action.active_window("Left Out")
        text = dialog.find("text", "Left Out")
        self.assertEqual(text.text, f"{self.home.files}/b is the last copy that is left.")
        self.save_picture("duplicate-files-left-out")
        self.assertReadsWell(dialog)
        self.hands.press("Escape")
        self.action.active_window(self.title)

    def test_what_others_have_removed_leaves_the_list(self):
        for name, contents in ("a", b"x"), ("c", b"yy"):
            self.make(name + " stays", contents, modified=1_000_000_000)
            self.make(name + " goes", contents, modified=1_500_000_000)
        self.open()
        self.assertTells("2 groups, 3 bytes could be saved")
        self.choose_by_rule("Down")
        self.assertTells("Chosen: 2 files, 3 bytes")
        for name in "a stays", "c goes":
            os.remove(os.path.join(self.home.files, name))
        self.press_button("Move 2 Items to Trash")
        self.assertTells("Moved to the trash: 0 files, 0 bytes")
        self.assertTells("No two files hold the same.")
        self.window.find("push button", "2 Items Were Left Out…")
        self.assertEqual(self.left(), [b"a goes", b"c stays"])

    def test_what_cannot_be_looked_at_is_told_of_and_the_others_are_found(self):
        for name in "ab":
            self.make(name, b"x")
        os.mkfifo(os.path.join(self.home.files, "pipe"))
        os.symlink("/", os.path.join(self.home.files, "link"))
        self.open(*(os.path.join(self.home.files, name) for name in ("a", "b", "pipe", "link")))
        self.assertTells("1 group, 1 byte could be saved")
        self.window.find("push button", "2 Items Were Left Out…")
        self.assertReadsWell(self.window)

    def test_it_is_closed_by_the_keyboard_and_runs_beside_another(self):
        for name in "ab":
            self.make("one/" + name, b"x")
            self.make("two/" + name, b"yy")
        self.open(os.path.join(self.home.files, "one"))
        self.assertTells("1 group, 1 byte could be saved")
        first = self.action
        self.open(os.path.join(self.home.files, "two"))
        self.assertTells("1 group, 2 bytes could be saved")
        self.hands.press("Escape")
        self.action.wait_for_end()
        self.action, self.window = first, first.active_window(self.title)
        self.assertTells("1 group, 1 byte could be saved")
        self.hands.press("ctrl+w")
        self.action.wait_for_end()
        self.assertEqual(len(self.left()), 4)

    def test_closing_ends_a_search_that_goes_on(self):
        # A group that is found at once, and much that is still to be read.
        for name in "ab":
            self.make(name, b"x" * 1000)
        for number in range(40):
            path = self.make(f"large {number}", b"")
            os.truncate(path, 20 << 30)
        self.open()
        self.assertTells("1 group, 1.0 kB could be saved")
        eventually(lambda: self.window.find("push button", "Cancel"), "the search to say that it goes on")
        self.save_picture("duplicate-files-searching")
        self.assertReadsWell(self.window)
        self.hands.press("Escape")
        self.action.wait_for_end()

    def test_cancelling_ends_the_search_and_leaves_what_was_found(self):
        for name in "ab":
            self.make(name, b"x" * 1000)
        for number in range(40):
            path = self.make(f"large {number}", b"")
            os.truncate(path, 20 << 30)
        self.open()
        self.assertTells("1 group, 1.0 kB could be saved")
        eventually(lambda: self.window.find("push button", "Cancel"), "the search to say that it goes on")
        self.press_button("Cancel")

        def is_over():
            return "Cancel" not in [button.name for button in self.window.all("push button")]

        eventually(is_over, "the search to end")
        self.choose_by_rule("Down")
        self.press_button("Move 1 Item to Trash")
        self.assertTells("Moved to the trash: 1 file, 1.0 kB")


if __name__ == "__main__":
    unittest.main()
