#pragma once
// Controls beside the text field of an input box, for answers by mouse. They write into the field;
// the field's text is the answer.
#include <QLineEdit>

#include "base/array.h"
#include "base/integer.h"

namespace tasca {

// The hand as four cards: a click writes the card's digit into the field, another takes it out. The
// cards that the field names are marked.
QWidget* CardsToClick(QLineEdit& campo, const Array<Integer, 1, 4>& mano);

// Two buttons that make the number in the field smaller and larger, down to 1. In the field the
// keys Down and Up do the same.
QWidget* Steps(QLineEdit& campo);

}  // namespace tasca
