"""Tells the mutants that only change how a window looks: sizes, margins, fonts, stretch, colours and
positions are what a person judges, and no test holds them."""

import re

# A line with one of these is about looks whatever is changed in it.
LINES = re.compile(
    r"setContentsMargins|setSpacing|setMargin\(|setTextMargins|setDocumentMargin"
    r"|setMinimum(Width|Height|ContentsLength)|_->setFont\(|setItalic|setBold|\bScaled\(\S+\(\), [\d.]+\)"
    r"|setFrameStyle|setAutoFillBackground|set(Back|Fore)groundRole|setAlignment|addStretch"
    r"|set(Column|Row)Stretch|setFieldGrowthPolicy|setSizePolicy|setSizeAdjustPolicy"
    r"|setUniformItemSizes|boton->setIcon|averageCharWidth"
    r"|availableSize\(\) \*|constexpr Q(Size|Point)|QPoint\{|double (Unidad|letraDelDibujo)"
    r"|rejilla->(addItem|rowCount)|setWordWrap")
# Here only the numbers and the sums are: how much of the room a control takes, not that it is there;
# how high a box is, not that its height is kept.
NUMBERS = re.compile(r"->add(Widget|Layout|Item)\(|Hoja\(this|documentMargin\(\)|frameWidth\(\)"
                     r"|setMinimumHeight|lineSpacing\(\)")


def is_of_looks(mutant):
    if not mutant.path.startswith("ui/qt/"):
        return False
    return bool(LINES.search(mutant.before)
                or mutant.operator in ("number", "arithmetic") and NUMBERS.search(mutant.before))
