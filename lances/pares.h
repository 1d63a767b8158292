#pragma once
// Pares: two equal cards or more. Every seat declares whether it has pares; only when both parejas
// do is the lance bet, by the seats that have them. Dúplex beats medias, medias beat par; within a
// class the higher pairs win, and equal hands go to the seat nearest the mano.
#include <vector>

#include "lances/lance.h"

namespace tasca {

void DeclaraPares(Game& g);  // the declaration step; sets OrdenPares
void LancePares(Game& g);    // the opening step
void EnvitePares(Game& g);   // the answer step

// True if two of the seat's cards have equal ValorPares.
bool TienePares(const Table& t, Seat asiento);

// The ValorPares of every two equal cards of the seat, slots 1-2, 1-3, 1-4, 2-3, 2-4, 3-4 in turn:
// one for a par, two for a dúplex, three for medias, six for four equal cards.
std::vector<int> CartasIguales(const Table& t, Seat asiento);

// Opening decision of a computer seat (2 to 4): paso, envido or órdago. Draws up to three times.
Decision DecidePares(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat. Draws at most once.
// Kept: with the opponents near the juego it says nothing at all (Decision::Callar).
Decision RespondePares(const Table& t, Rnd& rnd, Seat asiento);

// The pareja with the best pares; -1 when no seat has any.
Pareja GanaPares(const Table& t);

// The lance's texts and rules.
const Lance& DatosPares();

}  // namespace tasca
