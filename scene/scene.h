#pragma once
// What a person at the table can see, and nothing more, as plain values. Every picture and every
// spoken description of the table is made of these. The order of the deck and the cards that lie
// face down are not in them, so that no face can show them by mistake.
#include <optional>
#include <string>
#include <vector>

#include "table/table.h"

namespace tasca {

// When the table is looked at.
enum class Momento {
  Reposo,    // a step has ended: the game waits for Enter
  Pregunta,  // a question to the player is open
  Aviso,     // a message box is open
};

// A place for a card.
struct Naipe {
  bool Hay = false;  // a card lies there
  Integer Carta;     // its number 1..40 when it lies face up; 0 when it lies face down

  bool operator==(const Naipe&) const = default;
};

// What is known of a seat's pares or juego.
enum class Declarado { SinSaber, No, Si };

// One of the four seats.
struct AsientoVisto {
  std::u16string Nombre;
  bool EsMano = false;
  Array<Naipe, 1, 4> Naipes;
  std::u16string Bocadillo;  // what the seat said last; "" while it has said nothing
  bool HaHabladoElUltimo = false;
  Declarado Pares = Declarado::SinSaber;
  Declarado Juego = Declarado::SinSaber;
  std::optional<Integer> CartasCambiadas;  // in the discard pass that has just ended

  bool operator==(const AsientoVisto&) const = default;
};

// Whose turn it is: the player's to answer, or the Enter key's.
enum class Turno { Nadie, Jugador, Enter };

// How a lance stands on the slate.
enum class EstadoLance {
  PorJugar,
  Declaran,       // the seats say who has pares or juego
  Envite,         // a bet of Piedras by De, over Vistas stones already seen, has no answer yet
  Ordago,         // an órdago by De has no answer yet
  Queridas,       // Piedras have been accepted
  OrdagoQuerido,  // an órdago has been accepted
  NoSeJugo,       // an órdago accepted before it ended the hand
  NoQuerida,      // a bet was refused and paid
  NoHay,          // nobody has pares, or juego
  EnPaso,         // all have passed
  SinEnvite,      // only the pareja De has it, so nobody bets
};

// How a lance is marked on the slate.
enum class MarcaLance {
  Ninguna,
  EnJuego,    // a box is open in the middle of it
  Siguiente,  // the next Enter plays it
};

// One lance on the slate.
struct CeldaPizarra {
  NumeroLance Lance = NumeroLance::Grande;
  MarcaLance Marca = MarcaLance::Ninguna;
  EstadoLance Estado = EstadoLance::PorJugar;
  int Piedras = 0;           // of Envite and Queridas
  int Vistas = 0;            // of Envite
  std::optional<Pareja> De;  // of Envite, Ordago and SinEnvite

  bool operator==(const CeldaPizarra&) const = default;
};

// What a pareja has won so far, and what it takes to win.
struct TanteoVisto {
  Integer Piedras;
  Integer Juegos;
  Integer Vacas;
  Integer JuegosParaVaca;    // juegos that win a vaca
  Integer VacasParaPartida;  // vacas that win the match

  bool operator==(const TanteoVisto&) const = default;
};

struct Escena {
  Array<AsientoVisto, 1, 4> Asientos;
  Turno Toca = Turno::Nadie;
  // Grande, pequeña, pares and juego; the punto comes fifth when it is played.
  std::vector<CeldaPizarra> Pizarra;
  int GrosorMazo = 0;       // of the deck: 0 when it is empty, else 1 to 3
  int GrosorDescartes = 0;  // of the pile of discards, likewise
  Array<TanteoVisto, 0, 1> Tanteo;

  bool operator==(const Escena&) const = default;
};

// The table as it can be seen. Depends on nothing but what lies open, what has been said aloud and
// the score.
Escena EscenaDe(const Table& t, Momento momento);

// True while cards of seats 2 to 4 lie open.
bool HayManosAbiertas(const Table& t);

}  // namespace tasca
