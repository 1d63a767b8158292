#pragma once
// Runs a modal box that ignores keys typed before it is ready.
#include <QDialog>

namespace tasca {

// Shows `caja` with the focus on `inicial`, blocks until it is answered and returns its result.
// Keys are ignored until `inicial` has the focus in the active window, because another control
// would handle them, and after the answer, because they would answer twice. An early key requests
// the focus for `inicial`. The auto-repeat of a held key never answers.
int RunBox(QDialog& caja, QWidget* inicial);

}  // namespace tasca
