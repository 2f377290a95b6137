"""Child processes that never outlive the tests."""

import ctypes
import os
import signal
import subprocess

_PR_SET_PDEATHSIG = 1
_libc = ctypes.CDLL(None, use_errno=True)


def _end_with_parent():
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGTERM)


def start(command, **options):
    """A child that is asked to end when this process has gone, however it went."""
    return subprocess.Popen(command, stdin=subprocess.DEVNULL, preexec_fn=_end_with_parent, **options)


def end(process, within=10):
    """Asks the child to end, and sees to it that it does."""
    if process.poll() is None:
        process.terminate()
    try:
        process.wait(within)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def end_all_at_home_below(folder):
    """Ends what still runs of the persons whose homes are there: it would keep open what the tests print to."""
    home = b"HOME=" + os.fsencode(folder)
    for entry in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{entry}/environ", "rb") as file:
                variables = file.read().split(b"\0")
            if any(variable == home or variable.startswith(home + b"/") for variable in variables):
                os.kill(int(entry), signal.SIGKILL)
        except OSError:
            continue
