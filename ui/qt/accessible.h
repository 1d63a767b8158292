#pragma once
// The texts of the game and the main windows for screen readers: the texts without the padding of
// their cards, and the windows as windows.

namespace tasca {

// Installs the description for the transcript, the input line and both main windows. Requires a
// QApplication. Further calls have no effect.
void DescribeTexts();

}  // namespace tasca
