#pragma once
// The drawn table for screen readers: a group "La mesa" of sentences that can be asked for. It says
// nothing of its own accord, for the three texts say everything already.

namespace tasca {

// From now on every MesaView has such a description. Wants the application to stand; to be called
// again does nothing.
void DescribeMesaViews();

}  // namespace tasca
