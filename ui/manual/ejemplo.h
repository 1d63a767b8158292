#pragma once
// A worked example of the manual: four hands, what is said in the lances, and who takes how many
// stones. The tests play it; markup.h writes it out for the reader.
//
//   mano 2                                    the seat that is mano
//   piedras: 33 a 30                          the score before, first pareja 1 (optional)
//   1: rey-oros tres-copas seis-oros as-oros  a hand, from the highest card to the lowest
//   grande => pareja 1 | why                  only who wins the lance
//   grande: todos paso => pareja 1, 1 piedra | why
//   pares: 1 envido 4, 2 no quiero, 4 sube 2, 1 quiero => pareja 0, 7 piedras; pareja 1, 1 piedra |
//   why juego: sin envite => no se cuenta | why tanteo: 16 a 1                            the score
//   after the count resultado: la pareja 1 gana el juego por 36 a 30
//
// What a seat can say: paso, envido, envido N, órdago, quiero, no quiero, sube N. Only seat 1 may
// name an amount.
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "table/dialog.h"
#include "table/table.h"

namespace tasca {

// What one seat says in a lance.
struct Habla {
  Seat Asiento = AsientoHumano;
  Decision Decide = Decision::Paso;
  int Piedras = 0;            // named amount, or 0
  std::string_view Palabras;  // as written in the example
};

// The stones that a pareja takes by a lance, in the betting and in the count.
struct Cobro {
  Pareja De = 0;
  int Piedras = 0;
};

enum class ModoEjemplo { SoloGana, TodosPasan, SinEnvite, Hablado };

// One lance of an example.
struct LanceEjemplo {
  NumeroLance Numero = NumeroLance::Grande;
  ModoEjemplo Modo = ModoEjemplo::SoloGana;
  std::vector<Habla> Hablas;  // for Hablado
  std::vector<Cobro> Cobros;  // empty if the count has ended before; for SoloGana the winner alone
  std::string_view Porque;    // UTF-8
};

// A score, first pareja 1.
struct TanteoEjemplo {
  int Nuestras = 0;
  int Suyas = 0;
};

struct Ejemplo {
  Seat Mano = AsientoHumano;
  Array<std::vector<int>, 1, 4> Manos;  // cards 1..40
  std::optional<TanteoEjemplo> Antes;
  std::vector<LanceEjemplo> Lances;
  std::optional<TanteoEjemplo> Despues;
  std::optional<Pareja> GanaElJuego;  // by Despues
};

// Reads an example, without its fences. Throws std::invalid_argument with the line that is wrong.
// The result refers to `texto`.
Ejemplo LeerEjemplo(std::string_view texto);

}  // namespace tasca
