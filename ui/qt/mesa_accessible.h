#pragma once
// The drawn table for screen readers: a group "La mesa" of sentences that a screen reader can
// query. It announces nothing, because the three texts are announced already.

namespace tasca {

// Installs the description for every MesaView. Requires a QApplication. Further calls have no
// effect.
void DescribeMesaViews();

}  // namespace tasca
