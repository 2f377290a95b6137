"""The catalogues have every text that the programs say, in every language, and nothing else."""

import collections
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

SOURCE = pathlib.Path(os.environ["ORVIK_SOURCE"])
CATALOGUES = SOURCE / "resources/translations"
LANGUAGES = {"de": 2, "fr": 2, "es": 2, "zh_CN": 1, "ar": 6}
TIMEOUT = 120

Text = collections.namedtuple("Text", "table source state forms")

# What mnemonics there are: an "&" before a character, but for one that is meant as such.
MNEMONIC = re.compile("&(?!&)(.)")


def texts_of(path):
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
            yield Text(context.findtext("name"), message.findtext("source"), translation.get("type"), forms)


def mnemonics(text):
    return [letter.casefold() for letter in MNEMONIC.findall(text.replace("&&", ""))]


class Catalogues(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.texts = {language: list(texts_of(CATALOGUES / f"orvik-menu_{language}.ts")) for language in LANGUAGES}

    def assertNone(self, faults):
        self.assertEqual("\n".join(faults), "")

    def each(self):
        """Every text with its translation, of several plurals each."""
        for language, texts in self.texts.items():
            for text in texts:
                for form in text.forms:
                    yield f"{language}, {text.table}: “{text.source}” is “{form}”", text, form

    def test_there_is_one_for_each_language(self):
        self.assertEqual({path.name for path in CATALOGUES.glob("*.ts")},
                         {f"orvik-menu_{language}.ts" for language in LANGUAGES})

    def test_they_have_the_texts_of_the_source_and_no_others(self):
        with tempfile.TemporaryDirectory(prefix="orvik-translations-") as folder:
            for path in CATALOGUES.glob("*.ts"):
                shutil.copy(path, folder)
            done = subprocess.run([CATALOGUES / "refresh", folder], check=False, capture_output=True, text=True,
                                  timeout=TIMEOUT)
            self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""))
            for language, texts in self.texts.items():
                refreshed = {(text.table, text.source)
                             for text in texts_of(pathlib.Path(folder) / f"orvik-menu_{language}.ts")}
                known = {(text.table, text.source) for text in texts}
                self.assertEqual(sorted(refreshed - known), [], "in no catalogue")
                self.assertEqual(sorted(known - refreshed), [], "said by nobody")

    def test_every_text_is_translated(self):
        self.assertNone(fault for fault, text, form in self.each() if text.state or not form.strip())

    def test_a_plural_has_every_form_of_its_language(self):
        for language, texts in self.texts.items():
            for text in texts:
                if len(text.forms) > 1:
                    self.assertEqual(len(text.forms), LANGUAGES[language], (language, text))

    def test_what_is_filled_in_stays(self):
        def places(text):
            return sorted(re.findall(r"%[1-9]|\{\w+\}", text))

        self.assertNone(fault for fault, text, form in self.each() if places(text.source) != places(form))
        # A plural may say the number in words.
        self.assertNone(fault for fault, text, form in self.each()
                        if form.count("%n") > text.source.count("%n")
                        or "%n" in text.source and not any("%n" in other for other in text.forms))

    def test_the_space_around_a_text_stays(self):
        def around(text):
            return text[:len(text) - len(text.lstrip())], text[len(text.rstrip()):]

        self.assertNone(fault for fault, text, form in self.each() if around(text.source) != around(form))

    def test_a_control_has_a_mnemonic_where_it_has_one_in_english(self):
        def is_sane(text, form):
            return len(mnemonics(form)) == len(mnemonics(text.source)) and all(map(str.isalnum, mnemonics(form)))

        scenes = {path.stem for path in (SOURCE / "resources/Main").glob("*.ui")}
        self.assertNone(fault for fault, text, form in self.each()
                        if text.table in scenes and not is_sane(text, form))

    def test_no_two_controls_of_a_screen_have_the_same_mnemonic(self):
        for language, texts in self.texts.items():
            screens = collections.defaultdict(dict)
            for text in texts:
                for letter in mnemonics(text.source):
                    screens[text.table].setdefault(letter, set()).add(text.source)
            for table in screens:
                shared = collections.defaultdict(set)
                for text in texts:
                    if text.table == table:
                        for letter in mnemonics(text.forms[0]):
                            shared[letter].add(text.source)
                english = max(map(len, screens[table].values()))
                self.assertLessEqual(max(map(len, shared.values()), default=0), english, (language, table, dict(shared)))

    def test_keywords_are_a_list(self):
        self.assertNone(fault for fault, text, form in self.each()
                        if text.source.endswith(";") and not re.fullmatch("([^;]+;)+", form))


if __name__ == "__main__":
    unittest.main()
