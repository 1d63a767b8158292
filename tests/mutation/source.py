"""A C++ source as tokens, with the positions of its functions and constants."""

import re
from dataclasses import dataclass, field

KINDS = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#[^\n]*)
      | (?P<string>(?:u8|u|U|L)?"(?:\\.|[^"\\\n])*")
      | (?P<char>(?:u8|u|U|L)?'(?:\\.[0-9A-Fa-f]*|[^'\\\n])')
      | (?P<number>0[xX][0-9A-Fa-f.']+(?:[pP][+-]?\d+)?[uUlLfF]*
                 |\d[\d']*(?:\.\d+)?(?:[eE][+-]?\d+)?[uUlLfF]*)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<sign><<=|>>=|<=>|->|::|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=
                 |[-+*/%<>=!&|^~?:;,.(){}\[\]])""",
    re.VERBOSE | re.MULTILINE | re.DOTALL)


@dataclass
class Token:
    kind: str
    text: str
    start: int
    end: int
    spaced: bool = False    # blanks on both sides: a binary operator
    in_angles: bool = False  # inside the < > of a template


@dataclass
class Source:
    path: str
    text: str
    tokens: list
    # From a name to the tokens (first, last) of its functions and of its constants outside
    # functions.
    functions: dict = field(default_factory=dict)
    constants: dict = field(default_factory=dict)
    bodies: set = field(default_factory=set)  # the tokens in function bodies
    heads: set = field(default_factory=set)   # the tokens in the parentheses of a for

    def line_of(self, position):
        return self.text.count("\n", 0, position) + 1

    def function_at(self, token):
        return next((name for name, places in self.functions.items()
                     for first, last in places if first <= token <= last), "")


def tokens_of(text):
    found = []
    for match in KINDS.finditer(text):
        if match.lastgroup in ("comment", "directive"):
            continue
        spaced = text[match.start() - 1].isspace() and text[match.end():match.end() + 1].isspace()
        found.append(Token(match.lastgroup, match.group(), match.start(), match.end(), spaced))
    _mark_angles(found)
    return found


def _mark_angles(tokens):
    open_at = []
    for i, token in enumerate(tokens):
        if token.spaced or token.kind != "sign":
            continue
        if token.text == "<" and i and tokens[i - 1].end == token.start:
            open_at.append(i)
        elif token.text in (">", ">>"):
            for _ in range(min(len(token.text), len(open_at))):
                for inner in tokens[open_at.pop():i + 1]:
                    inner.in_angles = True


def closing(tokens, i):
    """The index of the token that closes the bracket at i."""
    pairs = {"(": ")", "{": "}", "[": "]"}
    opening, wanted, depth = tokens[i].text, pairs[tokens[i].text], 0
    for j in range(i, len(tokens)):
        if tokens[j].kind == "sign":
            depth += (tokens[j].text == opening) - (tokens[j].text == wanted)
            if depth == 0:
                return j
    raise ValueError("unclosed bracket")


def read(root, path):
    text = (root / path).read_text(encoding="utf-8")
    source = Source(path, text, tokens_of(text))
    _find_definitions(source)
    for i, token in enumerate(source.tokens):
        if token.text == "for":
            source.heads.update(range(i + 1, closing(source.tokens, i + 1)))
    return source


def _find_definitions(source):
    tokens, i = source.tokens, 0
    while i < len(tokens):
        if tokens[i].text in ("}", ";"):
            i += 1
            continue
        last, name, kind = _definition(tokens, i)
        if kind:
            getattr(source, kind).setdefault(name, []).append((i, last))
        if kind == "functions":
            source.bodies.update(range(_opening(tokens, last) + 1, last))
        i = last + 1


def _definition(tokens, i):
    """The definition that begins at token i: its last token, its name and its kind ("functions",
    "constants" or "")."""
    j, name, has_arguments, initialisers = i, "", False, False
    while True:
        text = tokens[j].text
        if text == ";":
            return j, name, ""
        if text == "=" and not has_arguments:
            return end_of_statement(tokens, j), tokens[j - 1].text, "constants"
        if text == "(":
            name, has_arguments = name or tokens[j - 1].text, True
            j = closing(tokens, j)
        elif text == ":" and has_arguments:
            initialisers = True
        elif text == "{" and tokens[i].text in ("namespace", "struct", "class"):
            return j, "", ""
        elif text == "{" and not has_arguments:
            constant = tokens[i].text != "enum"
            return (end_of_statement(tokens, j), tokens[j - 1].text,
                    "constants" if constant else "")
        elif text == "{" and not (initialisers and tokens[j - 1].kind == "word"):
            return closing(tokens, j), name, "functions"
        elif text == "{":
            j = closing(tokens, j)
        j += 1


def _opening(tokens, i):
    """The index of the brace that the one at i closes."""
    depth = 0
    while True:
        depth += (tokens[i].text == "}") - (tokens[i].text == "{")
        if depth == 0:
            return i
        i -= 1


def end_of_statement(tokens, i):
    """The index of the semicolon that ends the statement at i; None if a bracket closes before."""
    while tokens[i].text != ";":
        if tokens[i].text in (")", "}", "]"):
            return None
        i = closing(tokens, i) + 1 if tokens[i].text in ("(", "{", "[") else i + 1
    return i
