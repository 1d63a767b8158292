#pragma once
// Running a modal box so that every key finds it whole.
#include <QDialog>

namespace tasca {

// Shows `caja` until it is answered, with the focus at `inicial`, and gives its result. Keys reach
// the box only from the moment when `inicial` has the focus of the active window until the answer:
// a key that comes before would be taken by another control, one that comes after would answer
// again. An early key moves the focus to `inicial`, so that the next one counts. A key that is held
// down answers once at most, and not at all when it was held before.
int RunBox(QDialog& caja, QWidget* inicial);

}  // namespace tasca
