#!/usr/bin/env python3
"""A file includes headers of the folders whose targets its own target links, and no others.

usage: includes_test.py SOURCE_FOLDER BUILD_FOLDER
"""

import collections
import pathlib
import re
import sys

ROOTS = ("src", "extension", "tools")
# A header of a target that has no folder of its own.
GENERATED = {"settings/Deployment.h": "orvik_deployment"}
INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.MULTILINE)
NAME = re.compile(r"orvik_\w+")


class Graph:
    def __init__(self, path):
        self.folders = collections.defaultdict(set)
        self.sources, self.links, self.passed_on = {}, {}, {}
        for line in path.read_text().splitlines():
            target, folder, sources, links, interface = line.split("|")
            self.folders[folder].add(target)
            self.sources[target] = set(sources.split(";"))
            self.links[target] = set(NAME.findall(links))
            self.passed_on[target] = set(NAME.findall(re.sub(r"\$<LINK_ONLY:[^>]*>", "", interface)))

    def folder_of(self, path):
        """The nearest folder above a file that has targets."""
        return next((str(parent) for parent in path.parents if str(parent) in self.folders), None)

    def targets_of(self, path, folder):
        """Those made of the file; for a header, the folder's libraries where it has some."""
        targets = self.folders[folder]
        made_of_it = {target for target in targets if path.name in self.sources[target]}
        libraries = {target for target in targets if target.startswith("orvik_")}
        return made_of_it or libraries or targets

    def visible(self, targets):
        """The targets whose headers they may include."""
        seen = set(targets)
        waiting = [linked for target in targets for linked in self.links[target] | self.passed_on[target]]
        while waiting:
            target = waiting.pop()
            if target not in seen:
                seen.add(target)
                waiting.extend(self.passed_on.get(target, ()))
        return seen

    def owners(self, source, folder, header):
        """The targets that a header belongs to, included by a file in a folder; nothing for the system's and for one
        that the build makes in no folder of the tree."""
        if header in GENERATED:
            return {GENERATED[header]}
        for root in (folder, "src", ".", "tools"):
            place = pathlib.Path(root) / header
            if (source / place).is_file() or "/" in header and str(place.parent) in self.folders:
                return self.folders.get(self.folder_of(place), set())
        return None


def findings(source, build):
    graph = Graph(build / "links.txt")
    files = [path.relative_to(source) for root in ROOTS for pattern in ("*.h", "*.cpp")
             for path in sorted((source / root).rglob(pattern))]
    if not files:
        yield "nothing to look at"
    for path in files:
        folder = graph.folder_of(path)
        if folder is None:
            yield f"{path}: in the folder of no target"
            continue
        visible = graph.visible(graph.targets_of(path, folder))
        for header in INCLUDE.findall((source / path).read_text()):
            if ".." in pathlib.Path(header).parts:
                yield f"{path}: includes {header}, which is no name from a root"
                continue
            owners = graph.owners(source, path.parent, header)
            if owners is not None and not owners & visible:
                yield f"{path}: includes {header}, which its target does not link"


def main():
    found = list(findings(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
