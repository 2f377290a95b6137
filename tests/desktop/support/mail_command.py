#!/usr/bin/python3 -B
"""A stand-in for xdg-email. It is put into a folder of its own under that name, beside a folder "messages".

Each call becomes a folder named by its process in "messages": "arguments" (each ended by a zero byte) and the bytes
of the file after each --attach in 0, 1, ... Nothing is to be seen of a call before it is complete.
"""

import os
import shutil
import sys


def main():
    messages = os.path.join(os.path.dirname(os.path.abspath(sys.argv[0])), "messages")
    name = os.path.join(messages, str(os.getpid()))
    os.mkdir(name + ".unfinished")
    arguments = [os.fsencode(argument) for argument in sys.argv[1:]]
    with open(name + ".unfinished/arguments", "wb") as file:
        file.writelines(argument + b"\0" for argument in arguments)
    attached = [after for option, after in zip(arguments, arguments[1:]) if option == b"--attach"]
    for number, path in enumerate(attached):
        shutil.copyfile(path, f"{name}.unfinished/{number}")
    os.rename(name + ".unfinished", name)


if __name__ == "__main__":
    main()
