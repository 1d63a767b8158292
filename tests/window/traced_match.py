"""Plays a match through `tasca-trace` and gives it in the form of the window's transcript."""
import json
import subprocess

import windows
from match_player import BUTTONS

_TITLE = "La tasca del tío Zarandel"  # the default title of a window
_OFFERED = {-1: BUTTONS, 0: ["Paso", "Quiero", *BUTTONS[2:]], -2: ["Paso", "Quiero"]}
_CAPTIONS = {"ok": "Aceptar", "yes": "Sí", "no": "No"}


def traced(program, folder, lines):
    """Plays the lines. Returns the events and, after each, the line that answers it."""
    given = "".join(json.dumps(line) + "\n" for line in lines)
    ended = subprocess.run([program, folder], input=given, stdout=subprocess.PIPE, text=True,
                           encoding="utf-8", check=False)
    answers = iter(lines)
    told = [next(answers)]
    began = False
    for line in ended.stdout.splitlines():
        event = json.loads(line)
        if event["event"] in ("sound", "soundstop"):
            continue
        began = began or event["event"] == "state"
        told.append(_as_shown(event, ended.returncode))
        if event.get("buttons") != "ok" or not began:
            told.extend(answer for answer in [next(answers, None)] if answer)
    return told


def _as_shown(event, status):
    """An event of the trace in the form of the window's transcript."""
    if event["event"] == "state":
        return {"table": _shown([event["Text1"], event["Text2"], event["Text3"]])}
    if event["event"] == "end":
        return {"end": event["reason"], "status": status}
    title = event["title"] or _TITLE
    return {**_question(event, title), "texts": _shown(event["texts"])}


def _question(event, title):
    if event["event"] == "dialog":
        return {"question": windows.BETS, "title": title, "buttons": _OFFERED[event["mode"]],
                "focus": ["Paso"]}
    (text,) = _shown([event["text"]])
    if event["event"] == "inputbox":
        return {"question": windows.INPUT, "title": title, "text": text,
                "default": event["default"]}
    kind = windows.MESSAGE if event["buttons"] == "ok" else windows.YES_NO
    return {"question": kind, "title": title, "text": text, "icon": event["icon"],
            "default": [_CAPTIONS[event["default"]]]}


def _shown(texts):
    """Converts all line breaks to LF, as the window does."""
    return [windows.plain(text.replace("\r\n", "\n").replace("\r", "\n")) for text in texts]
