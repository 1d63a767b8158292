"""A separate desktop for a program: display, bus, window manager and program folder."""
import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
LIMIT = 30  # seconds; on an idle machine everything takes less than one


class TooLong(Exception):
    """A condition was not met within its limit."""


def wait_for(what, look, limit=LIMIT):
    """Polls `look` until it returns something true, and returns that."""
    end = time.monotonic() + limit
    while time.monotonic() < end:
        seen = look()
        if seen:
            return seen
        time.sleep(0.005)
    raise TooLong(f"no {what} within {limit} s")


class Session:
    """A context manager: starts the desktop, and removes all its processes and files at the end."""

    screen = "1280x800"

    def __enter__(self):
        signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended from outside"))
        _adopt_orphans()
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tasca-window-"))
        self.bin = self.folder / "bin"
        self._servers = {}
        self._log = open(self.folder / "log", "wb")
        try:
            self.environment = self._environment()
            self.environment["DISPLAY"] = self._start_display()
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus()
            self.run("setxkbmap", "es")
            self.start("openbox", "--config-file", pathlib.Path(__file__).with_name("openbox.xml"))
            wait_for("window manager", self._is_managed)
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        _end_children(signal.SIGTERM, patience=5)
        _end_children(signal.SIGKILL, patience=5)
        self._log.close()
        shutil.rmtree(self.folder)

    def place(self, build, *programs):
        """Copies programs of a build and the data files into the program folder."""
        shutil.copytree(ROOT / "data", self.bin, dirs_exist_ok=True)
        for program in programs:
            shutil.copy2(ROOT / "build" / build / "bin" / program, self.bin)

    def start(self, *command, extra=(), pass_fds=()):
        """Starts a program on this desktop. `extra` are additional environment variables.

        Each program gets a folder of states of its own, so that it is not asked about the match
        of an earlier one.
        """
        state = tempfile.mkdtemp(prefix="state-", dir=self.folder)
        return subprocess.Popen([str(word) for word in command], stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=self._log, pass_fds=pass_fds,
                                env={**self.environment, "XDG_STATE_HOME": state, **dict(extra)})

    def lose_screen(self):
        """Kills the display server."""
        self._servers["Xvfb"].kill()

    def run(self, *command):
        """Runs a program on this desktop; its exit status must be 0."""
        if self.start(*command).wait() != 0:
            raise RuntimeError(f"{' '.join(map(str, command))}: {self.log()[-2000:]}")

    def log(self):
        """The standard error of all programs of this desktop."""
        return (self.folder / "log").read_text(errors="replace")

    def _environment(self):
        home = self.folder / "home"
        home.mkdir(mode=0o700)
        kept = {name: os.environ[name] for name in ("PATH", "ASAN_OPTIONS") if name in os.environ}
        return {**kept, "HOME": str(home), "XDG_RUNTIME_DIR": str(home), "TMPDIR": str(self.folder),
                "LANG": "C.UTF-8", "TZ": "UTC", "GSETTINGS_BACKEND": "memory",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb",
                "SDL_AUDIODRIVER": "dummy"}

    def _start_display(self):
        # -r turns auto-repeat off: on a loaded machine a short press could repeat.
        number = self._first_line("-displayfd", "Xvfb", "-r", "-noreset", "-nolisten", "tcp",
                                  "-screen", "0", f"{self.screen}x24")
        return f":{number}"

    def _start_bus(self):
        return self._first_line("--print-address", "dbus-daemon", "--session", "--nofork",
                                "--nopidfile")

    def _first_line(self, option, *command):
        """Starts a server that writes its address to a descriptor when it is ready; returns it."""
        reading, writing = os.pipe()
        value = [f"{option}={writing}"] if option.startswith("--") else [option, writing]
        self._servers[command[0]] = self.start(*command, *value, pass_fds=[writing])
        os.close(writing)
        with open(reading) as answer:
            line = answer.readline().strip()
        if not line:
            raise RuntimeError(f"{command[0]} does not start: {self.log()[-2000:]}")
        return line

    def _is_managed(self):
        return self.start("xdotool", "get_num_desktops").wait() == 0


def _adopt_orphans():
    """Makes this process the reaper of orphaned descendants."""
    set_child_subreaper = 36
    ctypes.CDLL(None).prctl(set_child_subreaper, 1, 0, 0, 0)


def _children():
    children = []
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            fields = stat.read_text().rpartition(")")[2].split()
        except OSError:
            continue
        if int(fields[1]) == os.getpid():
            children.append(int(stat.parent.name))
    return children


def _reap():
    """Reaps the children that have ended. True if none is left."""
    try:
        while os.waitpid(-1, os.WNOHANG)[0] != 0:
            pass
    except ChildProcessError:
        return True
    return False


def _end_children(how, patience):
    end = time.monotonic() + patience
    while not _reap() and time.monotonic() < end:
        for child in _children():
            os.kill(child, how)
        time.sleep(0.02)
