"""Photos that are painted, each like no other."""

import os
import subprocess


def paint(path, seed, width=480, height=360, change=()):
    """A picture that only the seed decides about, changed by ImageMagick's arguments."""
    path = os.fsencode(path)
    work = path + b".work.png"
    subprocess.run(["convert", "-size", "480x360", "-seed", str(seed), "plasma:tomato-steelblue", "-blur", "0x3",
                    "-resize", f"{width}x{height}!", *change, work], check=True)
    subprocess.run(["convert", work, b"jpg:" + path if path.endswith(b"jpg") else b"png:" + path], check=True)
    os.remove(work)
