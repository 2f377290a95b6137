"""Makes of a template a file that says its texts in every language: localize.py TEMPLATE FILE CATALOGUE...

A text is marked as @LocalizableString("TABLE", "TEXT")@, as the value of a key of a desktop entry or as all that an
element of XML holds. The file has the text itself, and after it those of the catalogues that have it.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree
from xml.sax.saxutils import escape

MARK = r'@LocalizableString\("(?P<table>\w+)", "(?P<text>.*)"\)@'
ENTRY = re.compile(rf"(?P<key>\w+)={MARK}\n")
ELEMENT = re.compile(rf"(?P<indent> *)<(?P<name>\w+)>{MARK}</(?P=name)>\n")


def translations(path):
    """The language of a catalogue, and its texts by table and text."""
    root = ElementTree.parse(path).getroot()
    texts = {}
    for context in root.iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            if translation.get("type") is None and translation.text:
                texts[context.findtext("name"), message.findtext("source")] = translation.text
    return root.get("language"), texts


def main(template, output, *paths):
    catalogues = sorted(map(translations, paths), key=lambda catalogue: catalogue[0])

    def localized(match):
        key = match["table"], match["text"]
        return [(language, texts[key]) for language, texts in catalogues if key in texts]

    def entry(match):
        lines = [f"{match['key']}={match['text']}\n"]
        lines += [f"{match['key']}[{language}]={text}\n" for language, text in localized(match)]
        return "".join(lines)

    def element(match):
        indent, name = match["indent"], match["name"]
        lines = [f"{indent}<{name}>{escape(match['text'])}</{name}>\n"]
        lines += [f'{indent}<{name} xml:lang="{language}">{escape(text)}</{name}>\n'
                  for language, text in localized(match)]
        return "".join(lines)

    with open(template, encoding="utf-8") as file:
        text = file.read()
    text = ELEMENT.sub(element, ENTRY.sub(entry, text))
    with open(output, "w", encoding="utf-8") as file:
        file.write(text)


if __name__ == "__main__":
    main(*sys.argv[1:])
