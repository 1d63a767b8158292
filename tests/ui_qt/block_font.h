#pragma once
// A font for pictures that are the same with every font of the system: each letter is a block.
#include <QFont>

namespace tasca::test {

// The font, `pixeles` high and without hinting. Every character has the same width, 9/16 of
// the height and 10/16 in bold.
QFont BlockFont(int pixeles);

}  // namespace tasca::test
