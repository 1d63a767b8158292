#pragma once
// What screen readers get of the windows: texts without padding, windows as windows, and no event
// that would make them say something too early or once more.

namespace tasca {

// Installs the descriptions of the transcript, the input line, every line of text and the windows
// that are no dialogs, and the filter of the events. Requires a QApplication. Further calls have no
// effect.
void DescribeTexts();

}  // namespace tasca
