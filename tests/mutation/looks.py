"""Recognises mutants that only change the look of a window: sizes, margins, fonts, stretch, colours
and positions. No test covers these, except pictures of the table with a tolerance. The deck's
drawings are never mutated: their tables are in ui/qt/deck_strokes.inc, which is no source."""

import re

# Any change of a line with one of these only affects the look.
LINES = re.compile(
    r"setContentsMargins|setSpacing|setMargin\(|setTextMargins|setDocumentMargin"
    r"|setMinimum(Width|Height|ContentsLength)|_->setFont\(|setItalic|setBold|\bScaled\(\S+\(\), [\d.]+\)"
    r"|setFrameStyle|setAutoFillBackground|set(Back|Fore)groundRole|setAlignment|addStretch"
    r"|set(Column|Row)Stretch|setFieldGrowthPolicy|setSizePolicy|setSizeAdjustPolicy"
    r"|setUniformItemSizes|boton->setIcon|averageCharWidth"
    r"|availableSize\(\) \*|constexpr Q(Size|Point)|QPoint\{|double (Unidad|letraDelDibujo)"
    r"|rejilla->(addItem|rowCount)|setWordWrap|setRightMargin|setUniformRowHeights|setStretchFactor"
    r"|setChildrenCollapsible")
# Here only changes of numbers and sums do: the size of a control, but not its presence.
NUMBERS = re.compile(r"->add(Widget|Layout|Item)\(|Hoja\(this|documentMargin\(\)|frameWidth\(\)"
                     r"|setMinimumHeight|lineSpacing\(\)")
# Sources that only paint: one number more or less, or a stroke's last letter, is a length or a tint
# that the pictures of tests/ui_qt may not tell apart. Every other change must show in them.
PAINTERS = re.compile(r"ui/qt/mesa_(painter|signs|colors)\.cpp")
# Sources that place the pieces of the table: a number with decimals is a distance in letters, and a
# number with a boolean is a text's size and weight.
PLACERS = re.compile(r"ui/mesa/(\w*layout|measures|pieces|seats)\.cpp")
DISTANCES = re.compile(r"\d\.\d|margen / \d")
WEIGHTS = re.compile(r"\{[\d.]+, (true|false)\}")
STROKES = "ui/qt/mesa_signs.cpp"


def is_of_looks(mutant):
    if PLACERS.fullmatch(mutant.path):
        return bool(mutant.operator == "number" and DISTANCES.search(mutant.before)
                    or mutant.operator == "constant" and WEIGHTS.search(mutant.before))
    if not mutant.path.startswith("ui/qt/"):
        return False
    if PAINTERS.fullmatch(mutant.path) and mutant.operator == "number":
        return True
    if mutant.path == STROKES and mutant.operator == "text":
        return True
    return bool(LINES.search(mutant.before)
                or mutant.operator in ("number", "arithmetic") and NUMBERS.search(mutant.before))
