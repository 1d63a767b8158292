"""The tests that can kill a mutant: their build targets and their commands."""

import re

LEAST_PATIENCE = 20  # seconds


class Rules:
    """For the rules: all tests without a window."""

    LIBRARIES = ("tasca_rules",)
    PROGRAMS = ("tasca-golden", "tasca-signature", "tasca-check")
    FOLDERS = ("cards", "mus", "lances", "count", "score", "match", "keep", "scene", "table",
               "sound", "startup", "characters", "base")
    OTHERS = ("tests_ui_trace", "tests_bad_inputs", "tests_tools_cast", "tests_save_faults")
    # These tests take a minute or two and only cover the saving of files.
    SAVING = ("tests_save_faults", ("base/", "characters/", "startup/"))

    def __init__(self, root):
        self._tests = root / "tests"
        self._data = root / "data"

    def targets(self):
        return [f"tests_{folder}" for folder in self.FOLDERS] + [*self.OTHERS, *self.PROGRAMS]

    def every(self, place):
        """Names and commands; `place` says where a program is."""
        found = {f"tests_{folder}": [place(f"tests_{folder}"), "--gtest_fail_fast"]
                 for folder in self.FOLDERS}
        found |= golden_games(self._tests, place)
        found["shipped file"] = [place("tasca-check"), self._data / "Jugadores.dat"]
        for name in self.OTHERS:
            found[name] = [place(name), "--gtest_fail_fast"]
        found["signature"] = [place("tasca-signature"), "200",
                              self._tests / "ui_trace" / "signatures"]
        return found

    def of(self, path, place, usual):
        """The tests for a source: those of its folder first, then the others from fast to slow."""
        found = self.every(place)
        if not path.startswith(self.SAVING[1]):
            del found[self.SAVING[0]]
        own = "tests_" + path.split("/")[0]
        return sorted(found.items(), key=lambda test: (test[0] != own, usual.get(test[0], 0)))

    def patience(self, seconds):
        return max(LEAST_PATIENCE, 10 * seconds)


class Ui:
    """For the faces: the tests of each face and of what is built on it."""

    LIBRARIES = ("tasca_rules", "tasca_utf8", "tasca_options", "tasca_program_folder",
                 "tasca_cast_source", "tasca_trace_face", "tasca_media_player",
                 "tasca_loudspeaker", "tasca_mesa", "tasca_spoken", "tasca_manual",
                 "tasca_terminal_face", "tasca_qt")
    PROGRAMS = ("tasca", "tasca-editor", "tasca-terminal", "tasca-sound", "tasca-trace",
                "tasca-cast", "tasca-check", "tasca-golden")
    TESTS = ("tests_ui_qt_start", "tests_ui_qt", "tests_ui_loudspeaker", "tests_ui_terminal",
             "tests_ui_trace", "tests_tools_cast", "tests_ui", "tests_ui_mesa", "tests_ui_spoken",
             "tests_manual")
    # From a prefix of a path to its tests, in order.
    BY_PATH = {
        "ui/qt/": ("tests_ui_qt_start", "start of tasca", "start of tasca-editor", "tests_ui_qt"),
        "ui/loudspeaker/": ("tests_ui_loudspeaker", "tests_ui_terminal", "tests_ui_qt"),
        "ui/mesa/": ("tests_ui_mesa", "tests_ui_qt"),
        "ui/spoken/": ("tests_ui_spoken", "tests_ui_terminal", "tests_ui_qt"),
        "ui/manual/": ("tests_manual", "tests_ui_terminal", "tests_ui_qt"),
        "ui/terminal/": ("tests_ui_terminal",),
        "tools/check/": ("checker", "options/tasca-check"),
        "tools/cast/": ("tests_tools_cast", "cast", "options/tasca-cast"),
        "ui/trace/": ("tests_ui_trace", "options/tasca-trace", "traces/"),
        "ui/program_folder": ("tests_ui_qt_start", "tests_ui_terminal", "tests_ui_qt"),
        "ui/state_folder": ("tests_ui",),
        "ui/game_folder": ("tests_ui",),
        "ui/own_files": ("tests_ui",),
        "ui/options": ("options/",),
        "ui/plain_text": ("tests_ui", "tests_ui_terminal", "checker"),
        "ui/utf8": ("tests_ui", "tests_tools_cast", "tests_ui_terminal", "tests_ui_trace", "traces/",
                    "checker"),
    }

    def __init__(self, root):
        self._tests = root / "tests"
        self._data = root / "data"

    def targets(self):
        return [*self.TESTS, *self.PROGRAMS]

    def every(self, place):
        """Names and commands; `place` says where a program is."""
        found = {name: [place(name), "--gtest_fail_fast"] for name in self.TESTS}
        found |= golden_games(self._tests, place)
        for name in ("tasca", "tasca-editor"):
            script = self._tests / "ui_qt_start" / "without-a-screen"
            found[f"start of {name}"] = ["sh", script, place(name)]
        script = self._tests / "ui" / "check-options"
        for name, *kinds in (("tasca", "es", "none", "folder"), ("tasca-cast", "en", "some", "none"),
                             ("tasca-check", "es", "some", "folder"),
                             ("tasca-trace", "en", "some", "folder")):
            found[f"options/{name}"] = ["sh", script, place(name), *kinds, "1.0"]
        found["checker"] = ["sh", self._tests / "tools_check" / "check-program", place("tasca-check"),
                            self._data / "Jugadores.dat"]
        found["cast"] = ["sh", "-c", '"$0" "$1/personajes.txt" written && '
                         'cmp written "$1/Jugadores.dat"', place("tasca-cast"), self._data]
        return found

    def of(self, path, place, usual):
        """The tests for a source: the cases of its own test file first."""
        found = self.every(place)
        names = next(names for start, names in self.BY_PATH.items() if path.startswith(start))
        chosen = [(name, command) for wanted in names for name, command in found.items()
                  if name == wanted or wanted.endswith("/") and name.startswith(wanted)]
        return [*self._own(path, found), *chosen]

    def _own(self, path, found):
        """The suites of the source's own test file, in the folders whose tests are slow."""
        folder, stem = path.split("/")[1], path.rsplit("/", 1)[1].removesuffix(".cpp")
        file = self._tests / f"ui_{folder}" / f"{stem}_test.cpp"
        if folder not in ("qt", "loudspeaker", "terminal") or not file.exists():
            return
        suites = sorted(set(re.findall(r"^TEST(?:_F|_P)?\((\w+),", file.read_text("utf-8"), re.M)))
        if suites:
            command = found[f"tests_ui_{folder}"]
            chosen = ":".join(f"{suite}.*:*/{suite}.*" for suite in suites)
            yield file.name, [*command, f"--gtest_filter={chosen}"]

    def patience(self, seconds):
        return max(LEAST_PATIENCE, 4 * seconds)


def golden_games(tests, place):
    return {f"traces/{game.parent.name}": [place("tasca-golden"), "check", game.parent]
            for game in sorted(tests.glob("traces/*/in.jsonl"))}
