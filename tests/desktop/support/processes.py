"""Child processes that never outlive the tests."""

import ctypes
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
