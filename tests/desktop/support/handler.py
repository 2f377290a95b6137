"""A program of the person's that opens addresses, registered with the desktop."""

import os

# By the shell: what is opened comes as one line each.
_PROGRAM = """#!/bin/sh
printf '%s\\n' "$1" >> "{log}"
"""

# The desktop's own ends with the same status where nobody opens an address, but takes seconds on a busy machine.
_FAILING_COMMAND = """#!/bin/sh
: > "{log}"
exit 3
"""


def install_failing_command(home):
    """Gives the person an xdg-open that finds nobody who opens addresses. Answers a function that tells whether it
    was tried."""
    log = os.path.join(home.programs, "tried")
    _write_program(os.path.join(home.programs, "xdg-open"), _FAILING_COMMAND.format(log=log))
    return lambda: os.path.exists(log)


def _write_program(path, text):
    with open(path, "w", encoding="ascii") as file:
        file.write(text)
    os.chmod(path, 0o755)


def install_handler(home, *types):
    """Gives the person a program for these types, and for no others. Answers a function that tells what it opened."""
    log = os.path.join(home.programs, "opened")
    program = os.path.join(home.programs, "opener")
    _write_program(program, _PROGRAM.format(log=log))
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
