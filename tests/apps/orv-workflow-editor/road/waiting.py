"""Waits for states with a limit."""
import time

LIMIT_S = 30
PAUSE_S = 0.02


class NotSeen(Exception):
    """Something didn't come within the limit."""


def until(what, probe, limit_s=LIMIT_S):
    """What probe answers once that is true."""
    end = time.monotonic() + limit_s
    while True:
        answer = probe()
        if answer:
            return answer
        if time.monotonic() > end:
            raise NotSeen(f"{what} was not there within {limit_s} seconds")
        time.sleep(PAUSE_S)
