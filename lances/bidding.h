#pragma once
// The betting of all five lances. In the opening the seats speak in turn from the mano until one
// bets or all have passed. In the answer the other pareja accepts, refuses or raises, until the bet
// is accepted or refused.
#include "lances/lance.h"

namespace tasca {

// The opening step of a lance. Asks the human if it is their turn; draws for the computer seats. A
// bet is stored in SeguirLance and ParejaEnvite, and Fase becomes SiEnvidan; without a bet Fase
// becomes SiPasan. Does not ask if SeguirLance already holds a bet (unless EmpiezaSinEnvite).
void AbrirLance(Game& g, const Lance& lance);

// The answer step: the pareja opposite ParejaEnvite answers the bet of SeguirLance.
// - Accepted: the stones are added to Apuesta and paid in the count.
// - Refused: ParejaEnvite gets the stones accepted before, or one, at once; Apuesta becomes
//   ApuestaPagada.
// - An accepted órdago: all hands are shown and the winner of the lance wins the juego (GanaJuego).
// SeguirLance becomes 0, and Fase becomes TrasRespuesta, after an órdago EmpezarMano. May throw
// LeaveProgram.
void ResponderLance(Game& g, const Lance& lance);

}  // namespace tasca
