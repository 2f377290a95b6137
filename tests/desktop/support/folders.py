"""Choosing folders in the panel's chooser, as a person does."""

from .waiting import eventually

CHOOSER = "Grant Access"


def enter_location(hands, chooser, path):
    """Types a path into the location field and enters it."""
    hands.press("ctrl+l")
    eventually(lambda: chooser.focused().name == "Location", "the location field to have the keyboard")
    hands.press("ctrl+a")
    hands.type(path)
    hands.press("Return")


def go_to(hands, chooser, folder):
    """Shows a folder in the chooser, by typing its path."""
    enter_location(hands, chooser, folder)
    eventually(lambda: chooser.focused().name == "Files", "the list to have the keyboard")


def choose(hands, panel, folder):
    """Goes to a folder and confirms it."""
    chooser = panel.active_window(CHOOSER)
    go_to(hands, chooser, folder)
    hands.click(chooser.find("push button", CHOOSER).extents)
    eventually(lambda: not panel.shows(CHOOSER), "the chooser to go")
