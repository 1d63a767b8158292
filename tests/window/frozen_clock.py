"""A clock that stands still for one program; its timers still run."""
import glob
import pathlib


def environment(hour, minute, second):
    """What makes a program, and those that it starts, always see this time of day."""
    (library,) = glob.glob("/usr/lib/*/faketime/libfaketimeMT.so.1")
    return {"LD_PRELOAD": library, "FAKETIME": f"2026-01-01 {hour:02}:{minute:02}:{second:02}",
            "FAKETIME_DONT_FAKE_MONOTONIC": "1"}


def forget(pid):
    """Removes what a program that was ended by force has left of its clock."""
    for path in pathlib.Path("/dev/shm").glob(f"*faketime_*_{pid}"):
        path.unlink()
