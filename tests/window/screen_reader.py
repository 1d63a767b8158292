"""Runs the screen reader Orca on a desktop, and reads what it says from its debug file."""
import json
import re

from session import wait_for

_SPEECHD = """LogLevel 1
DefaultVolume 100
AudioOutputMethod "libao"
AddModule "dummy" "sd_dummy" "dummy.conf"
DefaultModule dummy
DefaultLanguage es
"""
# The debug file is read while Orca writes it.
_CUSTOM = "import orca.debug\norca.debug.debugFile.reconfigure(line_buffering=True)\n"
_SPOKEN = re.compile(r"- SPEECH OUTPUT: '(.*?)' ?\[?\{'established'|"
                     r"EVENT MANAGER: (Queueing|Dequeued) ", re.DOTALL)


class ScreenReader:
    """Orca with a speech server that makes no sound."""

    def __init__(self, session):
        self._session = session
        self.log = session.folder / "orca.log"
        self._place = 0  # in the debug file: what is before it has been read
        self._said = []
        self._queued = 0
        address = self._start_speech_server()
        session.start("orca", "--user-prefs", self._preferences(), "--debug-file", self.log,
                      extra={"SPEECHD_ADDRESS": f"unix_socket:{address}"})
        wait_for("screen reader", lambda: self.said())

    def said(self):
        """Everything that it has said, in order, without the indentation of its log."""
        self._read()
        return self._said

    def is_idle(self):
        """Whether it has handled every event that it knows of."""
        self._read()
        return self._queued <= 0

    def _read(self):
        """Reads what has been added to the debug file."""
        if not self.log.exists():
            return
        with self.log.open("rb") as file:
            file.seek(self._place)
            text = file.read().decode(errors="replace")
        last = 0
        for found in _SPOKEN.finditer(text):
            last = found.end()
            if found[1] is not None:
                self._said.append(re.sub(r"\n *", "\n", found[1]))
            else:
                self._queued += 1 if found[2] == "Queueing" else -1
        self._place += len(text[:last].encode())

    def _start_speech_server(self):
        folder = self._session.folder / "speechd"
        (folder / "modules").mkdir(parents=True)
        (folder / "modules" / "dummy.conf").touch()
        (folder / "speechd.conf").write_text(_SPEECHD)
        address = folder / "socket"
        self._session.start("speech-dispatcher", "--run-single", "--timeout", "0",
                            "--config-dir", folder, "--log-dir", folder,
                            "--communication-method", "unix_socket", "--socket-path", address,
                            "--pid-file", folder / "pid")
        wait_for("speech server", address.exists)
        return address

    def _preferences(self):
        """Without braille, for which Orca would wait."""
        folder = self._session.folder / "orca"
        folder.mkdir()
        profile = {"profile": ["Default", "default"], "enableSpeech": True, "enableBraille": False,
                   "enableBrailleMonitor": False,
                   "speechServerFactory": "speechdispatcherfactory",
                   "speechServerInfo": ["Default Synthesizer", "default"]}
        settings = {"general": {"startingProfile": ["Default", "default"], **profile},
                    "pronunciations": {}, "keybindings": {}, "profiles": {"default": profile}}
        (folder / "user-settings.conf").write_text(json.dumps(settings))
        (folder / "orca-customizations.py").write_text(_CUSTOM)
        return folder
