#pragma once
// The scene: what a person at the table can see, as plain values. All pictures and spoken
// descriptions of the table are made from it. It does not contain the order of the deck or the
// face-down cards, so that no face can show them by mistake.
#include <optional>
#include <string>
#include <vector>

#include "table/table.h"

namespace tasca {

// The situation in which the scene is computed.
enum class Momento {
  Reposo,    // between two steps: the game waits for Enter
  Pregunta,  // a question to the player is open
  Aviso,     // a message box is open
};

// One slot of a hand.
struct Naipe {
  bool Hay = false;  // the slot holds a card
  Integer Carta;     // its number 1..40 if it is face up; 0 if it is face down

  bool operator==(const Naipe&) const = default;
};

// What a seat has declared about its pares or juego.
enum class Declarado { SinSaber, No, Si };

// One of the four seats.
struct AsientoVisto {
  std::u16string Nombre;
  bool EsMano = false;  // false for all seats until the mano of the first hand is decided
  Array<Naipe, 1, 4> Naipes;
  std::u16string Bocadillo;        // the seat's last words in the transcript; "" if none
  bool HaHabladoElUltimo = false;  // the last words of the transcript are this seat's
  Declarado Pares = Declarado::SinSaber;
  Declarado Juego = Declarado::SinSaber;
  std::optional<Integer> CartasCambiadas;  // set only just after a discard pass

  bool operator==(const AsientoVisto&) const = default;
};

// What the game is waiting for.
enum class Turno {
  Nadie,    // a message box is open
  Jugador,  // the player's answer to a question
  Enter,    // the Enter key
};

// The state of a lance on the slate.
enum class EstadoLance {
  PorJugar,       // not played yet
  Declaran,       // the seats declare pares or juego
  Envite,         // unanswered bet of Piedras by De; Vistas stones were bet before and are accepted
  Ordago,         // unanswered órdago by De
  Queridas,       // a bet of Piedras was accepted
  OrdagoQuerido,  // an órdago was accepted
  NoSeJugo,       // not played: an accepted órdago ended the hand earlier
  NoQuerida,      // a bet was refused and paid
  NoHay,          // nobody has pares or juego
  EnPaso,         // all have passed
  SinEnvite,      // only the pareja De has pares or juego, so nobody bets
};

// The highlight of a lance on the slate.
enum class MarcaLance {
  Ninguna,
  EnJuego,    // being played: a box is open
  Siguiente,  // played by the next Enter
};

// One lance on the slate.
struct CeldaPizarra {
  NumeroLance Lance = NumeroLance::Grande;
  MarcaLance Marca = MarcaLance::Ninguna;
  EstadoLance Estado = EstadoLance::PorJugar;
  int Piedras = 0;                          // set for Envite and Queridas
  int Vistas = 0;                           // set for Envite
  std::optional<Pareja> De = std::nullopt;  // set for Envite, Ordago and SinEnvite

  bool operator==(const CeldaPizarra&) const = default;
};

// The score of a pareja and its targets.
struct TanteoVisto {
  Integer Piedras;           // stones in the current juego
  Integer Juegos;            // juegos won in the current vaca
  Integer Vacas;             // vacas won in the match
  Integer JuegosParaVaca;    // juegos that win a vaca
  Integer VacasParaPartida;  // vacas that win the match

  bool operator==(const TanteoVisto&) const = default;
};

// Everything that can be seen on the table.
struct Escena {
  Array<AsientoVisto, 1, 4> Asientos;
  Turno Toca = Turno::Nadie;
  // Grande, pequeña, pares and juego, then the punto if it is played.
  std::vector<CeldaPizarra> Pizarra;
  int GrosorMazo = 0;               // thickness of the deck: 0 if empty, otherwise 1 to 3
  int GrosorDescartes = 0;          // thickness of the pile of discards, 0 to 3
  Array<TanteoVisto, 0, 1> Tanteo;  // by pareja

  bool operator==(const Escena&) const = default;
};

// Computes the scene. It never depends on the face-down cards of seats 2 to 4, on the order of the
// deck or on draws to come.
Escena EscenaDe(const Table& t, Momento momento);

// True if any card of the seats 2 to 4 is face up.
bool HayManosAbiertas(const Table& t);

}  // namespace tasca
