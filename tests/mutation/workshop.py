"""Builds a mutant and runs the tests that can kill it.

The tests are built once, against shared libraries of the rules and of the faces. For a mutant, one
source is compiled and linked with the other objects into a separate library or program, and the
same tests run with it. Neither the checkout nor the build is modified. For a mutated header only
the rules are recompiled, not the tests.
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


class Stopped(Exception):
    """The run has been interrupted."""


class Processes:
    """The running processes, so that all can be killed when the run is stopped."""

    def __init__(self):
        self._lock = threading.Lock()
        self._running = set()
        self._stopped = False

    def run(self, command, patience, **options):
        """Runs a command. Returns its exit status; None after `patience` seconds."""
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
        """Kills the process group."""
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
    """The unmutated program and its tests."""

    def __init__(self, root, processes, suites):
        self.root, self.processes, self.suites = root, processes, suites
        self.folder = root / "build" / "mutation"
        self.log = self.folder / "build.log"
        self.usual = {}  # seconds that each test takes
        self.folder.mkdir(parents=True, exist_ok=True)
        self._lock = (self.folder / "lock").open("w", encoding="utf-8")

    def take(self):
        """Locks the build folder until this process ends. False if another run holds the lock."""
        try:
            fcntl.flock(self._lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            return False
        return True

    def make(self):
        """Builds the program and the tests. False if that fails; the reason is in the log."""
        configure = ["cmake", "-G", "Ninja", "-S", self.root, "-B", self.folder,
                     "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O1 -w", "-DBUILD_SHARED_LIBS=ON",
                     "-DCMAKE_SKIP_RPATH=ON", f"-DCMAKE_LIBRARY_OUTPUT_DIRECTORY={self.folder}"]
        if shutil.which("ccache"):
            configure.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        ninja = ["ninja", "-C", self.folder, *self.suites.targets()]
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
        made = [f"lib{name}.so" for name in self.suites.LIBRARIES] + \
            [f"bin/{name}" for name in self.suites.PROGRAMS]
        self.linkers = {name: self._linker(name) for name in made}

    def _linker(self, made):
        steps = subprocess.run(["ninja", "-C", self.folder, "-t", "commands", made],
                               check=True, capture_output=True, text=True).stdout.splitlines()
        words = shlex.split(steps[-1])
        words = words[words.index("&&") + 1:]
        return words[:words.index("&&")]

    def object_of(self, path):
        command = self.compilers[path]
        return command[command.index("-o") + 1]

    def holder_of(self, path):
        """The name of the library or program that a source is linked into."""
        return next(made for made, linker in self.linkers.items() if self.object_of(path) in linker)

    def read_by(self, path):
        """The sources to recompile after a change of that file: for a header, all rules."""
        if not path.endswith(".h"):
            return [path]
        return [source for source in self.compilers
                if self.object_of(source) in self.linkers["libtasca_rules.so"]]

    def place(self, name):
        return self.folder / "bin" / name

    def measure(self, paths):
        """Runs the tests of those sources on the original program and stores their durations.
        Returns the names of the tests that fail."""
        needed = {name for path in paths for name, _ in self.suites.of(path, self.place, {})}
        worker = Worker(self, "unmutated")
        failed = []
        for name, command in self.suites.every(self.place).items():
            if name not in needed:
                continue
            began = time.monotonic()
            if worker.run_test(command, 600) != 0:
                failed.append(name)
            self.usual[name] = time.monotonic() - began
        return failed


class Worker:
    """Builds and tests mutants, one at a time, in a folder of its own."""

    def __init__(self, build, name):
        self.build = build
        self.folder = build.folder / "workers" / name
        self.mutant = self.folder / "mutant"
        shutil.rmtree(self.folder, ignore_errors=True)
        (self.folder / "tmp").mkdir(parents=True)

    def trial(self, mutant):
        """Tests a mutant. Returns "not compiled", "survived" or the test that killed it."""
        if not self._make(mutant):
            return "not compiled"
        usual = self.build.usual
        for name, command in self.build.suites.of(mutant.path, self._place, usual):
            patience = self.build.suites.patience(usual.get(name, max(usual.values())))
            status = self.run_test(command, patience)
            if status != 0:
                return f"{name}, too slow" if status is None else name
        return "survived"

    def _place(self, name):
        changed = self.mutant / "bin" / name
        return changed if changed.exists() else self.build.place(name)

    def _make(self, mutant):
        text = (self.build.root / mutant.path).read_text(encoding="utf-8")
        changed = self.mutant / mutant.path
        shutil.rmtree(self.mutant, ignore_errors=True)
        changed.parent.mkdir(parents=True)
        changed.write_text(text[:mutant.start] + mutant.replacement + text[mutant.end:],
                           encoding="utf-8")
        sources = self.build.read_by(mutant.path)
        made = self.build.holder_of(sources[0])
        link = list(self.build.linkers[made])
        (self.mutant / made).parent.mkdir(exist_ok=True)
        link[link.index("-o") + 1] = self.mutant / made
        commands = [self._compile(path, changed, link) for path in sources]
        return all(self.build.processes.run(command, 300, cwd=self.build.folder,
                                            stdout=subprocess.DEVNULL,
                                            stderr=subprocess.DEVNULL) == 0
                   for command in [*commands, link])

    def _compile(self, path, changed, link):
        """The command that compiles a source with the mutated file, which is the source itself or a
        header. Replaces the original object in `link` by the new one."""
        command = list(self.build.compilers[path])
        original = self.build.object_of(path)
        compiled = self.mutant / path.replace("/", "_").replace(".cpp", ".o")
        command[command.index("-o") + 1] = compiled
        if changed.suffix == ".cpp":
            command[command.index("-c") + 1] = changed
        command.insert(1, f"-I{self.mutant}")
        link[link.index(original)] = compiled
        return command

    def run_test(self, command, patience):
        """Runs a test with the mutant. Returns its exit status; None after `patience` seconds."""
        temporary = self.folder / "tmp"
        libraries = f"{self.mutant}:{self.build.folder}"
        status = self.build.processes.run(
            command, patience, cwd=self.folder, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            env={**os.environ, "LD_LIBRARY_PATH": libraries, "TMPDIR": str(temporary),
                 "TASCA_PROGRAMS": str(self.mutant / "bin")})
        if any(temporary.iterdir()):
            shutil.rmtree(temporary, ignore_errors=True)
            temporary.mkdir(exist_ok=True)
        return status
