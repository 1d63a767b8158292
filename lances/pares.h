#pragma once
// Pares: two or more equal cards. Every seat declares whether it has pares. If both parejas have,
// the seats that have them bet. Dúplex (two pairs) beats medias (three equal cards), medias beat
// par; within a class the higher pairs win, and of equal hands the first seat in speaking order.
// The betting is in lances/bidding.h. At the count (count/) each seat of the winning pareja is
// paid: a par 1 stone, medias 2, dúplex 3.
#include <vector>

#include "lances/lance.h"

namespace tasca {

// The declaration step: every seat declares in speaking order; the human is asked. Sets OrdenPares,
// and Fase to Pares, or to DeclaracionJuego if not both parejas have pares. If nobody has,
// Apuesta becomes ApuestaPagada.
void DeclaraPares(Game& g);
void LancePares(Game& g);   // the opening step: AbrirLance
void EnvitePares(Game& g);  // the answer step: ResponderLance

// True if two of the seat's cards have equal ValorPares.
bool TienePares(const Table& t, Seat asiento);

// The ValorPares of every pair of equal cards of the seat, in the order of the slots 1-2, 1-3, 1-4,
// 2-3, 2-4, 3-4. The size is 1 for a par, 2 for a dúplex, 3 for medias and 6 for four equal cards.
std::vector<int> CartasIguales(const Table& t, Seat asiento);

// Opening decision of a computer seat (2 to 4): paso, envido or órdago. Draws up to three times.
// Requires OrdenPares.
Decision DecidePares(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat to the bet of SeguirLance. Requires OrdenPares. Draws at most once.
// Kept: refuses silently (Decision::Callar) if the opponents lack fewer than seven stones and the
// score does not decide.
Decision RespondePares(const Table& t, Rnd& rnd, Seat asiento);

// The pareja with the best pares; -1 if no seat has pares.
Pareja GanaPares(const Table& t);

// The texts and rules of pares.
const Lance& DatosPares();

}  // namespace tasca
