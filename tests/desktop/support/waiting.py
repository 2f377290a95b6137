"""Waiting for what another process does, bounded in time."""

import time

# Generous, since the machine may be busy; only a failing test ever waits this long.
PATIENCE = 60.0
_INTERVAL = 0.02


class GaveUp(AssertionError):
    """What was waited for did not come about."""


def eventually(check, what, within=PATIENCE):
    """The first true answer of `check`, which is asked again until it gives one.

    An answer that is not yet to be had may be told by raising LookupError, StopIteration or OSError.
    `what` ends the sentence "gave up waiting for ...".
    """
    deadline = time.monotonic() + within
    while True:
        trouble = ""
        try:
            answer = check()
        except (LookupError, StopIteration, OSError) as error:
            answer, trouble = None, f" ({error!r})"
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise GaveUp(f"gave up waiting for {what}{trouble}")
        time.sleep(_INTERVAL)


def throughout(check, what, seconds):
    """Fails as soon as `check` gives a false answer within the next `seconds`. For what must not happen."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not check():
            raise AssertionError(f"no longer so: {what}")
        time.sleep(_INTERVAL)


def settled(read, still=0.1):
    """The answer of `read` once it gives the same twice, `still` seconds apart. For what changes a few times."""
    deadline = time.monotonic() + PATIENCE
    answer = read()
    while True:
        time.sleep(still)
        last, answer = answer, read()
        if last == answer:
            return answer
        if time.monotonic() > deadline:
            raise GaveUp("gave up waiting for what keeps changing")


def give_time(seconds):
    """For painting and the like, about whose end nobody can be asked."""
    time.sleep(seconds)
