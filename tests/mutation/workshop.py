"""Building one mutant and running the tests that could notice it.

The tests are built once, against a shared library of the rules. A mutant is one source compiled
beside them and linked with the other objects into a library of its own, which the same tests are
then run with: nothing of the checkout, nor of the build, is ever written over. A changed header is
one for the rules alone: the tests keep the number as it was.
"""

import fcntl
import json
import os
import shlex
import shutil
import signal
import subprocess
import threading
import time

RULE_TESTS = ("cards", "mus", "lances", "count", "score", "match", "scene", "table", "sound",
              "startup", "characters", "base")
OTHER_TESTS = ("tests_ui_trace", "tests_bad_inputs", "tests_ui_cast", "tests_save_faults")
# A minute or two long, and about nothing but how a file is saved.
SAVING = ("tests_save_faults", ("base/", "characters/", "startup/"))
PROGRAMS = ("tasca-golden", "tasca-signature", "tasca-check")
LEAST_PATIENCE = 20  # seconds


class Stopped(Exception):
    """The run has been interrupted."""


class Processes:
    """Every process that runs at the moment, so that none is left when the run is stopped."""

    def __init__(self):
        self._lock = threading.Lock()
        self._running = set()
        self._stopped = False

    def run(self, command, patience, **options):
        """The exit status; None when the patience ended first."""
        with self._lock:
            if self._stopped:
                raise Stopped
            process = subprocess.Popen(command, start_new_session=True,
                                       stdin=subprocess.DEVNULL, **options)
            self._running.add(process)
        try:
            return process.wait(patience)
        except subprocess.TimeoutExpired:
            return None
        finally:
            self._end(process)

    def _end(self, process):
        """With all that it has started itself."""
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
        with self._lock:
            self._running.discard(process)
        if self._stopped:
            raise Stopped

    def stop(self):
        with self._lock:
            self._stopped = True
            for process in self._running:
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass


class Build:
    """The unmutated rules and their tests."""

    def __init__(self, root, processes):
        self.root, self.processes = root, processes
        self.folder = root / "build" / "mutation"
        self.log = self.folder / "build.log"
        self.usual = {}  # seconds that each test takes
        self.folder.mkdir(parents=True, exist_ok=True)
        self._lock = (self.folder / "lock").open("w", encoding="utf-8")

    def take(self):
        """False when another run is at work in the folder; the end of this one gives it back."""
        try:
            fcntl.flock(self._lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            return False
        return True

    def make(self):
        """False when it cannot be built; the log tells why."""
        configure = ["cmake", "-G", "Ninja", "-S", self.root, "-B", self.folder,
                     "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O1 -w", "-DBUILD_SHARED_LIBS=ON",
                     "-DCMAKE_SKIP_RPATH=ON"]
        if shutil.which("ccache"):
            configure.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        targets = [f"tests_{folder}" for folder in RULE_TESTS] + [*OTHER_TESTS, *PROGRAMS]
        ninja = ["ninja", "-C", self.folder, *targets]
        with self.log.open("w", encoding="utf-8") as log:
            if any(self.processes.run(command, None, stdout=log, stderr=log)
                   for command in (configure, ninja)):
                return False
        self._read_commands()
        return True

    def _read_commands(self):
        entries = json.loads((self.folder / "compile_commands.json").read_text())
        self.compilers = {os.path.relpath(entry["file"], self.root):
                          [word for word in shlex.split(entry["command"]) if "ccache" not in word]
                          for entry in entries}
        steps = subprocess.run(["ninja", "-C", self.folder, "-t", "commands", "libtasca_rules.so"],
                               check=True, capture_output=True, text=True).stdout.splitlines()
        words = shlex.split(steps[-1])
        self.linker = words[words.index("&&") + 1:]
        self.linker = self.linker[:self.linker.index("&&")]

    def read_by(self, path):
        """The sources of the rules to compile anew when that file has changed."""
        if not path.endswith(".h"):
            return [path]
        return [source for source, command in self.compilers.items()
                if command[command.index("-o") + 1] in self.linker]

    def tests_for(self, path):
        """Names and commands: the folder's own first, then the quicker before the slower."""
        binaries, tests = self.folder / "bin", self.root / "tests"
        found = {f"tests_{name}": [binaries / f"tests_{name}", "--gtest_fail_fast"]
                 for name in RULE_TESTS}
        for game in sorted(tests.glob("traces/*/in.jsonl")):
            found[f"traces/{game.parent.name}"] = [binaries / "tasca-golden", "check", game.parent]
        found["shipped file"] = [binaries / "tasca-check", self.root / "data" / "Jugadores.dat"]
        for name in OTHER_TESTS:
            found[name] = [binaries / name, "--gtest_fail_fast"]
        found["signature"] = [binaries / "tasca-signature", "200",
                              tests / "ui_trace" / "signatures"]
        if path and not path.startswith(SAVING[1]):
            del found[SAVING[0]]
        own = "tests_" + path.split("/")[0]
        return sorted(found.items(), key=lambda test: (test[0] != own, self.usual.get(test[0], 0)))

    def measure(self):
        """Runs every test on the unmutated rules; the names of those that fail."""
        worker = Worker(self, "unmutated")
        failed = []
        for name, command in self.tests_for(""):
            began = time.monotonic()
            if worker.run_test(command, 600, self.folder) != 0:
                failed.append(name)
            self.usual[name] = time.monotonic() - began
        return failed


class Worker:
    """Makes one mutant after the other in a folder of its own."""

    def __init__(self, build, name):
        self.build = build
        self.folder = build.folder / "workers" / name
        shutil.rmtree(self.folder, ignore_errors=True)
        (self.folder / "tmp").mkdir(parents=True)

    def trial(self, mutant):
        """What becomes of the mutant: "not compiled", "survived" or what killed it."""
        if not self._make(mutant):
            return "not compiled"
        for name, command in self.build.tests_for(mutant.path):
            patience = max(LEAST_PATIENCE, 10 * self.build.usual[name])
            status = self.run_test(command, patience, self.folder)
            if status != 0:
                return f"{name}, too slow" if status is None else name
        return "survived"

    def _make(self, mutant):
        text = (self.build.root / mutant.path).read_text(encoding="utf-8")
        changed = self.folder / "mutant" / mutant.path
        shutil.rmtree(self.folder / "mutant", ignore_errors=True)
        changed.parent.mkdir(parents=True)
        changed.write_text(text[:mutant.start] + mutant.replacement + text[mutant.end:],
                           encoding="utf-8")
        link = list(self.build.linker)
        link[link.index("-o") + 1] = self.folder / "libtasca_rules.so"
        commands = [self._compile(path, changed, link) for path in self.build.read_by(mutant.path)]
        return all(self.build.processes.run(command, 300, cwd=self.build.folder,
                                            stdout=subprocess.DEVNULL,
                                            stderr=subprocess.DEVNULL) == 0
                   for command in [*commands, link])

    def _compile(self, path, changed, link):
        """The command that compiles a source with the changed file, which is that source or one of
        its headers; its object takes the usual one's place in the link."""
        command = list(self.build.compilers[path])
        original = command[command.index("-o") + 1]
        compiled = self.folder / "mutant" / path.replace("/", "_").replace(".cpp", ".o")
        command[command.index("-o") + 1] = compiled
        if changed.suffix == ".cpp":
            command[command.index("-c") + 1] = changed
        command.insert(1, f"-I{self.folder / 'mutant'}")
        link[link.index(original)] = compiled
        return command

    def run_test(self, command, patience, library):
        """The exit status with the rules of that folder; None when it took too long."""
        temporary = self.folder / "tmp"
        status = self.build.processes.run(
            command, patience, cwd=self.folder, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            env={**os.environ, "LD_LIBRARY_PATH": str(library), "TMPDIR": str(temporary)})
        if any(temporary.iterdir()):
            shutil.rmtree(temporary, ignore_errors=True)
            temporary.mkdir(exist_ok=True)
        return status
