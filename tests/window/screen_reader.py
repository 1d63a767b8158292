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
_SPOKEN = re.compile(r"- SPEECH OUTPUT: '(.*?)' ?\[?\{'established'", re.DOTALL)


class ScreenReader:
    """Orca with a speech server that makes no sound."""

    def __init__(self, session):
        self._session = session
        self.log = session.folder / "orca.log"
        address = self._start_speech_server()
        session.start("orca", "--user-prefs", self._preferences(), "--debug-file", self.log,
                      extra={"SPEECHD_ADDRESS": f"unix_socket:{address}"})
        wait_for("screen reader", lambda: self.said())

    def said(self):
        """Everything that it has said, in order, without the indentation of its log."""
        text = self.log.read_text(errors="replace") if self.log.exists() else ""
        return [re.sub(r"\n *", "\n", spoken) for spoken in _SPOKEN.findall(text)]

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
