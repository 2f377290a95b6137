"""Makes the header of an interface from its description: the names and types in it, for programs of any toolkit.

usage: make_header.py DESCRIPTION HEADER
"""

import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def signature(arguments):
    return "".join(argument.get("type") for argument in arguments)


def of_method(method):
    takes = [argument for argument in method.iter("arg") if argument.get("direction", "in") == "in"]
    gives = [argument for argument in method.iter("arg") if argument not in takes]
    names = "".join(argument.get("name") + r"\0" for argument in takes + gives)
    return {"takes": signature(takes), "gives": signature(gives), "argumentNames": names}


def of_signal(signal):
    return {"type": signature(signal.iter("arg"))}


def of_property(member):
    return {"type": member.get("type")}


def header(description):
    node = ElementTree.parse(description).getroot()
    interface = node.find("interface")
    name = interface.get("name")
    yield f"// Made from {description.name}.\n#pragma once\n\n#include <tuple>\n"
    yield f"namespace BusInterface::{name.rpartition('.')[2]} {{\n"
    yield f'inline constexpr const char* interface = "{name}";'
    if node.get("name"):
        yield f'inline constexpr const char* path = "{node.get("name")}";'
    for kind, plural, texts in (("method", "Methods", of_method), ("signal", "Signals", of_signal),
                                ("property", "Properties", of_property)):
        members = interface.findall(kind)
        for member in members:
            constants = {"name": member.get("name"), **texts(member)}
            yield f"\nstruct {member.get('name')} {{"
            yield from (f'    static constexpr const char* {key} = "{text}";' for key, text in constants.items())
            yield "};"
        yield f"\nusing {plural} = std::tuple<{', '.join(member.get('name') for member in members)}>;"
    yield "\n}\n"


if __name__ == "__main__":
    pathlib.Path(sys.argv[2]).write_text("\n".join(header(pathlib.Path(sys.argv[1]))))
