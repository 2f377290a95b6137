"""A program of the person's that opens addresses, registered with the desktop."""

import os

# By the shell: what is opened comes as one line each.
_PROGRAM = """#!/bin/sh
printf '%s\\n' "$1" >> "{log}"
"""


def install_handler(home, *types):
    """Gives the person a program for these types, and for no others. Answers a function that tells what it opened."""
    log = os.path.join(home.programs, "opened")
    program = os.path.join(home.programs, "opener")
    with open(program, "w", encoding="ascii") as file:
        file.write(_PROGRAM.format(log=log))
    os.chmod(program, 0o755)
    applications = os.path.join(home.data, "applications")
    os.makedirs(applications, exist_ok=True)
    with open(os.path.join(applications, "opener.desktop"), "w", encoding="ascii") as file:
        file.write("[Desktop Entry]\nType=Application\nName=Opener\n"
                   f"Exec={program} %u\nMimeType={''.join(name + ';' for name in types)}\n")
    with open(os.path.join(home.configuration, "mimeapps.list"), "w", encoding="ascii") as file:
        file.write("[Default Applications]\n" + "".join(f"{name}=opener.desktop\n" for name in types))

    def opened():
        try:
            with open(log, encoding="utf-8") as file:
                return file.read().splitlines()
        except FileNotFoundError:
            return []

    return opened
