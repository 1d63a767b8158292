#pragma once
// What screen readers are told of the controls' events. Some of the toolkit's events would make
// them say a text too early or once more.
#include <QAccessible>

namespace tasca {

enum class Telling {
  AsItIs,
  Not,       // a text field of a box that is not active yet: its title has not been said
  Silently,  // the focus came back to an input line whose text is known
};

Telling TellingOf(const QAccessibleEvent& suceso);

// Installs the filter of the events. Further calls have no effect.
void FilterEvents();

}  // namespace tasca
