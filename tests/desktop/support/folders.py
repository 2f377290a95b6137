"""Choosing folders in the panel's chooser, as a person does."""

from .waiting import eventually

CHOOSER = "Grant Access"


def go_to(hands, chooser, folder):
    """Shows a folder in the chooser, by typing its path."""
    hands.press("ctrl+l")
    eventually(lambda: chooser.focused().name == "Location", "the location field to have the keyboard")
    hands.press("ctrl+a")
    hands.type(folder)
    hands.press("Return")
    eventually(lambda: chooser.focused().name == "Files", "the list to have the keyboard")


def choose(hands, panel, folder):
    """Goes to a folder and confirms it."""
    chooser = panel.active_window(CHOOSER)
    go_to(hands, chooser, folder)
    hands.click(chooser.find("push button", CHOOSER).extents)
    eventually(lambda: not panel.shows(CHOOSER), "the chooser to go")
