"""Generates the mutants: programs that differ from the original in one small change."""

import math
import re
from dataclasses import dataclass

import looks
import source

RULES = ("base", "cards", "characters", "count", "keep", "lances", "match", "mus", "scene", "score",
         "sound", "startup", "table")
UI = ("ui", "tools/cast", "tools/check", "ui/loudspeaker", "ui/manual", "ui/mesa", "ui/qt",
      "ui/spoken", "ui/terminal", "ui/trace")

RELATIONS = {"<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
             "==": ("!=",), "!=": ("==",)}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+=",
              "*=": "/=", "/=": "*=", "++": "--", "--": "++"}
# A name is replaced by the next one of its row.
NAMES = {
    "Decision": ["Callar", "NoQuiero", "Quiero", "EnvidoMas", "Ordago"],
    "MessageCategory": ["QMus", "NMus", "TPar", "NPar", "TJue", "NJue", "Paso", "Envi", "EnvM",
                        "Orda", "NQui", "SQui", "Vict", "Derr"],
    "Envite": ["Abierto", "Querido", "OrdagoQuerido"],
}
SAME_NAME = {"Paso": "NoQuiero", "Envido": "Quiero"}  # two names of one decision
NEVER_DROPPED = {"case", "default", "if", "for", "while", "do", "switch", "else", "try", "catch",
                 "using", "struct", "enum", "static_assert"}
DECLARATION = re.compile(r"(?!return|throw)(const |constexpr )*[\w:]+(<[^;=]*>)?[&*]? "
                         r"(const )?[&*]?\[?\w+")

# The functions that decide for a computer seat. The functions that they call in DECIDING_FOLDERS
# are included too.
DECIDERS = re.compile(r"(Decide|Responde|Abre)[A-Z]\w*|DecidirRespuesta|DescartarComputador"
                      r"|CantidadApertura|CantidadAlSubir|PuntuacionMus")
DECIDING_FOLDERS = ("cards/", "lances/", "mus/")
NOT_THEIRS = re.compile(r"Preguntar\w*")  # the human's side of the same functions


@dataclass(frozen=True)
class Mutant:
    operator: str
    path: str
    line: int
    where: str  # the file and the function
    start: int
    end: int
    replacement: str
    before: str  # the original lines, joined, without repeated blanks
    after: str   # the mutated ones


def sources(root, folders):
    return _read_all(root, folders, "*.cpp")


def headers(root):
    """The headers of DECIDING_FOLDERS."""
    return _read_all(root, DECIDING_FOLDERS, "*.h")


def _read_all(root, folders, pattern):
    paths = sorted(str(path.relative_to(root))
                   for folder in folders for path in (root / folder).glob(pattern))
    return [source.read(root, path) for path in paths]


def all_mutants(sources_):
    return [mutant for each in sources_ for mutant in _mutants(each, range(len(each.tokens)))
            if not looks.is_of_looks(mutant)]


def thresholds(sources_, headers_):
    """The mutants of every relation and number in the code that decides for computer seats, named
    constants of the headers included."""
    found = []
    for each, chosen in _deciding(sources_, headers_):
        found += [mutant for mutant in _mutants(each, sorted(chosen))
                  if mutant.operator in ("relation", "number")]
    return found


def _deciding(sources_, headers_):
    """Yields each source with the indices of its tokens that belong to deciding code."""
    near = [each for each in sources_ if each.path.startswith(DECIDING_FOLDERS)] + headers_
    waiting = [(each, name) for each in near for name in each.functions if
               DECIDERS.fullmatch(name)]
    seen = set()
    while waiting:
        each, name = waiting.pop()
        if (each.path, name) in seen:
            continue
        seen.add((each.path, name))
        for first, last in each.functions.get(name, []) + each.constants.get(name, []):
            words = {t.text for t in each.tokens[first:last + 1] if t.kind == "word"}
            waiting += [(home, word) for word in words if not NOT_THEIRS.fullmatch(word)
                        for home in _homes(each, near, headers_, word)]
    for each in near:
        chosen = {i for path, name in seen if path == each.path
                  for first, last in each.functions.get(name, []) + each.constants.get(name, [])
                  for i in range(first, last + 1)}
        yield each, chosen


def _homes(each, near, headers_, name):
    if name in each.functions or name in each.constants:
        return [each]
    return [other for other in near if name in other.functions] + \
        [header for header in headers_ if name in header.constants]


def _mutants(each, chosen):
    for i in chosen:
        for operator, first, last, replacement in _changes(each, i):
            yield _mutant(each, operator, first, last, replacement)


def _mutant(each, operator, first, last, replacement):
    text, start, end = each.text, each.tokens[first].start, each.tokens[last].end
    line_start = text.rfind("\n", 0, start) + 1
    line_end = text.find("\n", end)
    before = " ".join(text[line_start:line_end].split())
    after = " ".join((text[line_start:start] + replacement + text[end:line_end]).split())
    where = f"{each.path} {each.function_at(first)}".strip()
    return Mutant(operator, each.path, each.line_of(start), where, start, end, replacement, before,
                  after)


def _changes(each, i):
    """Yields (operator, first token, last token, replacement) for each change at token i."""
    tokens, token = each.tokens, each.tokens[i]
    if token.in_angles:
        return
    if token.kind == "number":
        yield from (("number", i, i, other) for other in _neighbours(token.text))
    elif token.kind == "string":
        yield from _other_texts(token, i)
    elif token.kind == "char":
        prefix = token.text[:token.text.index("'")]
        yield "constant", i, i, prefix + ("'y'" if token.text.endswith("'x'") else "'x'")
    elif token.kind == "word":
        yield from _word_changes(each, i)
    elif token.text in RELATIONS and token.spaced:
        yield from (("relation", i, i, other) for other in RELATIONS[token.text])
    elif token.text in ARITHMETIC and (token.spaced or token.text in ("++", "--")):
        yield "arithmetic", i, i, ARITHMETIC[token.text]
    elif token.text in ("&&", "||") and token.spaced:
        yield "and/or", i, i, "||" if token.text == "&&" else "&&"
    elif token.text == "!":
        yield "negation", i, i, ""
    yield from _dropped(each, i)


def _neighbours(text):
    """An integer plus and minus one; a fraction changed in its second significant digit, by at most
    1.0."""
    hexadecimal = text.lower().startswith("0x")
    digits = text.rstrip("uUlL" if hexadecimal else "uUlLfF")
    suffix = text[len(digits):]
    digits = digits.replace("'", "")
    if hexadecimal or "." not in digits:
        octal = len(digits) > 1 and digits[0] == "0"
        base, form = (16, "0x{:X}") if hexadecimal else (8, "0{:o}") if octal else (10, "{}")
        value = int(digits, base)
        yield from (form.format(other) + suffix for other in (value + 1, value - 1) if
                    other >= 0 or base == 10)
        return
    value = float(digits)
    step = min(1.0, 10.0 ** (math.floor(math.log10(value)) - 1)) if value else 0.01
    for other in (value + step, value - step):
        written = f"{other:.6f}".rstrip("0")
        yield (written + "0" if written.endswith(".") else written) + suffix


def _other_texts(token, i):
    opening = token.text.index('"') + 1
    inside = token.text[opening:-1]
    if not inside:
        yield "text", i, i, token.text[:opening] + 'x"'
        return
    last = re.search(r"(?:\\u[0-9A-Fa-f]{4}|\\x[0-9A-Fa-f]+|\\.|.)$", inside).group()
    yield "text", i, i, token.text[:opening] + inside[:-len(last)] + '"'


def _word_changes(each, i):
    tokens, word = each.tokens, each.tokens[i].text
    previous = tokens[i - 1].text if i else ""
    following = tokens[i + 1].text if i + 1 < len(tokens) else ""
    if word in ("true", "false"):
        yield "constant", i, i, "false" if word == "true" else "true"
    elif word in ("if", "while") and following == "(":
        last = source.closing(tokens, i + 1)
        yield "negation", i + 1, last, f"(!{each.text[tokens[i + 1].start:tokens[last].end]})"
    elif following == "?" and previous in ("=", "(", "return", ",", "+"):
        yield "negation", i, i, "!" + word
    elif previous == "::" and tokens[i - 2].text in NAMES:
        row = NAMES[tokens[i - 2].text]
        if tokens[i - 2].text == "Decision":
            word = SAME_NAME.get(word, word)
        if word in row:
            yield "constant", i, i, row[(row.index(word) + 1) % len(row)]


def _dropped(each, i):
    """Drops the statement that begins at token i, unless it declares something."""
    tokens, token = each.tokens, each.tokens[i]
    if i not in each.bodies or token.text in NEVER_DROPPED or not _begins_statement(each, i):
        return
    last = source.end_of_statement(tokens, i)
    if last is None or DECLARATION.match(each.text, token.start):
        return
    # The last return of a function cannot be dropped.
    if token.text != "return" or tokens[i - 1].text == ")":
        yield "statement", i, last, ";"


def _begins_statement(each, i):
    previous = each.tokens[i - 1]
    if i in each.heads or each.tokens[i].text not in ("++", "--") and each.tokens[i].kind != "word":
        return False
    if previous.text in (";", "}", "else", "do"):
        return True
    new_line = "\n" in each.text[previous.end:each.tokens[i].start]
    if previous.text in ("{", ":"):
        return new_line
    return previous.text == ")"
