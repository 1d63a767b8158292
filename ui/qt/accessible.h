#pragma once
// What screen readers get of the windows: texts without padding, main windows as windows, and no
// event that would make them say something too early or once more.

namespace tasca {

// Installs the descriptions of the transcript, the input line, every line of text and both main
// windows, and the filter of the events. Requires a QApplication. Further calls have no effect.
void DescribeTexts();

}  // namespace tasca
