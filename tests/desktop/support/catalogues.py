"""What the programs say in another language, by the catalogues that they are built with."""

import os
import re
import xml.etree.ElementTree as ElementTree

_FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../../resources/translations")
# The tabs in their order, and what each shows and no other: a table and a text.
TABS = {
    "Menu Items": ("ViewController", "Choose the actions that show when you right-click an item in your folders."),
    "Folders": ("foldersArrvc", "&Add Folder…"),
    "General": ("genraltabvc", "Group the menu items in a &submenu"),
    "About": ("aboutVc", "&Rate Orvik Menu"),
    "Custom Folders": ("customFoldersVc", "Folders that you set up from the file manager’s menu, for example as places to "
                       "move or copy items to. Delete those that you no longer use."),
}
LANGUAGES = ["de", "fr", "es", "zh_CN", "ar"]


def as_pattern(text):
    """What matches a text with anything filled in, without the marks of shortcut letters."""
    return re.sub(r"%(\d|n)", ".+", re.escape(re.sub(r"&(?=[^\s&])", "", text)).replace(r"\%", "%"))


class Catalogue:
    def __init__(self, language):
        self.language = language
        self._texts = {}
        for context in ElementTree.parse(os.path.join(_FOLDER, f"orvik-menu_{language}.ts")).getroot().iter("context"):
            for message in context.iter("message"):
                translation = message.find("translation")
                forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
                self._texts[context.findtext("name"), message.findtext("source")] = forms

    def of(self, table, text):
        """A text that is no plural, as it shows: without the marks of shortcut letters."""
        return self._texts[table, text][0].replace("&", "")

    def says(self, text):
        """Whether a text on the screen is one of the catalogue's, with anything filled in. One that has no words of its
        own counts for nothing."""
        return any(re.fullmatch(as_pattern(form), text, re.DOTALL)
                   for forms in self._texts.values() for form in forms
                   if re.search(r"[^\W\d]{2}", re.sub(r"%\w", "", form)))

    def shows_tab(self, window, title):
        """Whether the panel's window shows the tab of an English title."""
        shown = self.of(*TABS[title])
        return any(each.name == shown for each in window.descendants())
