#pragma once
// The pieces of the drawn table, each with its place. They are painted in their order, without any
// knowledge of the game.
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "scene/scene.h"
#include "ui/mesa/rect.h"
#include "ui/mesa/text_fit.h"

namespace tasca {

// A card of a hand.
struct CartaPuesta {
  Rect Donde;
  int Carta = 0;        // 1..40; 0 lies face down
  bool Girada = false;  // on its side
  Seat De = AsientoHumano;
  int Hueco = 1;  // its place in the hand

  bool operator==(const CartaPuesta&) const = default;
};

// A name plate.
struct Placa {
  Rect Donde;
  std::u16string Nombre;
  Letra Tipo;  // of Nombre
  Seat De = AsientoHumano;
  bool EsMano = false;
  bool LeToca = false;

  bool operator==(const Placa&) const = default;
};

// The side of a bubble at which its point leads to the speaker.
enum class Lado { Abajo, Izquierda, Derecha };

// A seat's last words.
struct Bocadillo {
  Rect Donde;
  std::vector<std::u16string> Lineas;
  double Letras = 1;  // their size, in letters of the system's font
  Seat De = AsientoHumano;
  bool EsElUltimo = false;
  Lado Punta = Lado::Abajo;
  double PuntaX = 0;
  double PuntaY = 0;

  bool operator==(const Bocadillo&) const = default;
};

// What a badge says: that the seat is mano, or that it has, or has not, pares or juego.
enum class ClaseDistintivo { Mano, Si, No };

// A badge below a name plate.
struct Distintivo {
  Rect Donde;
  std::u16string Texto;
  ClaseDistintivo Clase = ClaseDistintivo::Si;
  Letra Tipo;

  bool operator==(const Distintivo&) const = default;
};

// The board of the slate, without what is written on it.
struct PizarraPuesta {
  Rect Donde;

  bool operator==(const PizarraPuesta&) const = default;
};

// A lance on the slate.
struct CeldaPuesta {
  Rect Donde;
  NumeroLance Lance = NumeroLance::Grande;
  MarcaLance Marca = MarcaLance::Ninguna;
  bool PorJugar = false;
  bool EsOrdago = false;
  bool EsLaPrimera = false;  // has no line at its left
  std::u16string Estado;
  Letra Tipo;                // of Estado
  std::optional<Pareja> De;  // whose sign stands before Estado

  bool operator==(const CeldaPuesta&) const = default;
};

enum class ClaseFicha {
  Piedra,    // one stone
  Amarraco,  // a stone that stands for five
  Vista,     // a stone of a bet that both parejas have seen
  Nuestra,   // a stone of a bet of pareja 1
  Suya,      // a stone of a bet of pareja 0
};

// A stone, on the slate or in the score.
struct Ficha {
  Rect Donde;
  ClaseFicha Clase = ClaseFicha::Piedra;
  int Forma = 0;  // variant of the shape, so that adjacent stones look different

  bool operator==(const Ficha&) const = default;
};

// The deck or the pile of discards.
struct Monton {
  Rect Donde;  // of the undermost card
  Rect Rotulo;
  int Grosor = 1;
  std::u16string Texto;

  bool operator==(const Monton&) const = default;
};

// The key cap that is clicked in place of the Enter key.
struct TeclaPuesta {
  Rect Donde;

  bool operator==(const TeclaPuesta&) const = default;
};

// The sign "le toca": the player must answer.
struct AvisoTurno {
  Rect Donde;

  bool operator==(const AvisoTurno&) const = default;
};

enum class ClaseAdorno { Estrella, Vaso, Aceitunas };

struct Adorno {
  Rect Donde;
  ClaseAdorno Clase = ClaseAdorno::Estrella;

  bool operator==(const Adorno&) const = default;
};

// Words of the score.
struct TextoPuesto {
  Rect Donde;
  std::u16string Texto;
  Letra Tipo;
  bool Tenue = false;
  bool ALaDerecha = false;

  bool operator==(const TextoPuesto&) const = default;
};

// The sign of a pareja: a disc for ours, a lozenge for theirs.
struct SignoPareja {
  Rect Donde;
  Pareja De = 1;

  bool operator==(const SignoPareja&) const = default;
};

// A place for a juego or a vaca that has been won or is still to be won.
struct Casilla {
  Rect Donde;
  bool EsVaca = false;
  bool Ganada = false;

  bool operator==(const Casilla&) const = default;
};

using Pieza =
    std::variant<Adorno, Monton, PizarraPuesta, CeldaPuesta, Ficha, CartaPuesta, Placa, Distintivo,
                 Bocadillo, TeclaPuesta, AvisoTurno, TextoPuesto, SignoPareja, Casilla>;

// The rectangle that a piece is laid into. Its shadow, border and point may reach a letter beyond.
inline Rect Lugar(const Pieza& pieza) {
  return std::visit([](const auto& una) { return una.Donde; }, pieza);
}

}  // namespace tasca
